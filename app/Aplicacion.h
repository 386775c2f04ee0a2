// The application object: the toolkit's, with accents that can be typed anywhere, the help of F1, and the
// login of F9.
#pragma once

#include <fx.h>

#include "app/Ayuda.h"

class Aplicacion : public FXApp {
 public:
  Aplicacion() : FXApp("corvena", "Tolvara"), ayuda(this) {}  // the two names select the file of the settings

  /// Says so and ends with 1 when the screen cannot be opened.
  void init(int& argc, char** argv, bool connect = true) override;
  /// The same when the machine has no letters to write with.
  void create() override;

 protected:
  /// Gives the keys of an accent ("´", then "a") to the field with the focus. The toolkit itself composes
  /// them only while the pointer is over that field.
  bool getNextEvent(FXRawEvent& evento, bool espera) override;
  /// F1 asks for help and F9 logs in again, in whatever window, since a key goes up no further than the
  /// window that it was pressed in.
  bool dispatchEvent(FXRawEvent& evento) override;

 private:
  FXWindow* EnFrente() const;
  void Conecta(FXWindow* enFrente);

  Ayuda ayuda;
};
