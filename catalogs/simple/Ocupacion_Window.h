// The form of the occupations.
#pragma once

#include "catalogs/simple/cOcupacion.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cOcupacion ocupacion;

class Ocupacion_Window : public Forma<Ocupacion_Window, FXMDIChild, SinBuscar> {
  FXDECLARE(Ocupacion_Window)
 public:
  Ocupacion_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdOcupacion(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }

 protected:
  Ocupacion_Window() {}

 private:
  friend Forma;
  cOcupacion& Actual() { return ocupacion; }
  auto& Filas() { return catalogo.Ocupaciones; }
  void Relee() { catalogo.LoadOcupaciones(); }
  auto Datos() {
    return std::tuple(Liga(id, &cOcupacion::getOcupacionID, &cOcupacion::setOcupacionID),
                      Liga(nombre, &cOcupacion::getOcupacion, &cOcupacion::setOcupacion));
  }

  DatoEntero id;
  DatoTexto nombre;
};
