#include "catalogs/finance/cTipoPromocion.h"

#include "framework/Reglas.h"

namespace {

using T = cTipoPromocion;

const Regla<T> reglas[] = {
    {Vacio<&T::getTipoMovimientoID>, "No ha especificado el Tipo de movimiento"},
    {SinFecha<&T::getFechaInicial>, "No ha especificado la fecha de incio"},
    {Vacio<&T::getCondicion>, "No ha especificado la condicion"},
    {Negativo<&T::getEstatus>, "No ha especificado el Estatus"},
    {Vacio<&T::getDescripcion>, "No ha especificado la descripcion"},
};

}  // namespace

cTipoPromocion::cTipoPromocion(int id, const char* tipoMovimientoID, const date& fechaInicial,
                               const date& fechaFinal, const char* condicion, int estatus,
                               const char* descripcion, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, tipoMovimientoID, fechaInicial, fechaFinal, condicion, estatus, descripcion);
}

void cTipoPromocion::Clear() {
  Registro::Clear();
  FechaInicial = FechaFinal = date("");
}

bool cTipoPromocion::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cTipoPromocion::SqlAddNew() const {
  return Sentencia("SELECT spitipopromocion('%s','%.10s','%.10s','%s',%i,'%s');", TipoMovimientoID,
                   FechaInicial.AsChar(), FechaFinal.AsChar(), Condicion, Estatus, Descripcion);
}

// Without a final date the server takes one argument less.
Sentencia cTipoPromocion::SqlUpdate() const {
  const bool abierta = strcmp(FechaFinal.AsChar(), "0000-00-00") == 0;
  const Sentencia hasta = abierta ? Sentencia("%s", "") : Sentencia("'%.10s',", FechaFinal.AsChar());
  return Sentencia("SELECT sputipopromocion(%i,'%s','%.10s',%s'%s',%i,'%s');", TipoPromocionID,
                   TipoMovimientoID, FechaInicial.AsChar(), hasta.Texto(), Condicion, Estatus, Descripcion);
}

Sentencia cTipoPromocion::SqlDelete() const {
  return Sentencia("SELECT spdtipopromocion(%i);", TipoPromocionID);
}

Sentencia cTipoPromocion::SqlFind() const {
  return Sentencia("SELECT * FROM spstipopromocion(%i);", TipoPromocionID);
}
