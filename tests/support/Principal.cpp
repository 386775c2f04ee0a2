#include "tests/support/Principal.h"

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {

Principal::Principal() : caja_(new Caja(&App())) {
  caja_->FXMainWindow::create();
  caja_->show(PLACEMENT_SCREEN);
  Bombea();
}

Principal::~Principal() { delete caja_; }

}  // namespace pruebas
