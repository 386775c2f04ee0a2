// The form of the values of the inflation-indexed unit.
#pragma once

#include "catalogs/finance/FormaSerie.h"
#include "catalogs/finance/cUdis.h"

extern cUdis udis;

class Udis_Window : public cUdis, public FormaDiaria<Udis_Window> {
  FXDECLARE(Udis_Window)
 public:
  Udis_Window(FXMDIClient* area, FXMDIMenu* menu);

  using FormaDiaria::Clear;
  using FormaDiaria::Update;
  long onCmdUdis(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Udis_Window() {}

 private:
  friend Forma;
  friend FormaDiaria;
  static constexpr FormatoFecha formato = FormatoFecha::Blancos;

  cUdis& Actual() { return udis; }
  auto& Filas() { return Catalogo::Udis; }
  void Relee() { catalogo.LoadUdis(); }
  auto Datos() {
    return std::tuple(Liga(fecha, &cUdis::getFecha, &cUdis::setFecha),
                      Liga(valor, &cUdis::getValor, &cUdis::setValor));
  }

  DatoReal valor;
};
