// A kind of settlement: neighbourhood, village and so on.
#pragma once

#include "framework/Registro.h"

class cTipoAsentamiento : public Registro<cTipoAsentamiento> {
 public:
  cTipoAsentamiento() { Clear(); }
  cTipoAsentamiento(long id, const char* asentamiento, bool dataChanged, bool isNew);

  void setTipoAsentamientoID(long valor) { Pon(TipoAsentamientoID, valor); }
  /// Stored with blanks behind it up to 50 characters.
  void setAsentamiento(const char* valor) { PonRellenado(Asentamiento, 50, valor); }

  long getTipoAsentamientoID() const { return TipoAsentamientoID; }
  const char* getAsentamiento() const { return Asentamiento; }

  bool Check();
  const char* clase() const { return "Tipo de asentamiento"; }

 private:
  friend Registro<cTipoAsentamiento>;

  auto Columnas() { return std::tie(TipoAsentamientoID, Asentamiento); }
  long Clave() const { return TipoAsentamientoID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  long TipoAsentamientoID;
  char Asentamiento[51];
};
