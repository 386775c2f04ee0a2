#include "catalogs/simple/cTipoUsuario.h"

cTipoUsuario::cTipoUsuario(const char* id, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, descri);
}

bool cTipoUsuario::Check() {
  ExigeTexto(TipoUsuarioID, "No se especifico la clave");
  ExigeTexto(DescripcionTipoUsuario, "No ha especificado el descripcion");
  return true;
}

Sentencia cTipoUsuario::SqlAddNew() const {
  return Sentencia("select spitipousuario('%s','%s');", TipoUsuarioID, DescripcionTipoUsuario);
}

Sentencia cTipoUsuario::SqlUpdate() const {
  return Sentencia("select sputipousuario('%s','%s');", TipoUsuarioID, DescripcionTipoUsuario);
}

Sentencia cTipoUsuario::SqlDelete() const { return Sentencia("SELECT spdtipousuario('%s');", TipoUsuarioID); }

Sentencia cTipoUsuario::SqlFind() const {
  return Sentencia("SELECT * FROM spstipousuario('%s');", TipoUsuarioID);
}
