// Who may do what: every user against every option, read only.
#pragma once

#include "operaciones/MarcoDeTabla.h"

class Permisos_Window : public FXMDIChild {
  FXDECLARE(Permisos_Window)
 public:
  enum { ID_TABLA = FXMDIChild::ID_LAST, ID_LAST };

  Permisos_Window(FXMDIClient* area, FXMDIMenu* menu);

  /// The user can filter at once.
  void create() override;

  /// Asks the server and shows what it answers.
  long onRelee(FXObject*, FXSelector, void*);

 protected:
  Permisos_Window() {}

 private:
  MarcoDeTabla* marco = nullptr;
};
