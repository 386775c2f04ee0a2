// Keys that come from outside the program, as a person's do, on a screen with a window manager.
#pragma once

#include <fx.h>

#include "tests/support/Proceso.h"
#include "tests/support/Textos.h"

namespace pruebas {

/// A window manager on the screen of the tests while it lives.
class Escritorio {
 public:
  Escritorio();
  Escritorio(const Escritorio&) = delete;
  Escritorio& operator=(const Escritorio&) = delete;

  /// Gives a window the keyboard, as a click on its title does.
  void Activa(FXWindow* ventana);
  /// Presses keys one after the other, each as xdotool names it ("Tab", "alt+b"), to whatever window has the
  /// keyboard, and lets the program take them. Answers how many they were.
  size_t Teclea(const Textos& teclas);
  /// Types a text.
  size_t Escribe(const std::string& texto);

 private:
  Hijo administrador_;
};

/// A test with the one of its program, which is there ahead of the windows.
struct ConEscritorio {
  static Escritorio& Unico() {
    static Escritorio unico;
    return unico;
  }
  Escritorio& escritorio_ = Unico();
};

}  // namespace pruebas
