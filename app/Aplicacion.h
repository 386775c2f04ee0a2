// The application object: the toolkit's, with accents that can be typed anywhere.
#pragma once

#include <fx.h>

class Aplicacion : public FXApp {
 public:
  Aplicacion() : FXApp("corvena", "Tolvara") {}  // the two names select the file of the settings

 protected:
  /// Gives the keys of an accent ("´", then "a") to the field with the focus. The toolkit itself composes
  /// them only while the pointer is over that field.
  bool getNextEvent(FXRawEvent& evento, bool espera) override;
};
