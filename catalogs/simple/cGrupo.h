// A group of members who are attended together.
#pragma once

#include "framework/Registro.h"

class cGrupo : public Registro<cGrupo> {
 public:
  cGrupo() { Clear(); }
  cGrupo(int id, const char* grupo, bool dataChanged, bool isNew);

  void setGrupoID(int valor) { Pon(GrupoID, valor); }
  /// Stored with blanks behind it up to 3 characters.
  void setGrupo(const char* valor) { PonRellenado(Grupo, 3, valor); }

  int getGrupoID() const { return GrupoID; }
  const char* getGrupo() const { return Grupo; }

  bool Check();
  const char* clase() const { return "Grupo"; }

 private:
  friend Registro<cGrupo>;

  auto Columnas() { return std::tie(GrupoID, Grupo); }
  int Clave() const { return GrupoID; }
  void AlInsertar() { TomaClave(GrupoID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int GrupoID;
  char Grupo[26];
};
