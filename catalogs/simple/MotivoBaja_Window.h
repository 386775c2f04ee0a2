// The form of the reasons for which members leave.
#pragma once

#include "catalogs/simple/cMotivoBaja.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cMotivoBaja motivobaja;

class MotivoBaja_Window : public Forma<MotivoBaja_Window, FXMDIChild, SinBuscar> {
  FXDECLARE(MotivoBaja_Window)
 public:
  MotivoBaja_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdMotivoBaja(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }

 protected:
  MotivoBaja_Window() {}

 private:
  friend Forma;
  cMotivoBaja& Actual() { return motivobaja; }
  auto& Filas() { return catalogo.MotivosBaja; }
  void Relee() { catalogo.LoadMotivosBaja(); }
  auto Datos() {
    return std::tuple(
        Liga(id, &cMotivoBaja::getMotivoBajaID, &cMotivoBaja::setMotivoBajaID),
        Liga(descripcion, &cMotivoBaja::getDescripcionMotivo, &cMotivoBaja::setDescripcionMotivo));
  }

  DatoEntero id;
  DatoTexto descripcion;
};
