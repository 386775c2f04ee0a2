// The form of the kinds of member.
#pragma once

#include "catalogs/simple/cTipoSocio.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cTipoSocio tiposocio;

class TipoSocio_Window : public Forma<TipoSocio_Window, FXDialogBox> {
  FXDECLARE(TipoSocio_Window)
 public:
  explicit TipoSocio_Window(FXWindow* duenio);

  long onCmdTipoSocio(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }

 protected:
  TipoSocio_Window() {}

 private:
  friend Forma;
  cTipoSocio& Actual() { return tiposocio; }
  auto& Filas() { return Catalogo::TiposSocios; }
  void Relee() { catalogo.LoadTiposSocios(); }
  auto Datos() {
    return std::tuple(Liga(id, &cTipoSocio::getTipoSocioID, &cTipoSocio::setTipoSocioID),
                      Liga(descripcion, &cTipoSocio::getDescriTipoSocio, &cTipoSocio::setDescriTipoSocio),
                      Liga(observaciones, &cTipoSocio::getObservaciones, &cTipoSocio::setObservaciones));
  }

  DatoTexto id;
  DatoTexto descripcion;
  DatoParrafo observaciones;
};
