// A class of borrower, as the authority asks for it. No form edits it: it is looked up in the cache.
#pragma once

#include "framework/Registro.h"

class cTipoAcreditadoR : public Registro<cTipoAcreditadoR> {
 public:
  cTipoAcreditadoR() { Clear(); }
  cTipoAcreditadoR(int id, const char* descri, bool dataChanged, bool isNew);

  void setTipoAcreditadoID(int valor) { Pon(TipoAcreditadoID, valor); }
  /// Stored with blanks behind it up to 50 characters.
  void setDescripcionTipoAcreditado(const char* valor) { PonRellenado(DescripcionTipoAcreditado, 50, valor); }

  int getTipoAcreditadoID() const { return TipoAcreditadoID; }
  const char* getDescripcionTipoAcreditado() const { return DescripcionTipoAcreditado; }

  bool Check();

 private:
  friend Registro<cTipoAcreditadoR>;

  auto Columnas() { return std::tie(TipoAcreditadoID, DescripcionTipoAcreditado); }
  int Clave() const { return TipoAcreditadoID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int TipoAcreditadoID;
  char DescripcionTipoAcreditado[51];
};
