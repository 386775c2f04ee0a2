// The form of the kinds of settlement.
#pragma once

#include "catalogs/simple/cTipoAsentamiento.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"
#include "operaciones/DatoRellenado.h"

extern cTipoAsentamiento tipoasentamiento;  // the record on which the form works; outlives it

class TipoAsentamiento_Window : public Forma<TipoAsentamiento_Window, FXDialogBox> {
  FXDECLARE(TipoAsentamiento_Window)
 public:
  explicit TipoAsentamiento_Window(FXWindow* duenio);

 protected:
  TipoAsentamiento_Window() {}

 private:
  friend Forma;
  cTipoAsentamiento& Actual() { return tipoasentamiento; }
  auto& Filas() { return Catalogo::TipoAsentamientos; }
  void Relee() { catalogo.LoadTipoAsentamientos(); }
  auto Datos() {
    using T = cTipoAsentamiento;
    return std::tuple(Liga(id, &T::getTipoAsentamientoID, &T::setTipoAsentamientoID),
                      Liga(nombre, &T::getAsentamiento, &T::setAsentamiento));
  }

  DatoEntero id;  // the user gives it
  DatoRellenado<50> nombre;
};
