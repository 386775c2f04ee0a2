// The keyboard of the screen for a window that has just come up.
//
// A window manager leaves the keyboard with the program that the user was in, or gives it to the main window
// under a dialog; a password typed meanwhile is lost. A window with a Teclado asks for it until it has it.
#pragma once

#include <fx.h>

class Teclado : public FXObject {
  FXDECLARE(Teclado)
 public:
  enum { ID_PIDE = 1 };

  /// Asks for `ventana`, from when it is on the screen, a few times a second for some seconds at most.
  explicit Teclado(FXTopWindow* ventana);
  ~Teclado() override;

  long onPide(FXObject*, FXSelector, void*);

 protected:
  Teclado() {}

 private:
  FXTopWindow* ventana = nullptr;
  int veces = 0;
};
