#include "catalogs/simple/cTipoSocio.h"

cTipoSocio::cTipoSocio(const char* id, const char* descri, const char* observaciones, bool cambiado,
                       bool nuevo) {
  Toma(cambiado, nuevo, id, descri, observaciones);
}

bool cTipoSocio::Check() {
  ExigeTexto(DescriTipoSocio, "No se especifico la descripciòn del socio");
  ExigeTexto(TipoSocioID, "No ha especifico el identipicador");
  return true;
}

Sentencia cTipoSocio::SqlAddNew() const {
  return Sentencia("select spitiposocio('%s','%s','%s');", TipoSocioID, DescriTipoSocio, Observaciones);
}

Sentencia cTipoSocio::SqlUpdate() const {
  char cortadas[201];  // an update sends less than the record holds, in whole characters
  CopiaTexto(cortadas, Observaciones);
  return Sentencia("select sputiposocio('%s','%s','%.200s');", TipoSocioID, DescriTipoSocio, cortadas);
}

Sentencia cTipoSocio::SqlDelete() const { return Sentencia("SELECT spdtiposocio('%s');", TipoSocioID); }

Sentencia cTipoSocio::SqlFind() const { return Sentencia("SELECT * FROM spstiposocio('%s');", TipoSocioID); }
