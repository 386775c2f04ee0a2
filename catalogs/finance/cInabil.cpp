#include "catalogs/finance/cInabil.h"

cInabil::cInabil(const date& fecha, bool cambiado, bool nuevo) { Toma(cambiado, nuevo, fecha); }

bool cInabil::Check() {
  if (FaltaFecha(Fecha)) Lanza("No ha especificado la fecha");
  return true;
}

Sentencia cInabil::SqlAddNew() const {
  return Sentencia("insert into inabil values('%.10s');", Fecha.AsChar());
}

// Without the last quote: the server refuses every change of a day, which is to be deleted and added instead.
Sentencia cInabil::SqlUpdate() const {
  return Sentencia("update inabil set fecha='%.10s' where fecha='%.10s;", Fecha.AsChar(), Fecha.AsChar());
}

Sentencia cInabil::SqlDelete() const {
  return Sentencia("delete from inabil where fecha='%.10s';", Fecha.AsChar());
}

Sentencia cInabil::SqlFind() const {
  return Sentencia("SELECT * FROM inabil where fecha='%.10s';", Fecha.AsChar());
}
