// The form of the currencies.
#pragma once

#include "catalogs/simple/cMonedas.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cMonedas moneda;   // the record on which the form works; outlives it
extern char sMoneda[30];  // a row of the list

class Monedas_Window : public cMonedas, public Forma<Monedas_Window, FXMDIChild> {
  FXDECLARE(Monedas_Window)
 public:
  Monedas_Window(FXMDIClient* area, FXMDIMenu* menu);

  using Forma::Clear;
  using Forma::Update;
  long onCmdMoneda(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Monedas_Window() {}

 private:
  friend Forma;
  static constexpr bool trazaErrores = true;

  cMonedas& Actual() { return moneda; }
  auto& Filas() { return Catalogo::Monedas; }
  void Relee() { catalogo.LoadMonedas(); }
  const char* Renglon(const cMonedas& fila) { return EnBorrador(sMoneda, fila.getMonedaDescri()); }
  auto Datos() {
    return std::tuple(Liga(id, &cMonedas::getMonedaID, &cMonedas::setMonedaID),
                      Liga(descripcion, &cMonedas::getMonedaDescri, &cMonedas::setMonedaDescri),
                      Liga(valor, &cMonedas::getMonedaValor, &cMonedas::setMonedaValor));
  }

  DatoTexto id;
  DatoTexto descripcion;
  DatoReal valor;
};
