#include "catalogs/people/cEstadoMex.h"

cEstadoMex::cEstadoMex(int id, const char* clave, const char* nombre, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, clave, nombre);
}

bool cEstadoMex::Check() {
  ExigeTexto(ClaveEstadoMex, "No se especifico la clave");
  ExigeTexto(NombreEstadoMex, "No ha especificado el nombre");
  return true;
}

Sentencia cEstadoMex::SqlAddNew() const {
  return Sentencia("select spiestadomex('%s','%s');", ClaveEstadoMex, NombreEstadoMex);
}

Sentencia cEstadoMex::SqlUpdate() const {
  return Sentencia("select spuestadomex('%s','%s',%i);", ClaveEstadoMex, NombreEstadoMex, EstadoMexID);
}

Sentencia cEstadoMex::SqlDelete() const { return Sentencia("SELECT spdestadomex(%i);", EstadoMexID); }

Sentencia cEstadoMex::SqlFind() const { return Sentencia("SELECT * FROM spsestadomex(%i);", EstadoMexID); }
