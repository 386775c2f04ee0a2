// The form of the groups of members.
#pragma once

#include "catalogs/simple/cGrupo.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cGrupo grupo;

class Grupo_Window : public Forma<Grupo_Window, FXMDIChild, SinBuscar> {
  FXDECLARE(Grupo_Window)
 public:
  Grupo_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdGrupo(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Grupo_Window() {}

 private:
  friend Forma;
  cGrupo& Actual() { return grupo; }
  auto& Filas() { return catalogo.Grupos; }
  void Relee() { catalogo.LoadGrupos(); }
  auto Datos() {
    return std::tuple(Liga(id, &cGrupo::getGrupoID, &cGrupo::setGrupoID),
                      Liga(nombre, &cGrupo::getGrupo, &cGrupo::setGrupo));
  }

  DatoEntero id;
  DatoTexto nombre;
};
