// What the tests of the second program share.
#pragma once

#include "operaciones/Operaciones.h"
#include "tests/app/ConCaja.h"
#include "tests/support/Espia.h"

namespace pruebas {

/// The main window of the second program, without its first login, and a server. The tests of a suite share
/// the database.
class ConOperaciones : public SinSesion {
 protected:
  static void SetUpTestSuite() { base_ = std::make_unique<BaseDatos>(); }
  static void TearDownTestSuite() { base_.reset(); }
  void SetUp() override {
    SinSesion::SetUp();
    AjustaSesion();
    principal_ = new Operaciones(&App());
    principal_->FXMainWindow::create();
    principal_->show(PLACEMENT_SCREEN);
    Bombea();
  }
  void TearDown() override {
    delete principal_;
    SinSesion::TearDown();
    base_->MataSesiones();
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

  inline static std::unique_ptr<BaseDatos> base_;
  Salida salida_;
  Operaciones* principal_ = nullptr;
};

}  // namespace pruebas
