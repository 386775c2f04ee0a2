#include "catalogs/simple/cTipoAsentamiento.h"

cTipoAsentamiento::cTipoAsentamiento(long id, const char* asentamiento, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, asentamiento);
}

bool cTipoAsentamiento::Check() {
  ExigeTexto(Asentamiento, "No describio el Asentamiento");
  return true;
}

Sentencia cTipoAsentamiento::SqlAddNew() const {
  return Sentencia("select spitipoasentamiento(%li,'%s');", TipoAsentamientoID, Asentamiento);
}

Sentencia cTipoAsentamiento::SqlUpdate() const {
  return Sentencia("select sputipoasentamiento(%li,'%s');", TipoAsentamientoID, Asentamiento);
}

Sentencia cTipoAsentamiento::SqlDelete() const {
  return Sentencia("SELECT spdtipoasentamiento(%li);", TipoAsentamientoID);
}

Sentencia cTipoAsentamiento::SqlFind() const {
  return Sentencia("SELECT * FROM spsasentamiento(%li);", TipoAsentamientoID);
}
