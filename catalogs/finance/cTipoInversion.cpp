#include "catalogs/finance/cTipoInversion.h"

#include <iostream>

#include "framework/Reglas.h"

namespace {

using T = cTipoInversion;

// Several messages are those of the movement type, whatever the column is.
const Regla<T> reglas[] = {
    {Vacio<&T::getTipoInversionID>, "No se especifico la clave"},
    {Vacio<&T::getDescTipoInversion>, "No ha especificado la descripción"},
    {NoPositivo<&T::getTasa_Normal>, "La tasa debe ser mayor a 0"},
    {NoPositivo<&T::getPlazo>, "El plazo minimo debe ser mayor que 0"},
    {Vacio<&T::getCuentaPasivo>, "No ha especificado la cuenta de deposito"},
    {NoAfectable<&T::getCuentaPasivo>, "La cuenta de pasivo debe ser afectable"},
    {Vacio<&T::getCuentaPasivoVencida>, "No ha especificado la cuenta de retiro"},
    {NoAfectable<&T::getCuentaPasivoVencida>, "La cuenta de pasivo vencida debe ser afectable"},
    {Vacio<&T::getCuentaIntInver>, "No ha especificado la cuenta de int. pagado"},
    {Vacio<&T::getCuentaProvisionISR>, "No ha especificado la cuenta de provision de ISR"},
    {NoAfectable<&T::getCuentaIntInver>, "La cuenta de interes de la inversión debe ser afectable"},
    {Vacio<&T::getCuentaIntInverNoCob>, "No ha especificado la cuenta de int. cobrado"},
    {NoAfectable<&T::getCuentaIntInverNoCob>, "La cuenta de int. inversion no cobrado debe ser afectable"},
    {Vacio<&T::getCuentaIvaInver>, "No ha especificado la cuenta de iva del movimiento"},
    {NoAfectable<&T::getCuentaIvaInver>, "La cuenta de iva de la inversion debe ser afectable"},
    {Vacio<&T::getCuentaRiesgoCred>, "Falta capturar Cuenta de riesgo crediticio"},
    {NoAfectable<&T::getCuentaRiesgoCred>, "La cuenta de riesgo crediticio debe ser afectable"},
    {Vacio<&T::getAplicaIvaInversion>, "No ha especificado el tipo de la poliza"},
    {NoPositivo<&T::getCalculoID>, "No ha seleccionado la formula para calculo del interes"},
    {NoAfectable<&T::getCuentaProvisionISR>, "La cuenta de interes de la inversión debe ser afectable"},
    {Negativo<&T::getClasificacionID>, "No ha especificado la Clasificación del Tipo de Inversión"},
};

const Regla<T> reglasDeLimites[] = {
    {NoPositivo<&T::getMontoMax>, "El monto maximo debe ser mayor que 0"},
    {NoPositivo<&T::getMontoMin>, "El monto minimo debe ser mayor que 0"},
    {[](const T& t) { return t.getMontoMin() > t.getMontoMax(); },
     "El monto minimo no puede ser mayor al monto maximo"},
    {NoPositivo<&T::getPlazoMax>, "El plazo maximo debe ser mayor que 0"},
};

}  // namespace

bool cTipoInversion::Check() {
  ExigeReglas(*this, reglas);
  std::cout << "fMontoMax: " << MontoMax << ", fMontoMin: " << MontoMin << std::endl;
  ExigeReglas(*this, reglasDeLimites);
  return true;
}

Sentencia cTipoInversion::SqlDelete() const {
  return Sentencia("SELECT spdtipoinversion('%s');", TipoInversionID);
}

Sentencia cTipoInversion::SqlFind() const {
  return Sentencia("SELECT * FROM spstipoinversion('%s');", TipoInversionID);
}

Sentencia cTipoInversion::SqlEscritura(const char* funcion) {
  const auto formatea = [funcion](const auto&... columna) {
    return Sentencia(
        "select %s('%s','%s','%s',%i,'%s','%s','%s','%s','%s',%f,%i,'%s',%i,%i,'%s','%s',%i,%f,%f,%i);",
        funcion, columna...);
  };
  return std::apply(formatea, Columnas());
}
