// The form of the cities and municipalities of the states. The form of the states opens from it.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/people/cCiudadMex.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cCiudadMex ciudadmex;
extern char sCiudadMex[51];

class CiudadMex_Window : public Forma<CiudadMex_Window, FXDialogBox> {
  FXDECLARE(CiudadMex_Window)
 public:
  enum { ID_ESTADOS = Forma::ID_LISTA + 1, ID_ESTADO, ID_SALIR, ID_LAST };

  explicit CiudadMex_Window(FXWindow* duenio);

  long onCmdCiudadMex(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }
  long onCmdEstados(FXObject*, FXSelector, void*) { return estado.Elige(); }
  /// "...": runs the form of the states, and offers them as they are then. None is chosen; the city keeps its
  /// own.
  long onCmdEstado(FXObject*, FXSelector, void*);

 protected:
  CiudadMex_Window() {}

 private:
  friend Forma;
  void ArmaEstado(FXMatrix* matriz);

  cCiudadMex& Actual() { return ciudadmex; }
  auto& Filas() { return Catalogo::CiudadesMex; }
  void Relee() { catalogo.LoadCiudadesMex(); }
  const char* Renglon(const cCiudadMex& fila) { return EnBorrador(sCiudadMex, fila.getNombreCiudadMex()); }
  auto Datos() {
    return std::tuple(Liga(id, &cCiudadMex::getCiudadMexID, &cCiudadMex::setCiudadMexID),
                      Liga(clave, &cCiudadMex::getClaveCiudadMex, &cCiudadMex::setClaveCiudadMex),
                      Liga(nombre, &cCiudadMex::getNombreCiudadMex, &cCiudadMex::setNombreCiudadMex),
                      Liga(estado, &cCiudadMex::getEstadoMexID, &cCiudadMex::setEstadoMexID));
  }

  DatoEntero id;  // the server numbers new ones
  DatoTexto clave;
  DatoTexto nombre;
  DatoFila<Catalogo::EstadosMex, &cEstadoMex::getEstadoMexID, FindEstado> estado;
};
