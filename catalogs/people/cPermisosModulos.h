// A user's permission on a module: the row that the user form edits, and the question that guards every
// option.
#pragma once

#include "framework/Registro.h"

class cPermisosModulos : public Registro<cPermisosModulos> {
 public:
  cPermisosModulos() { Clear(); }
  cPermisosModulos(long id, const char* claveModulo, const char* usuarioID, const char* permiso,
                   const char* descripcionModulo, bool dataChanged, bool isNew, bool deleted);

  /// May `usuario` use `modulo`? Asks the server at each call, traces the statement and caches nothing. No
  /// row, a failed query and the letter "N" deny; every other letter grants. Never throws.
  bool Acceso(const char* usuario, const char* modulo);

  void setPermisoModuloID(long valor) { Pon(PermisoModuloID, valor); }
  void setClaveModulo(const char* valor) { Pon(ClaveModulo, valor); }
  void setUsuarioID(const char* valor) { Pon(UsuarioID, valor); }
  void setPermiso(const char* valor) { Pon(Permiso, valor); }
  void setDescripcionModulo(const char* valor) { Pon(DescripcionModulo, valor); }
  void setDeleted(bool valor) { deleted = valor; }

  long getPermisoModuloID() const { return PermisoModuloID; }
  const char* getClaveModulo() const { return ClaveModulo; }
  const char* getUsuarioID() const { return UsuarioID; }
  const char* getPermiso() const { return Permiso; }
  const char* getDescripcionModulo() const { return DescripcionModulo; }
  bool Deleted() const { return deleted; }

  /// As in every record; also the row is not to be deleted.
  void Fill(int fila);
  /// Always true.
  bool Check() { return true; }

 private:
  friend Registro<cPermisosModulos>;

  auto Columnas() { return std::tie(PermisoModuloID, ClaveModulo, UsuarioID, Permiso, DescripcionModulo); }
  long Clave() const { return PermisoModuloID; }
  bool HayClaveFind() const { return PermisoModuloID != 0; }
  void AlInsertar() { TomaClave(PermisoModuloID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  long PermisoModuloID;
  char ClaveModulo[11];
  char UsuarioID[21];
  char Permiso[2];
  char DescripcionModulo[81];
  bool deleted = false;  // to be deleted when its user is saved
};
