// A state of the country. Its numbers run from 1 without a gap: the user form takes a place in the list for
// a number.
#pragma once

#include "framework/Registro.h"

class cEstadoMex : public Registro<cEstadoMex> {
 public:
  cEstadoMex() { Clear(); }
  cEstadoMex(int id, const char* clave, const char* nombre, bool dataChanged, bool isNew);

  void setEstadoMexID(int valor) { Pon(EstadoMexID, valor); }
  /// Code of 3 characters, stored with blanks behind it.
  void setClaveEstadoMex(const char* valor) { PonRellenado(ClaveEstadoMex, 3, valor); }
  void setNombreEstadoMex(const char* valor) { Pon(NombreEstadoMex, valor); }

  int getEstadoMexID() const { return EstadoMexID; }
  const char* getClaveEstadoMex() const { return ClaveEstadoMex; }
  const char* getNombreEstadoMex() const { return NombreEstadoMex; }

  bool Check();
  const char* clase() const { return "EstadoMex"; }

 private:
  friend Registro<cEstadoMex>;

  auto Columnas() { return std::tie(EstadoMexID, ClaveEstadoMex, NombreEstadoMex); }
  int Clave() const { return EstadoMexID; }
  void AlInsertar() { TomaClave(EstadoMexID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int EstadoMexID;
  char ClaveEstadoMex[4];
  char NombreEstadoMex[21];
};
