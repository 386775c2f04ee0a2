// The form of the neighbourhoods. There are too many to list: it shows those of a city or of a postal code,
// once the user has asked for them.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/people/cColonia.h"
#include "db/Catalogo.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cColonia colonia;  // the record on which the form works; outlives it

/// Position in the cache of the first kind of settlement with exactly this key; 0 if there is none.
int FindTipoAsentamiento(long id);

class Colonia_Window : public Forma<Colonia_Window, FXDialogBox> {
  FXDECLARE(Colonia_Window)
 public:
  enum { ID_CIUDAD = Forma::ID_LISTA + 1, ID_TIPO, ID_PORCIUDAD, ID_PORCP, ID_SALIR, ID_LAST };

  explicit Colonia_Window(FXWindow* duenio);

  /// As in every form; the number that the server gave is shown, so that the user can go on with it.
  long onCmdAgregar(FXObject* emisor, FXSelector sel, void* datos);
  long onCmdCiudad(FXObject*, FXSelector, void*) { return ciudad.Elige(); }
  long onCmdTipo(FXObject*, FXSelector, void*) { return tipo.Elige(); }
  /// Lists the neighbourhoods of the city at the top.
  long onCmdPorCiudad(FXObject*, FXSelector, void*);
  /// Lists those of the postal code at the top; without one nothing is asked of the server.
  long onCmdPorCP(FXObject*, FXSelector, void*);

  /// Lists the neighbourhoods of a postal code, and makes the one with this number the record.
  void Muestra(long cp, long coloniaID);

 protected:
  Colonia_Window() {}

 private:
  friend Forma;
  enum class Que { Nada, DeCiudad, DeCP };

  void ArmaBusqueda(FXMatrix* matriz);
  void ArmaDatos(FXMatrix* matriz);
  long Lista(Que que);

  cColonia& Actual() { return colonia; }
  auto& Filas() { return catalogo.ColoniasFiltro; }
  void Prepara();
  void Relee();
  const char* Renglon(const cColonia& fila) { return fila.getNombreColonia(); }
  auto Datos() {
    using T = cColonia;
    return std::tuple(Liga(id, &T::getColoniaID, &T::setColoniaID),
                      Liga(nombre, &T::getNombreColonia, &T::setNombreColonia),
                      Liga(cp, &T::getCP, &T::setCP), Liga(ciudad, &T::getCiudadMexID, &T::setCiudadMexID),
                      Liga(tipo, &T::getTipoAsentamientoID, &T::setTipoAsentamientoID));
  }

  DatoEntero id;  // the server numbers new ones
  DatoTexto nombre;
  DatoLargo cp;
  DatoFila<Catalogo::CiudadesMex, &cCiudadMex::getCiudadMexID, FindCiudad> ciudad;
  DatoFila<Catalogo::TipoAsentamientos, &cTipoAsentamiento::getTipoAsentamientoID, FindTipoAsentamiento> tipo;
  FXComboBox* ciudadBuscada = nullptr;
  DatoLargo cpBuscado;
  Que muestra = Que::Nada;  // the list
  long clave = 0;           // of which city, or code
};
