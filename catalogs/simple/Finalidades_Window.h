// The form of the purposes of loans.
#pragma once

#include "catalogs/simple/cFinalidades.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cFinalidades finalidades;
extern char sDescripcionFinalidad[31];

class Finalidades_Window : public Forma<Finalidades_Window, FXDialogBox> {
  FXDECLARE(Finalidades_Window)
 public:
  explicit Finalidades_Window(FXWindow* duenio);

 protected:
  Finalidades_Window() {}

 private:
  friend Forma;
  cFinalidades& Actual() { return finalidades; }
  auto& Filas() { return Catalogo::Finalidades; }
  void Relee() { catalogo.LoadFinalidades(); }
  const char* Renglon(const cFinalidades& fila) {
    return EnBorrador(sDescripcionFinalidad, fila.getDescripcionFinalidad());
  }
  auto Datos() {
    return std::tuple(
        Liga(clave, &cFinalidades::getClaveFinalidad, &cFinalidades::setClaveFinalidad),
        Liga(descripcion, &cFinalidades::getDescripcionFinalidad, &cFinalidades::setDescripcionFinalidad));
  }

  DatoTexto clave;
  DatoTexto descripcion;
};
