// What the tests of the second program share.
#pragma once

#include "operaciones/Operaciones.h"
#include "tests/app/ConCaja.h"
#include "tests/support/Espia.h"

namespace pruebas {

/// A server, and the main window of the second program without its first login.
class ConOperaciones : public ConServidor {
 protected:
  void SetUp() override {
    ConServidor::SetUp();
    principal_ = new Operaciones(&App());
    principal_->FXMainWindow::create();
    principal_->show(PLACEMENT_SCREEN);
    Bombea();
  }
  void TearDown() override {
    delete principal_;
    ConServidor::TearDown();
  }

  /// The child window of this class.
  template <class Ventana>
  Ventana* Hija() {
    return Unico<Ventana>(principal_);
  }
  template <class Ventana>
  Ventana* Abre() {
    Ventana* const hija = principal_->AbreHija<Ventana>();
    Bombea();
    return hija;
  }
  /// A dialog on the screen, without being run.
  template <class Ventana>
  std::unique_ptr<Ventana> Dialogo() {
    auto dialogo = std::make_unique<Ventana>(principal_);
    dialogo->create();
    dialogo->show();
    Bombea();
    return dialogo;
  }

  Salida salida_;
  Operaciones* principal_ = nullptr;
};

}  // namespace pruebas
