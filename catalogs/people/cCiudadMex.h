// A city or municipality of a state.
#pragma once

#include "framework/Registro.h"

class cCiudadMex : public Registro<cCiudadMex> {
 public:
  cCiudadMex() { Clear(); }
  cCiudadMex(int id, const char* clave, const char* nombre, int estadoMexID, bool dataChanged, bool isNew);

  void setCiudadMexID(int valor) { Pon(CiudadMexID, valor); }
  /// Code of 4 characters, stored with blanks behind it.
  void setClaveCiudadMex(const char* valor) { PonRellenado(ClaveCiudadMex, 4, valor); }
  void setNombreCiudadMex(const char* valor) { Pon(NombreCiudadMex, valor); }
  void setEstadoMexID(int valor) { Pon(EstadoMexID, valor); }

  int getCiudadMexID() const { return CiudadMexID; }
  const char* getClaveCiudadMex() const { return ClaveCiudadMex; }
  const char* getNombreCiudadMex() const { return NombreCiudadMex; }
  int getEstadoMexID() const { return EstadoMexID; }

  bool Check();
  const char* clase() const { return "Ciudadades"; }

 private:
  friend Registro<cCiudadMex>;
  static constexpr unsigned trazas = TrazaFind;

  auto Columnas() { return std::tie(CiudadMexID, EstadoMexID, ClaveCiudadMex, NombreCiudadMex); }
  int Clave() const { return CiudadMexID; }
  void AlInsertar() { TomaClave(CiudadMexID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int CiudadMexID;
  char ClaveCiudadMex[5];
  char NombreCiudadMex[51];
  int EstadoMexID;
};
