// The form of the kinds of guarantee.
#pragma once

#include "catalogs/simple/cTipo_Garantia.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cTipo_Garantia tipo_garantia;
extern char sDescripcionGarantia[31];

class Tipo_Garantia_Window : public Forma<Tipo_Garantia_Window, FXDialogBox> {
  FXDECLARE(Tipo_Garantia_Window)
 public:
  explicit Tipo_Garantia_Window(FXWindow* duenio);

 protected:
  Tipo_Garantia_Window() {}

 private:
  friend Forma;
  cTipo_Garantia& Actual() { return tipo_garantia; }
  auto& Filas() { return Catalogo::Tipo_Garantia; }
  void Relee() { catalogo.LoadTipoGarantia(); }
  const char* Renglon(const cTipo_Garantia& fila) {
    return EnBorrador(sDescripcionGarantia, fila.getDescripcionGarantia());
  }
  auto Datos() {
    return std::tuple(
        Liga(clave, &cTipo_Garantia::getClaveGarantia, &cTipo_Garantia::setClaveGarantia),
        Liga(descripcion, &cTipo_Garantia::getDescripcionGarantia, &cTipo_Garantia::setDescripcionGarantia));
  }

  DatoTexto clave;
  DatoTexto descripcion;
};
