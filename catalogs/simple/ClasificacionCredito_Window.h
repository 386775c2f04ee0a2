// The form of the classes of the loan portfolio. Only the second program opens it.
#pragma once

#include "catalogs/simple/cClasificacionCredito.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cClasificacionCredito clasificacioncredito;

class ClasificacionCredito_Window : public Forma<ClasificacionCredito_Window, FXMDIChild, SinBuscar> {
  FXDECLARE(ClasificacionCredito_Window)
 public:
  ClasificacionCredito_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdClasificacionCredito(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }

 protected:
  ClasificacionCredito_Window() {}

 private:
  friend Forma;
  cClasificacionCredito& Actual() { return clasificacioncredito; }
  auto& Filas() { return catalogo.ClasificacionCreditos; }
  void Relee() { catalogo.LoadClasificacionCreditos(); }
  auto Datos() {
    return std::tuple(
        Liga(id, &cClasificacionCredito::getClasificacionCreditoID,
             &cClasificacionCredito::setClasificacionCreditoID),
        Liga(descripcion, &cClasificacionCredito::getDescripcion, &cClasificacionCredito::setDescripcion));
  }

  DatoEntero id;
  DatoTexto descripcion;
};
