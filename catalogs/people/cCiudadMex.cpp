#include "catalogs/people/cCiudadMex.h"

cCiudadMex::cCiudadMex(int id, const char* clave, const char* nombre, int estadoMexID, bool cambiado,
                       bool nuevo) {
  Toma(cambiado, nuevo, id, estadoMexID, clave, nombre);
}

bool cCiudadMex::Check() {
  ExigeTexto(ClaveCiudadMex, "No se especifico la clave");
  ExigeTexto(NombreCiudadMex, "No ha especificado el nombre");
  if (EstadoMexID <= 0) Lanza("No ha especificado el Estado al cual pertenece");
  return true;
}

Sentencia cCiudadMex::SqlAddNew() const {
  return Sentencia("select spiciudadmex(%i,'%s','%s');", EstadoMexID, ClaveCiudadMex, NombreCiudadMex);
}

/// The key goes last, behind the state.
Sentencia cCiudadMex::SqlUpdate() const {
  return Sentencia("select spuciudadmex('%s','%s',%i,%i);", ClaveCiudadMex, NombreCiudadMex, EstadoMexID,
                   CiudadMexID);
}

Sentencia cCiudadMex::SqlDelete() const { return Sentencia("SELECT spdciudadmex(%i);", CiudadMexID); }

Sentencia cCiudadMex::SqlFind() const { return Sentencia("SELECT * FROM spsciudadmex(%i);", CiudadMexID); }
