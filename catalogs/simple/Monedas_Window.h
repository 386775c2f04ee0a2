// The form of the currencies.
//
// The first of all forms, and not the model of one: it also is a record, which nothing uses, its rows go by
// way of a text that is shorter than they can be, and a save that fails writes so. Grupo_Window and
// Modulo_Window are nothing but the pattern.
#pragma once

#include "catalogs/simple/cMonedas.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cMonedas moneda;
extern char sMoneda[30];

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
