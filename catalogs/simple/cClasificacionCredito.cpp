#include "catalogs/simple/cClasificacionCredito.h"

cClasificacionCredito::cClasificacionCredito(int id, const char* descri, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, descri);
}

bool cClasificacionCredito::Check() {
  ExigeTexto(Descripcion, "No se especifico la descripcion");
  return true;
}

Sentencia cClasificacionCredito::SqlAddNew() const {
  return Sentencia("select spiclasificacioncredito('%s');", Descripcion);
}

Sentencia cClasificacionCredito::SqlUpdate() const {
  return Sentencia("select spuclasificacioncredito(%i,'%s');", ClasificacionCreditoID, Descripcion);
}

Sentencia cClasificacionCredito::SqlDelete() const {
  return Sentencia("SELECT spdclasificacioncredito(%i);", ClasificacionCreditoID);
}

Sentencia cClasificacionCredito::SqlFind() const {
  return Sentencia("SELECT * FROM spsclasificacioncredito(%i);", ClasificacionCreditoID);
}
