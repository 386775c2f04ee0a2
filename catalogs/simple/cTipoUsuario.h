// A kind of user: what the staff does.
#pragma once

#include "framework/Registro.h"

class cTipoUsuario : public Registro<cTipoUsuario, EngineVirtual> {
 public:
  cTipoUsuario() { Clear(); }
  cTipoUsuario(const char* id, const char* descri, bool dataChanged, bool isNew);

  /// Key of 3 characters, stored with blanks behind it.
  void setTipoUsuarioID(const char* valor) { PonRellenado(TipoUsuarioID, 3, valor); }
  void setDescripcionTipoUsuario(const char* valor) { Pon(DescripcionTipoUsuario, valor); }

  const char* getTipoUsuarioID() const { return TipoUsuarioID; }
  const char* getDescripcionTipoUsuario() const { return DescripcionTipoUsuario; }

  bool Check();
  const char* clase() const { return "TipoUsuario"; }

 private:
  friend Registro<cTipoUsuario, EngineVirtual>;

  auto Columnas() { return std::tie(TipoUsuarioID, DescripcionTipoUsuario); }
  const char* Clave() const { return TipoUsuarioID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char TipoUsuarioID[4];
  char DescripcionTipoUsuario[21];
};
