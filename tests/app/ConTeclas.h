// The main window in a session, and the keys that a person presses on it.
#pragma once

#include <memory>

#include "tests/app/ConCaja.h"
#include "tests/support/Escritorio.h"

namespace pruebas {

class ConTeclas : public ConEscritorio, public ConCaja {
 protected:
  void SetUp() override {
    ConCaja::SetUp();
    sesion_ = std::make_unique<Sesion>(*base_);
    IsConectado = true;
    caja_->readRegistry();
    Toma(caja_.get());
  }
  void TearDown() override {
    sesion_.reset();
    ConCaja::TearDown();
  }

  /// Gives a window the keyboard.
  void Toma(FXWindow* ventana) {
    escritorio_.Activa(ventana);
    ASSERT_TRUE(BombeaHasta([ventana] { return ventana->hasFocus() != FALSE; })) << "sin teclado";
  }

  std::unique_ptr<Sesion> sesion_;
};

}  // namespace pruebas
