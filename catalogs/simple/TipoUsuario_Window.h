// The form of the kinds of user.
#pragma once

#include "catalogs/simple/cTipoUsuario.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cTipoUsuario tipousuario;

class TipoUsuario_Window : public Forma<TipoUsuario_Window, FXDialogBox> {
  FXDECLARE(TipoUsuario_Window)
 public:
  explicit TipoUsuario_Window(FXWindow* duenio);

  long onCmdTipoUsuario(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }

 protected:
  TipoUsuario_Window() {}

 private:
  friend Forma;
  cTipoUsuario& Actual() { return tipousuario; }
  auto& Filas() { return Catalogo::TiposUsuarios; }
  void Relee() { catalogo.LoadTiposUsuarios(); }
  auto Datos() {
    return std::tuple(Liga(id, &cTipoUsuario::getTipoUsuarioID, &cTipoUsuario::setTipoUsuarioID),
                      Liga(descripcion, &cTipoUsuario::getDescripcionTipoUsuario,
                           &cTipoUsuario::setDescripcionTipoUsuario));
  }

  DatoTexto id;
  DatoTexto descripcion;
};
