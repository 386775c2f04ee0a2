#include "catalogs/finance/cTasa.h"

#include "framework/Reglas.h"

namespace {

// Both rates are missed in the same words.
const Regla<cTasa> reglas[] = {
    {Vacio<&cTasa::getTipoPrestamoID>, "No ha especificado el tipo de prestamo"},
    {Vacio<&cTasa::getTipoInversionID>, "No ha especificado el tipo de inversion"},
    {Vacio<&cTasa::getTipoMovimientoID>, "No ha especificado el tipo de movimiento"},
    {SinFecha<&cTasa::getFechaInicial>, "No ha especificado la fecha de incio"},
    {NoPositivo<&cTasa::getTasaNormal>, "No ha especificado la Tasa Normal"},
    {NoPositivo<&cTasa::getTasaMoratorio>, "No ha especificado la Tasa Normal"},
};

}  // namespace

cTasa::cTasa(long id, const char* prestamo, const char* inversion, const char* movimiento,
             const date& inicial, const date& final, double normal, double moratorio, bool cambiado,
             bool nuevo) {
  Toma(cambiado, nuevo, id, prestamo, inversion, movimiento, inicial, final, normal, moratorio);
}

bool cTasa::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cTasa::SqlAddNew() const {
  return Sentencia("SELECT spitasa('%s','%s','%s','%.10s','%.10s',%f,%f);", TipoPrestamoID, TipoInversionID,
                   TipoMovimientoID, FechaInicial.AsChar(), FechaFinal.AsChar(), TasaNormal, TasaMoratorio);
}

Sentencia cTasa::SqlUpdate() const {
  return Sentencia("SELECT sputasa(%li,'%s','%s','%s','%.10s','%.10s',%f,%f);", TasaID, TipoPrestamoID,
                   TipoInversionID, TipoMovimientoID, FechaInicial.AsChar(), FechaFinal.AsChar(), TasaNormal,
                   TasaMoratorio);
}

Sentencia cTasa::SqlDelete() const { return Sentencia("SELECT spdtasa(%li);", TasaID); }

Sentencia cTasa::SqlFind() const { return Sentencia("SELECT * FROM spstasa(%li);", TasaID); }
