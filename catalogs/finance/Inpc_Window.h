// The form of the consumer price indices.
#pragma once

#include "catalogs/finance/FormaSerie.h"
#include "catalogs/finance/cInpc.h"

extern cInpc inpc;

class Inpc_Window : public FormaMensual<Inpc_Window> {
  FXDECLARE(Inpc_Window)
 public:
  Inpc_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdInpc(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Inpc_Window() {}

 private:
  friend Forma;

  cInpc& Actual() { return inpc; }
  auto& Filas() { return Catalogo::Inpc; }
  void Relee() { catalogo.LoadInpc(); }
  auto Datos() { return Mensuales(&cInpc::getInpc, &cInpc::setInpc); }
};
