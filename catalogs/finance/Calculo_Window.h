// The form of the formulas of interest.
#pragma once

#include "catalogs/finance/cCalculo.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cCalculo calculo;
extern char sCalculo[44];

class Calculo_Window : public Forma<Calculo_Window, FXDialogBox> {
  FXDECLARE(Calculo_Window)
 public:
  explicit Calculo_Window(FXWindow* duenio);

  long onCmdCalculo(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Calculo_Window() {}

 private:
  friend Forma;
  cCalculo& Actual() { return calculo; }
  auto& Filas() { return Catalogo::Calculos; }
  void Relee() { catalogo.LoadCalculos(); }
  const char* Renglon(const cCalculo& fila) { return EnBorrador(sCalculo, fila.getDescripcionCalculo()); }
  auto Datos() {
    return std::tuple(Liga(id, &cCalculo::getCalculoID, &cCalculo::setCalculoID),
                      Liga(descripcion, &cCalculo::getDescripcionCalculo, &cCalculo::setDescripcionCalculo),
                      Liga(formula, &cCalculo::getFormula, &cCalculo::setFormula));
  }

  DatoEntero id;  // the server numbers new ones
  DatoTexto descripcion;
  DatoTexto formula;
};
