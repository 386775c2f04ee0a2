#include "catalogs/finance/cUdis.h"

#include "framework/Reglas.h"

namespace {

const Regla<cUdis> reglas[] = {
    {SinFecha<&cUdis::getFecha>, "No ha especificado la fecha"},
    {Negativo<&cUdis::getValor>, "El valor no puede ser negativo"},
};

}  // namespace

cUdis::cUdis(const date& fecha, double valor, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, fecha, valor);
}

bool cUdis::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cUdis::SqlAddNew() const { return Sentencia("select spiudis('%.10s',%f);", Fecha.AsChar(), Valor); }

Sentencia cUdis::SqlUpdate() const { return Sentencia("select spuudis('%.10s',%f);", Fecha.AsChar(), Valor); }

Sentencia cUdis::SqlDelete() const { return Sentencia("SELECT spdudis('%.10s');", Fecha.AsChar()); }

Sentencia cUdis::SqlFind() const { return Sentencia("SELECT * FROM spsudis('%.10s');", Fecha.AsChar()); }
