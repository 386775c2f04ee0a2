#include "catalogs/finance/cTipoMovimiento.h"

#include "framework/Reglas.h"

namespace {

using T = cTipoMovimiento;

// Two rules speak of the ISR account in the same words.
const Regla<T> reglas[] = {
    {Vacio<&T::getTipoMovimientoID>, "No se especifico la clave"},
    {Vacio<&T::getDescTipoMovimiento>, "No ha especificado la descripción"},
    {Vacio<&T::getAplicaSaldo>, "No ha especificado si el movimiento aplica al saldo"},
    {Vacio<&T::getCuentaDeposito>, "No ha especificado la cuenta de deposito"},
    {NoAfectable<&T::getCuentaDeposito>, "La cuenta de deposito debe ser afectable"},
    {Vacio<&T::getCuentaRetiro>, "No ha especificado la cuenta de retiro"},
    {NoAfectable<&T::getCuentaRetiro>, "La cuenta de retiro debe ser afectable"},
    {Vacio<&T::getCuentaIntPagado>, "No ha especificado la cuenta de int. pagado"},
    {NoAfectable<&T::getCuentaIntPagado>, "La cuenta de interes pagado debe ser afectable"},
    {Vacio<&T::getCuentaIntCobrado>, "No ha especificado la cuenta de int. cobrado"},
    {NoAfectable<&T::getCuentaIntCobrado>, "La cuenta de cuenta de interes cobrado debe ser afectable"},
    {Vacio<&T::getCuentaIvaMovimiento>, "No ha especificado la cuenta de iva del movimiento"},
    {NoAfectable<&T::getCuentaIvaMovimiento>, "La cuenta de iva debe ser afectable"},
    {Vacio<&T::getCuentaISR>, "Falta capturar Cuenta de ISR"},
    {NoAfectable<&T::getCuentaISR>, "La cuenta de ISR debe ser afectable"},
    {Vacio<&T::getTipoPoliza>, "No ha especificado el tipo de la poliza"},
    {Vacio<&T::getAceptaDeposito>, "No ha especificado si Acepta ó NO Depositos"},
    {Vacio<&T::getAceptaRetiro>, "No ha especificado si Acepta ó NO Retiro"},
    {Negativo<&T::getTasaInteres>, "La tasa de interes debe ser mayor o igual a cero"},
    {NoAfectable<&T::getCuentaOrdenAcredor>, "La cuenta de cuenta de orden acredor debe ser afectable"},
    {NoAfectable<&T::getCuentaOrdenDeudor>, "La cuenta de cuenta de orden deudor debe ser afectable"},
    {Vacio<&T::getCuentaOrden>, "No ha especificado si maneja cuentas de orden"},
    {Vacio<&T::getCuentaProvisionISR>, "Falta capturar Cuenta de ISR"},
    {NoAfectable<&T::getCuentaProvisionISR>, "La cuenta de Provision de ISR debe ser afectable"},
    {Negativo<&T::getComision>, "La comision debe ser mayor o igual a cero"},
    {Negativo<&T::getPorComision>, "La tasa de comision debe ser mayor o igual a cero"},
    {Negativo<&T::getPorIvaComision>, "La tasa de Iva de la comision debe ser mayor o igual a cero"},
    {Vacio<&T::getCuentaComision>, "Falta capturar Cuenta de Comision"},
    {Vacio<&T::getCuentaIvaComision>, "Falta capturar Cuenta de IVA Comision"},
    {Negativo<&T::getDesglosaIva>, "No ha especificado la forma de cobro del IVA"},
};

}  // namespace

bool cTipoMovimiento::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cTipoMovimiento::SqlDelete() const {
  return Sentencia("SELECT spdtipomovimiento('%s');", TipoMovimientoID);
}

Sentencia cTipoMovimiento::SqlFind() const {
  return Sentencia("SELECT * FROM spstipomovimiento('%s');", TipoMovimientoID);
}

Sentencia cTipoMovimiento::SqlEscritura(const char* funcion) {
  const auto formatea = [funcion](const auto&... campo) {
    return Sentencia(
        "select "
        "%s('%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s',%f,'%s','%s','%s','%s',%f,%f,%f,"
        "'%s','%s',%i);",
        funcion, campo...);
  };
  return std::apply(formatea, Miembros());
}
