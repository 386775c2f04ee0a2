// The form of the modules.
#pragma once

#include "catalogs/simple/cModulo.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cModulo modulo;

class Modulo_Window : public Forma<Modulo_Window, FXDialogBox> {
  FXDECLARE(Modulo_Window)
 public:
  explicit Modulo_Window(FXWindow* duenio);

  long onCmdModulo(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Modulo_Window() {}

 private:
  friend Forma;
  cModulo& Actual() { return modulo; }
  auto& Filas() { return Catalogo::Modulos; }
  void Relee() { catalogo.LoadModulos(); }
  auto Datos() {
    return std::tuple(Liga(clave, &cModulo::getClaveModulo, &cModulo::setClaveModulo),
                      Liga(descripcion, &cModulo::getDescriModulo, &cModulo::setDescriModulo));
  }

  DatoTexto clave;
  DatoParrafo descripcion;
};
