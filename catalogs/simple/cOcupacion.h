// An occupation of a member.
#pragma once

#include "framework/Registro.h"

class cOcupacion : public Registro<cOcupacion> {
 public:
  cOcupacion() { Clear(); }
  cOcupacion(int id, const char* ocupacion, bool dataChanged, bool isNew);

  void setOcupacionID(int valor) { Pon(OcupacionID, valor); }
  void setOcupacion(const char* valor) { Pon(Ocupacion, valor); }

  int getOcupacionID() const { return OcupacionID; }
  const char* getOcupacion() const { return Ocupacion; }

  bool Check();
  const char* clase() const { return "Ocupacion"; }

 private:
  friend Registro<cOcupacion>;

  auto Columnas() { return std::tie(OcupacionID, Ocupacion); }
  int Clave() const { return OcupacionID; }
  void AlInsertar() { TomaClave(OcupacionID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int OcupacionID;
  char Ocupacion[41];
};
