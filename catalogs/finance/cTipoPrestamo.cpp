#include "catalogs/finance/cTipoPrestamo.h"

#include "framework/Reglas.h"

namespace {

using T = cTipoPrestamo;

// The accounts of the bonus on normal interest share a message.
const Regla<T> reglas[] = {
    {Vacio<&T::getDescTipoPrestamo>, "No ha capturado la descripción"},
    {Vacio<&T::getCuentaActivo>, "Falta capturar cuenta de Activo"},
    {NoAfectable<&T::getCuentaActivo>, "La cuenta de activo debe ser afectable"},
    {Vacio<&T::getCuentaActivoVencida>, "Falta capturar Cuenta de Activo Vencido"},
    {NoAfectable<&T::getCuentaActivoVencida>, "La cuenta de activo vencida debe ser afectable"},
    {Vacio<&T::getCuentaIntNormal>, "Falta capturar Cuenta de Interes Normal"},
    {NoAfectable<&T::getCuentaIntNormal>, "La cuenta de interes normal debe ser afectable"},
    {Vacio<&T::getCuentaIntNormalVencida>, "Falta capturar Cuenta de Interes Normal Vencido"},
    {NoAfectable<&T::getCuentaIntNormalVencida>, "La cuenta de interes normal vencido debe ser afectable"},
    {Vacio<&T::getCuentaIntNormalNocob>, "Falta capturar Cuenta de Interes Normal no cobrado"},
    {NoAfectable<&T::getCuentaIntNormalNocob>, "La cuenta de interes normal no cobrado debe ser afectable"},
    {Vacio<&T::getCuentaIntMora>, "Falta capturar Cuenta de Interes Moratorio"},
    {NoAfectable<&T::getCuentaIntMora>, "La cuenta de interes moratorio debe ser afectable"},
    {Vacio<&T::getCuentaIntMoraVencida>, "Falta capturar Cuenta de Interes Moratorio Vencido"},
    {NoAfectable<&T::getCuentaIntMoraVencida>, "La cuenta de interes moratorio vencida debe ser afectable"},
    {Vacio<&T::getCuentaIva>, "Falta capturar Cuenta de IVA"},
    {NoAfectable<&T::getCuentaIva>, "La cuenta de IVA debe ser afectable"},
    {Vacio<&T::getCuentaRiesgoCred>, "Falta capturar Cuenta de Riesgo Crediticio"},
    {Vacio<&T::getTipoPrestamoID>, "Falta capturar la clave del tipo de prestamo"},
    {Vacio<&T::getCuentaOrdenAval>, "Falta capturar Cuenta de Orden de Aval"},
    {NoAfectable<&T::getCuentaOrdenAval>, "La cuenta de orden de aval debe ser afectable"},
    {Vacio<&T::getCuentaOrdenInteres>, "Falta capturar Cuenta de Orden de Interes"},
    {NoAfectable<&T::getCuentaOrdenInteres>, "La cuenta de orden de interes debe ser afectable"},
    {Vacio<&T::getAplicaIvaPrestamo>, "Falta definir si el prestamo aplica IVA"},
    {Cero<&T::getDiasTraspasoAVencida>, "Falta especificar los dias para traspasar a Cartera Vencida"},
    {Vacio<&T::getCuentaIntDevNoCobres>,
     "Falta capturar Cuenta de Interes Normal Devengado No Cobrado de Resultados"},
    {NoAfectable<&T::getCuentaIntDevNoCobres>,
     "La cuenta de interes devengado no cobrado de resultados debe ser afectable"},
    {Vacio<&T::getCuentaIntMoraNoCobAct>, "Falta capturar Cuenta de Interes Moratorio No Cobrado de Activo"},
    {NoAfectable<&T::getCuentaIntMoraNoCobAct>,
     "La cuenta de interes moratorio no cobrado de activo debe ser afectable"},
    {Vacio<&T::getCuentaIntMoraDevNoCobRes>,
     "Falta capturar Cuenta de Interes Moratorio Devengado No Cobrado de Resultados"},
    {NoAfectable<&T::getCuentaIntMoraDevNoCobRes>,
     "La cuenta de interes moratorio devengado no cobrado de resultados debe ser afectable"},
    {NoAfectable<&T::getOrdenDeudorNormalBonificado>,
     "La cuenta de orden deudor normal bonificado de resultados debe ser afectable"},
    {NoAfectable<&T::getOrdenAcredorNormalBonificado>,
     "La cuenta de orden deudor normal bonificado de resultados debe ser afectable"},
    {NoAfectable<&T::getCuentaFondoRecuperacion>, "La cuenta de Fondo de Recuperación debe ser afectable"},
    {NoAfectable<&T::getCuentaGtosAdm>, "La cuenta de Gastos Adm. debe ser afectable"},
    {NoAfectable<&T::getCuentaIntNormalResVencida>,
     "La cuenta de Int. Normal Resultados Vencida debe ser afectable"},
    {NoAfectable<&T::getOrdenInteresAcreedor>, "La cuenta de Orden Interes Acredor debe ser afectable"},
    {NoAfectable<&T::getCuentaIntNormalResVigente>,
     "La cuenta de Int. Normal Resultados Vigente debe ser afectable"},
    {NoPositivo<&T::getCalculoNormalID>, "No ha especificado la formula de default para el interes normal."},
    {NoPositivo<&T::getCalculoMoraID>, "No ha especificado la formula de default para el interes moratorio."},
    {Vacio<&T::getClaveFinalidad>, "Falta capturar la finalidad de default"},
    {Vacio<&T::getCuentaOrdenAvalAcredor>, "Falta capturar la Cuenta de Orden Aval Acredor"},
    {Vacio<&T::getCuentaGarantiaDeudor>, "Falta capturar la Cuenta de Garantias Deudora"},
    {Vacio<&T::getCuentaGarantiaAcredor>, "Falta capturar la Cuenta de Garantias Acredora"},
    {Vacio<&T::getCuentaProvisionIVA>, "Falta capturar la Cuenta de Provision de IVA"},
    {NoAfectable<&T::getCuentaOrdenAvalAcredor>, "La cuenta de Orden Aval Acredor debe ser afectable"},
    {NoAfectable<&T::getCuentaGarantiaDeudor>, "La cuenta de Garantia Deudor debe ser afectable"},
    {NoAfectable<&T::getCuentaGarantiaAcredor>, "La cuenta de Garantia Acredor debe ser afectable"},
    {NoAfectable<&T::getCuentaProvisionIVA>, "La cuenta de Provision de IVA debe ser afectable"},
    {Negativo<&T::getMontoMaximo>, "El monto maximo no puede ser negativo"},
    {Negativo<&T::getPlazoMaximo>, "El plazo maximo no puede ser negativo"},
    {NoPositivo<&T::getMontoMinimo>, "El monto minimo debe ser mayo que cero"},
    {Negativo<&T::getAvalesMinimos>, "El numero de avales no puede ser negativo"},
    {Negativo<&T::getPeriodoDiasDefault>, "El Periodo de Default no puede ser negativo"},
    {Negativo<&T::getEstatus>, "El Estatus no puede ser negativo"},
    {Negativo<&T::getComision>, "La comision no puede ser negativa"},
    {Negativo<&T::getIvaComision>, "El IVA de la comision no puede ser negativo"},
    {Vacio<&T::getCuentaComision>, "Falta capturar la Cuenta de Comision"},
    {Vacio<&T::getCuentaIvaComision>, "Falta capturar la Cuenta del IVA de la Comision"},
    {Negativo<&T::getNivelAutorizacion>, "El nivel de autorizacion no puede ser negativo"},
    {Negativo<&T::getReciprocidad>, "La reciprocidad no puede ser negativa"},
    {Vacio<&T::getClasificacionContable>, "Falta capturar la Cuenta de clasificacion contable"},
};

}  // namespace

