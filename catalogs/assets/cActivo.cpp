#include "catalogs/assets/cActivo.h"

#include "framework/Reglas.h"

namespace {

using T = cActivo;

/// A date that was never given: that of a blank record, or that of an empty text. Others, whether they are
/// days of the calendar or not, are the server's to judge.
template <auto get>
bool SinInicio(const T& activo) {
  const date inicio = (activo.*get)();
  return inicio == date() || (inicio.year() == 0 && inicio.month() == 0 && inicio.day() == 0);
}

const Regla<T> reglas[] = {
    {Cero<&T::getDepreciacionID>, "No ha especificado el tipo de depreciación"},
    {Vacio<&T::getActivoClave>, "No ha especificado la clave"},
    {Vacio<&T::getActivoDescripcion>, "No ha especificado la descripción"},
    {Negativo<&T::getActivo_Valor>, "El valor no puede ser negativo"},
    {Negativo<&T::getPorcenVidaUtil>, "El Porcentaje de Vida Util no puede ser negativo"},
    {Negativo<&T::getValorMercado>, "El valor de mercado no puede ser negativo"},
    {Vacio<&T::getLocalizacion>, "No ha especificado la localización"},
    {Vacio<&T::getActivoNoSerie>, "No ha especificado el número de serie"},
    {SinInicio<&T::getFecInicioDepConta>, "No ha especificado la fecha de inicio de depreciación contable"},
    {Negativo<&T::getActivoTasaConta>, "La tasa contable no puede ser negativa"},
    {Negativo<&T::getActDepreAcumConta>, "La depreciación acumulada contable no puede ser negativo"},
    {Negativo<&T::getActMetodoDepreConta>, "El metodo de depreciacion contable no puede ser nulo"},
    {SinInicio<&T::getFecInicioDepFiscal>, "No ha especificado la fecha de inicio de depreciacion fiscal"},
    {Vacio<&T::getActDeduccionInme>, "No ha especificado si la deducción es inmediata"},
    {Negativo<&T::getActivoTasaFiscal>, "La tasa fiscal no puede ser negativa"},
    {Negativo<&T::getActDepreAcumFiscal>, "La tasa de depreciacion acumulada fiscal no puede ser negativa"},
    {Negativo<&T::getActMetodoDepreFiscal>, "El metodo de depreciacion fiscal no puede ser nulo"},
    {Negativo<&T::getActMonMaxDeduFiscal>, "El monto maximo de deduccion fiscal no puede ser negativo"},
    {Negativo<&T::getMontoOriginal>, "El monto origial no puede ser negativo"},
    {Vacio<&T::getMonedaID>, "No ha especificado el valor monetario"},
    {Negativo<&T::getDepartamento>, "No ha especificado el departemanto"},
};

}  // namespace

bool cActivo::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cActivo::SqlAddNew() const { return Sentencia("select spiactivo(%s);", SqlColumnas().Texto()); }

Sentencia cActivo::SqlUpdate() const {
  return Sentencia("select spuactivo(%li,%s);", ActivoID, SqlColumnas().Texto());
}

Sentencia cActivo::SqlDelete() const { return Sentencia("SELECT spdactivo(%li);", ActivoID); }

Sentencia cActivo::SqlFind() const { return Sentencia("SELECT * FROM spsactivo(%li);", ActivoID); }

Sentencia cActivo::SqlColumnas() const {
  return Sentencia("%li,'%s','%s',%f,%f,%f,'%s','%s','%.10s',%f,%f,%i,'%.10s','%s',%f,%f,%i,%f,%f,'%s',%i",
                   DepreciacionID, ActivoClave, ActivoDescripcion, Activo_Valor, PorcenVidaUtil, ValorMercado,
                   Localizacion, ActivoNoSerie, FecInicioDepConta.AsChar(), ActivoTasaConta,
                   ActDepreAcumConta, ActMetodoDepreConta, FecInicioDepFiscal.AsChar(), ActDeduccionInme,
                   ActivoTasaFiscal, ActDepreAcumFiscal, ActMetodoDepreFiscal, ActMonMaxDeduFiscal,
                   MontoOriginal, MonedaID, Departamento);
}
