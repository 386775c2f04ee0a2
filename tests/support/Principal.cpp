#include "tests/support/Principal.h"

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {

Principal::Principal() : fuente_(App().getNormalFont()), caja_(new Caja(&App())) {
  caja_->FXMainWindow::create();
  caja_->show(PLACEMENT_SCREEN);
  Bombea();
}

Principal::~Principal() {
  FXFont* const suya = App().getNormalFont();
  delete caja_;
  App().setNormalFont(fuente_);
  delete suya;
}

}  // namespace pruebas
