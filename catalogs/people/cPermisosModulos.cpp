#include "catalogs/people/cPermisosModulos.h"

cPermisosModulos::cPermisosModulos(long id, const char* claveModulo, const char* usuarioID,
                                   const char* permiso, const char* descripcionModulo, bool cambiado,
                                   bool nuevo, bool borrado) {
  Toma(cambiado, nuevo, id, claveModulo, usuarioID, permiso, descripcionModulo);
  deleted = borrado;
}

bool cPermisosModulos::Acceso(const char* usuario, const char* modulo) {
  if (!LeeFila(Sentencia("SELECT * FROM spspermisomodulo('%s','%s');", usuario, modulo), true)) {
    isNew = true;
    return false;
  }
  Fill(0);
  LiberaResultado();
  return strcmp(Permiso, "N") != 0;
}

void cPermisosModulos::Fill(int fila) {
  Registro::Fill(fila);
  deleted = false;
}

Sentencia cPermisosModulos::SqlAddNew() const {
  return Sentencia("select spipermisomodulo('%s','%s','%s');", ClaveModulo, UsuarioID, Permiso);
}

Sentencia cPermisosModulos::SqlUpdate() const {
  return Sentencia("select spupermisomodulo(%li,'%s','%s','%s');", PermisoModuloID, ClaveModulo, UsuarioID,
                   Permiso);
}

Sentencia cPermisosModulos::SqlDelete() const {
  return Sentencia("SELECT spdpermisosmodulos(%li);", PermisoModuloID);
}

Sentencia cPermisosModulos::SqlFind() const {
  return Sentencia("SELECT * FROM spspermisosmodulos(%li);", PermisoModuloID);
}
