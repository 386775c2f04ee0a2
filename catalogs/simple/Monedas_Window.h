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
  Monedas_Window(FXMDIClient* cliente, FXMDIMenu* menu);

  using Forma::Clear;
  using Forma::Update;
  long onCmdMoneda(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Monedas_Window() {}

 private:
  friend Forma;
  static constexpr bool trazaErrores = true;

  cMonedas& Actual() { return moneda; }
  std::map<int, cMonedas>& Filas() { return Catalogo::Monedas; }
  void Relee() { catalogo.LoadMonedas(); }
  const char* Renglon(const cMonedas& fila);

  template <class V>
  void Clave(V dato) {
    dato(id, &cMonedas::getMonedaID, &cMonedas::setMonedaID);
  }
  template <class V>
  void Datos(V dato) {
    Clave(dato);
    dato(descripcion, &cMonedas::getMonedaDescri, &cMonedas::setMonedaDescri);
    dato(valor, &cMonedas::getMonedaValor, &cMonedas::setMonedaValor);
  }

  DatoTexto id;
  DatoTexto descripcion;
  DatoReal valor;
};