bool cTipoPrestamo::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cTipoPrestamo::SqlAddNew() {
  const auto formatea = [](const auto&... columna) {
    return Sentencia(
        "select spitipoprestamo('%s','%s',%i,%f,%f,"
        "'%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s',"
        "%i,'%s','%s','%s','%s','%s','%s','%s','%s','%s','%s',%li,%li,'%s');",
        columna...);
  };
  return std::apply(formatea, DeLaFuncion());
}

Sentencia cTipoPrestamo::SqlUpdate() {
  const auto formatea = [](const auto&... columna) {
    return Sentencia(
        "select sputipoprestamo('%s','%s', %i ,%f  ,%f,                                              "
        "'%s','%s','%s',                                                      "
        "'%s','%s','%s','%s','%s',                                            "
        "'%s','%s','%s','%s','%s',                                             "
        "%i ,'%s','%s','%s','%s',                                            "
        "'%s','%s','%s','%s','%s',                                            "
        "'%s',%li,%li,'%s');",
        columna...);
  };
  return std::apply(formatea, DeLaFuncion());
}

Sentencia cTipoPrestamo::SqlDirecta() {
  const auto formatea = [](const auto&... columna) {
    return Sentencia(
        "update tipoprestamo set cuentaintnormalresvigente='%s',cuentaordenavalacredor='%s',"
        "cuentagarantiadeudor='%s',cuentagarantiaacredor='%s',cuentaprovisioniva='%s',montomaximo=%f,"
        "plazomaximo=%i,montominimo=%f,avalesminimos=%i,periododiasdefault=%i,estatus=%i,comision=%f,"
        "ivacomision=%f,cuentacomision='%s',cuentaivacomision='%s',nivelautorizacion=%i,reciprocidad=%f,"
        "prestamogrupal=%i,clasificacioncontable='%s' where tipoprestamoid='%s';",
        columna...);
  };
  return std::apply(formatea, std::tuple_cat(Directos(), std::tie(TipoPrestamoID)));
}

Sentencia cTipoPrestamo::SqlDelete() const {
  return Sentencia("SELECT spdtipoprestamo('%s');", TipoPrestamoID);
}

Sentencia cTipoPrestamo::SqlFind() const {
  return Sentencia("SELECT * FROM spstipoprestamo('%s');", TipoPrestamoID);
}
