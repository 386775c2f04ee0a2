// A kind of movement of a bank account.
#pragma once

#include "framework/Registro.h"

class cTipoMoviBanco : public Registro<cTipoMoviBanco, EngineVirtual> {
 public:
  cTipoMoviBanco() { Clear(); }
  cTipoMoviBanco(const char* id, const char* descri, const char* operacion, bool dataChanged, bool isNew);

  /// Key of 2 characters, stored with blanks behind it.
  void setTipoMoviBancoID(const char* valor) { PonRellenado(TipoMoviBancoID, 2, valor); }
  void setDescriTipoMoviBanco(const char* valor) { Pon(DescriTipoMoviBanco, valor); }
  /// "+" or "-".
  void setOperacionSumaResta(const char* valor) { Pon(OperacionSumaResta, valor); }

  const char* getTipoMoviBancoID() const { return TipoMoviBancoID; }
  const char* getDescriTipoMoviBanco() const { return DescriTipoMoviBanco; }
  const char* getOperacionSumaResta() const { return OperacionSumaResta; }

  bool Check();
  const char* clase() const { return "Tipo de Movimientos Bancarios"; }

 private:
  friend Registro<cTipoMoviBanco, EngineVirtual>;

  auto Columnas() { return std::tie(TipoMoviBancoID, DescriTipoMoviBanco, OperacionSumaResta); }
  const char* Clave() const { return TipoMoviBancoID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char TipoMoviBancoID[3];
  char DescriTipoMoviBanco[31];
  char OperacionSumaResta[2];
};
