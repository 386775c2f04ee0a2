#include "catalogs/simple/cGrupo.h"

cGrupo::cGrupo(int id, const char* grupo, bool cambiado, bool nuevo) { Toma(cambiado, nuevo, id, grupo); }

bool cGrupo::Check() {
  ExigeTexto(Grupo, "No se especifico la descripcion");
  return true;
}

Sentencia cGrupo::SqlAddNew() const { return Sentencia("select spigrupo('%s');", Grupo); }

Sentencia cGrupo::SqlUpdate() const { return Sentencia("select spugrupo(%i,'%s');", GrupoID, Grupo); }

Sentencia cGrupo::SqlDelete() const { return Sentencia("SELECT spdgrupo(%i);", GrupoID); }

Sentencia cGrupo::SqlFind() const { return Sentencia("SELECT * FROM spsgrupo(%i);", GrupoID); }
