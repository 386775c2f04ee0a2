#include "catalogs/simple/cTipoAcreditadoR.h"

cTipoAcreditadoR::cTipoAcreditadoR(int id, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, descri);
}

bool cTipoAcreditadoR::Check() {
  ExigeTexto(DescripcionTipoAcreditado, "No describio  el Tipo Acreditado");
  return true;
}

Sentencia cTipoAcreditadoR::SqlAddNew() const {
  return Sentencia("select spitipiacreditador(%i,'%s');", TipoAcreditadoID, DescripcionTipoAcreditado);
}

Sentencia cTipoAcreditadoR::SqlUpdate() const {
  return Sentencia("select sputipoacreditador(%i,'%s');", TipoAcreditadoID, DescripcionTipoAcreditado);
}

Sentencia cTipoAcreditadoR::SqlDelete() const {
  return Sentencia("SELECT spdtipoacreditador(%i);", TipoAcreditadoID);
}

Sentencia cTipoAcreditadoR::SqlFind() const {
  return Sentencia("SELECT * FROM spstipoacreditador(%i);", TipoAcreditadoID);
}
