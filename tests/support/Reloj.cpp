#include "tests/support/Reloj.h"

#include <utility>

#include "tests/support/Pantalla.h"

namespace pruebas {

FXDEFMAP(Reloj) RelojMap[] = {FXMAPFUNC(SEL_TIMEOUT, 1, Reloj::onTiempo)};
FXIMPLEMENT(Reloj, FXObject, RelojMap, ARRAYNUMBER(RelojMap))

Reloj::Reloj(std::function<void()> accion) : accion_(std::move(accion)) {}

Reloj::~Reloj() { Para(); }

void Reloj::Inicia(FXuint milisegundos) { App().addTimeout(this, ID_TIEMPO, milisegundos); }

void Reloj::Para() { App().removeTimeout(this, ID_TIEMPO); }

long Reloj::onTiempo(FXObject*, FXSelector, void*) {
  accion_();
  return 1;
}

}  // namespace pruebas
