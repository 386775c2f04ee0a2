#include "catalogs/simple/cTipoMoviBanco.h"

cTipoMoviBanco::cTipoMoviBanco(const char* id, const char* descri, const char* operacion, bool cambiado,
                               bool nuevo) {
  Toma(cambiado, nuevo, id, descri, operacion);
}

bool cTipoMoviBanco::Check() {
  ExigeTexto(TipoMoviBancoID, "No se especifico la clave");
  ExigeTexto(DescriTipoMoviBanco, "No ha especificado la descripción");
  ExigeTexto(OperacionSumaResta, "No se ha especificado el tipo de operacion del movimiento");
  return true;
}

Sentencia cTipoMoviBanco::SqlAddNew() const {
  return Sentencia("select spitipomovibanco('%s','%s','%s');", TipoMoviBancoID, DescriTipoMoviBanco,
                   OperacionSumaResta);
}

Sentencia cTipoMoviBanco::SqlUpdate() const {
  return Sentencia("select sputipomovibanco('%s','%s','%s');", TipoMoviBancoID, DescriTipoMoviBanco,
                   OperacionSumaResta);
}

Sentencia cTipoMoviBanco::SqlDelete() const {
  return Sentencia("SELECT spdtipomovibanco('%s');", TipoMoviBancoID);
}

Sentencia cTipoMoviBanco::SqlFind() const {
  return Sentencia("SELECT * FROM spstipomovibanco('%s');", TipoMoviBancoID);
}
