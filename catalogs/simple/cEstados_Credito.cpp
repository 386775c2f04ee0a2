#include "catalogs/simple/cEstados_Credito.h"

cEstados_Credito::cEstados_Credito(const char* clave, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, clave, descri);
}

bool cEstados_Credito::Check() {
  ExigeTexto(ClaveEstadoCredito, "No se especifico la clave");
  ExigeTexto(DescripcionEdoCredito, "No ha especificado la descripción");
  return true;
}

Sentencia cEstados_Credito::SqlAddNew() const {
  return Sentencia("select spiestados_credito('%s','%s');", ClaveEstadoCredito, DescripcionEdoCredito);
}

Sentencia cEstados_Credito::SqlUpdate() const {
  return Sentencia("select spuestados_credito('%s','%s');", ClaveEstadoCredito, DescripcionEdoCredito);
}

Sentencia cEstados_Credito::SqlDelete() const {
  return Sentencia("SELECT spdestados_credito('%s');", ClaveEstadoCredito);
}

Sentencia cEstados_Credito::SqlFind() const {
  return Sentencia("SELECT * FROM spsestados_credito('%s');", ClaveEstadoCredito);
}
