#include "catalogs/people/cColonia.h"

cColonia::cColonia(long id, int ciudadMexID, const char* nombre, long cp, int tipoAsentamientoID,
                   bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, ciudadMexID, nombre, cp, tipoAsentamientoID);
}

bool cColonia::Check() {
  if (CiudadMexID < 1) Lanza("El se especifico la clave de la ciudad");
  ExigeTexto(NombreColonia, "No se especifico el nombre de la colonia");
  if (CP < 1) Lanza("El codigo postal no se ha especificado");
  if (TipoAsentamientoID <= 0) Lanza("El tipo de asentamiento no se ha especificado");
  return true;
}

Sentencia cColonia::SqlAddNew() const {
  return Sentencia("select spicolonia(%i,'%s',%li,%i);", CiudadMexID, NombreColonia, CP, TipoAsentamientoID);
}

Sentencia cColonia::SqlUpdate() const {
  return Sentencia("select spucolonia(%li,%i,'%s',%li,%i);", ColoniaID, CiudadMexID, NombreColonia, CP,
                   TipoAsentamientoID);
}

Sentencia cColonia::SqlDelete() const { return Sentencia("SELECT spdcolonia(%li);", ColoniaID); }

Sentencia cColonia::SqlFind() const { return Sentencia("SELECT * FROM spscolonia(%li);", ColoniaID); }
