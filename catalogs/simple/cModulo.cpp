#include "catalogs/simple/cModulo.h"

cModulo::cModulo(const char* clave, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, clave, descri);
}

bool cModulo::Check() {
  ExigeTexto(ClaveModulo, "No se especifico la clave");
  ExigeTexto(DescriModulo, "No ha especificado el descripcion");
  return true;
}

Sentencia cModulo::SqlAddNew() const {
  return Sentencia("select spimodulo('%s','%s');", ClaveModulo, DescriModulo);
}

Sentencia cModulo::SqlUpdate() const {
  return Sentencia("select spumodulo('%s','%s');", ClaveModulo, DescriModulo);
}

Sentencia cModulo::SqlDelete() const { return Sentencia("SELECT spdmodulo('%s');", ClaveModulo); }

Sentencia cModulo::SqlFind() const { return Sentencia("SELECT * FROM spsmodulo('%s');", ClaveModulo); }
