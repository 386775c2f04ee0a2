// The form of the non-working days.
#pragma once

#include "catalogs/finance/FormaSerie.h"
#include "catalogs/finance/cInabil.h"

extern cInabil inabil;

class Inabil_Window : public cInabil, public FormaDiaria<Inabil_Window> {
  FXDECLARE(Inabil_Window)
 public:
  Inabil_Window(FXMDIClient* area, FXMDIMenu* menu);

  using FormaDiaria::Clear;
  using FormaDiaria::Update;
  long onCmdInabil(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Inabil_Window() {}

 private:
  friend Forma;
  friend FormaDiaria;

  cInabil& Actual() { return inabil; }
  auto& Filas() { return Catalogo::Inabiles; }
  void Relee() { catalogo.LoadInabiles(); }
  auto Datos() { return std::tuple(Liga(fecha, &cInabil::getFecha, &cInabil::setFecha)); }
};
