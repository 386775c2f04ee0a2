// The form of the states of the country.
#pragma once

#include "catalogs/people/cEstadoMex.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cEstadoMex estadomex;
extern char sEstadoMex[21];

class EstadoMex_Window : public Forma<EstadoMex_Window, FXDialogBox> {
  FXDECLARE(EstadoMex_Window)
 public:
  explicit EstadoMex_Window(FXWindow* duenio);

  long onCmdEstadoMex(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }

 protected:
  EstadoMex_Window() {}

 private:
  friend Forma;
  cEstadoMex& Actual() { return estadomex; }
  auto& Filas() { return Catalogo::EstadosMex; }
  void Relee() { catalogo.LoadEstadosMex(); }
  const char* Renglon(const cEstadoMex& fila) { return EnBorrador(sEstadoMex, fila.getNombreEstadoMex()); }
  auto Datos() {
    return std::tuple(Liga(id, &cEstadoMex::getEstadoMexID, &cEstadoMex::setEstadoMexID),
                      Liga(clave, &cEstadoMex::getClaveEstadoMex, &cEstadoMex::setClaveEstadoMex),
                      Liga(nombre, &cEstadoMex::getNombreEstadoMex, &cEstadoMex::setNombreEstadoMex));
  }

  DatoEntero id;  // the server numbers new ones
  DatoTexto clave;
  DatoTexto nombre;
};
