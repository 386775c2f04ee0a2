#include "catalogs/simple/cOcupacion.h"

cOcupacion::cOcupacion(int id, const char* ocupacion, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, ocupacion);
}

bool cOcupacion::Check() {
  ExigeTexto(Ocupacion, "No se especifico la descripcion");
  return true;
}

Sentencia cOcupacion::SqlAddNew() const { return Sentencia("select spiocupacion('%s');", Ocupacion); }

Sentencia cOcupacion::SqlUpdate() const {
  return Sentencia("select spuocupacion(%i,'%s');", OcupacionID, Ocupacion);
}

Sentencia cOcupacion::SqlDelete() const { return Sentencia("SELECT spdocupacion(%i);", OcupacionID); }

Sentencia cOcupacion::SqlFind() const { return Sentencia("SELECT * FROM spsocupacion(%i);", OcupacionID); }
