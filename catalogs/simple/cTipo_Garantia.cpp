#include "catalogs/simple/cTipo_Garantia.h"

cTipo_Garantia::cTipo_Garantia(const char* clave, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, clave, descri);
}

bool cTipo_Garantia::Check() {
  ExigeTexto(ClaveGarantia, "No se especifico la clave");
  ExigeTexto(DescripcionGarantia, "No ha especificado la descripción");
  return true;
}

Sentencia cTipo_Garantia::SqlAddNew() const {
  return Sentencia("select spitipo_garantia('%s','%s');", ClaveGarantia, DescripcionGarantia);
}

Sentencia cTipo_Garantia::SqlUpdate() const {
  return Sentencia("select sputipo_garantia('%s','%s');", ClaveGarantia, DescripcionGarantia);
}

Sentencia cTipo_Garantia::SqlDelete() const {
  return Sentencia("SELECT spdtipo_garantia('%s');", ClaveGarantia);
}

Sentencia cTipo_Garantia::SqlFind() const {
  return Sentencia("SELECT * FROM spstipo_garantia('%s');", ClaveGarantia);
}
