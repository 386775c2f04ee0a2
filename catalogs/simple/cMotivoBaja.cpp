#include "catalogs/simple/cMotivoBaja.h"

cMotivoBaja::cMotivoBaja(int id, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, descri);
}

bool cMotivoBaja::Check() {
  ExigeTexto(DescripcionMotivo, "No se especifico la descripcion");
  return true;
}

Sentencia cMotivoBaja::SqlAddNew() const {
  return Sentencia("select spimotivobaja('%s');", DescripcionMotivo);
}

Sentencia cMotivoBaja::SqlUpdate() const {
  return Sentencia("select spumotivobaja(%i,'%s');", MotivoBajaID, DescripcionMotivo);
}

Sentencia cMotivoBaja::SqlDelete() const { return Sentencia("SELECT spdmotivobaja(%i);", MotivoBajaID); }

Sentencia cMotivoBaja::SqlFind() const { return Sentencia("SELECT * FROM spsmotivobaja(%i);", MotivoBajaID); }
