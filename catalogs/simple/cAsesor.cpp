#include "catalogs/simple/cAsesor.h"

cAsesor::cAsesor(int id, const char* nombre, bool cambiado, bool nuevo) { Toma(cambiado, nuevo, id, nombre); }

bool cAsesor::Check() {
  ExigeTexto(NomAsesor, "No ha especificado el nombre del asesor");
  return true;
}

Sentencia cAsesor::SqlAddNew() const { return Sentencia("select spiasesor(%i,'%s');", AsesorID, NomAsesor); }

Sentencia cAsesor::SqlUpdate() const { return Sentencia("select spuasesor(%i,'%s');", AsesorID, NomAsesor); }

Sentencia cAsesor::SqlDelete() const { return Sentencia("SELECT spdasesor(%i);", AsesorID); }

Sentencia cAsesor::SqlFind() const { return Sentencia("SELECT * FROM spsasesor(%i);", AsesorID); }
