// The form of the states of a loan.
#pragma once

#include "catalogs/simple/cEstados_Credito.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cEstados_Credito estados_credito;
extern char sDescripcionEdoCredito[31];

class Estados_Credito_Window : public Forma<Estados_Credito_Window, FXDialogBox> {
  FXDECLARE(Estados_Credito_Window)
 public:
  explicit Estados_Credito_Window(FXWindow* duenio);

 protected:
  Estados_Credito_Window() {}

 private:
  friend Forma;
  cEstados_Credito& Actual() { return estados_credito; }
  auto& Filas() { return Catalogo::Estados_Credito; }
  void Relee() { catalogo.LoadEstadosCredito(); }
  const char* Renglon(const cEstados_Credito& fila) {
    return EnBorrador(sDescripcionEdoCredito, fila.getDescripcionEdoCredito());
  }
  auto Datos() {
    return std::tuple(
        Liga(clave, &cEstados_Credito::getClaveEstadoCredito, &cEstados_Credito::setClaveEstadoCredito),
        Liga(descripcion, &cEstados_Credito::getDescripcionEdoCredito,
             &cEstados_Credito::setDescripcionEdoCredito));
  }

  DatoTexto clave;
  DatoTexto descripcion;
};
