#include "catalogs/simple/cFinalidades.h"

cFinalidades::cFinalidades(const char* clave, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, clave, descri);
}

bool cFinalidades::Check() {
  ExigeTexto(ClaveFinalidad, "No se especifico la clave");
  ExigeTexto(DescripcionFinalidad, "No ha especificado la descripción");
  return true;
}

Sentencia cFinalidades::SqlAddNew() const {
  return Sentencia("select spiFinalidades('%s','%s');", ClaveFinalidad, DescripcionFinalidad);
}

Sentencia cFinalidades::SqlUpdate() const {
  return Sentencia("select spufinalidades('%s','%s');", ClaveFinalidad, DescripcionFinalidad);
}

Sentencia cFinalidades::SqlDelete() const {
  return Sentencia("SELECT spdfinalidades('%s');", ClaveFinalidad);
}

Sentencia cFinalidades::SqlFind() const {
  return Sentencia("SELECT * FROM spsfinalidades('%s');", ClaveFinalidad);
}
