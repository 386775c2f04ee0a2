// A neighbourhood of a city, with its postal code.
#pragma once

#include "framework/Registro.h"

class cColonia : public Registro<cColonia> {
 public:
  cColonia() { Clear(); }
  cColonia(long id, int ciudadMexID, const char* nombre, long cp, int tipoAsentamientoID, bool dataChanged,
           bool isNew);

  void setColoniaID(long valor) { Pon(ColoniaID, valor); }
  void setCiudadMexID(int valor) { Pon(CiudadMexID, valor); }
  /// Stored with blanks behind it up to 50 characters.
  void setNombreColonia(const char* valor) { PonRellenado(NombreColonia, 50, valor); }
  void setCP(long valor) { Pon(CP, valor); }
  void setTipoAsentamientoID(int valor) { Pon(TipoAsentamientoID, valor); }

  long getColoniaID() const { return ColoniaID; }
  int getCiudadMexID() const { return CiudadMexID; }
  const char* getNombreColonia() const { return NombreColonia; }
  long getCP() const { return CP; }
  int getTipoAsentamientoID() const { return TipoAsentamientoID; }

  bool Check();
  const char* clase() const { return "Colonia"; }

 private:
  friend Registro<cColonia>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate;

  auto Columnas() { return std::tie(ColoniaID, CiudadMexID, NombreColonia, CP, TipoAsentamientoID); }
  long Clave() const { return ColoniaID; }
  bool HayClaveFind() const { return ColoniaID != 0; }
  void AlInsertar() { TomaClave(ColoniaID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  long ColoniaID;
  int CiudadMexID;
  char NombreColonia[104];
  long CP;
  int TipoAsentamientoID;
};
