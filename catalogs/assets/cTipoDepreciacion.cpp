#include "catalogs/assets/cTipoDepreciacion.h"

#include "framework/Reglas.h"

namespace {

using T = cTipoDepreciacion;

const Regla<T> reglas[] = {
    {Vacio<&T::getDepreDescripcion>, "No ha especificado la descripción"},
    {Negativo<&T::getDepreTasaContable>, "La tasa contable de depreciación no puede ser negativa"},
    {Negativo<&T::getDepreTasaFiscal>, "La tasa fiscal de depreciación no puede ser negativa"},
    {Negativo<&T::getMaximoDeducible>, "El maximo deducible no puede ser negativo"},
    {Vacio<&T::getDepreMoneda>, "No ha especificado la moneda"},
    {Negativo<&T::getDeprePorcentaje>, "El porcentaje de depreciación no puede ser negativo"},
    {Vacio<&T::getDepre_Activo>, "No ha especificado la cuenta de activo"},
    {Vacio<&T::getDepre_CtaDepre>, "No ha especificado la cuenta de depreciación"},
    {Vacio<&T::getDepre_CtaGasto>, "No ha especificado la cuenta de gasto"},
    {Vacio<&T::getDepre_CtaBaja>, "No ha especificado la cuenta de baja"},
};

}  // namespace

bool cTipoDepreciacion::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cTipoDepreciacion::SqlAddNew() const {
  return Sentencia("select spidepreciacion(%s);", SqlColumnas().Texto());
}

Sentencia cTipoDepreciacion::SqlUpdate() const {
  return Sentencia("select spudepreciacion(%s,%li);", SqlColumnas().Texto(), DepreciacionID);
}

Sentencia cTipoDepreciacion::SqlDelete() const {
  return Sentencia("SELECT spddepreciacion(%li);", DepreciacionID);
}

Sentencia cTipoDepreciacion::SqlFind() const {
  return Sentencia("SELECT * FROM spsdepreciacion(%li);", DepreciacionID);
}

Sentencia cTipoDepreciacion::SqlColumnas() const {
  return Sentencia("'%s','%s','%s','%s','%s','%s',%f,%f,%f,%f", DepreMoneda, Depre_Activo, Depre_CtaDepre,
                   Depre_CtaGasto, Depre_CtaBaja, DepreDescripcion, DepreTasaContable, DepreTasaFiscal,
                   MaximoDeducible, DeprePorcentaje);
}
