// The form of the surcharges.
#pragma once

#include "catalogs/finance/FormaSerie.h"
#include "catalogs/finance/cRecargos.h"

extern cRecargos recargos;

class Recargos_Window : public FormaMensual<Recargos_Window> {
  FXDECLARE(Recargos_Window)
 public:
  Recargos_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdRecargos(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Recargos_Window() {}

 private:
  friend Forma;

  cRecargos& Actual() { return recargos; }
  auto& Filas() { return Catalogo::Recargos; }
  void Relee() { catalogo.LoadRecargos(); }
  auto Datos() { return Mensuales(&cRecargos::getPorcentaje, &cRecargos::setPorcentaje); }
};
