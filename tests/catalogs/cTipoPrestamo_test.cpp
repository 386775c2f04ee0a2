#include "catalogs/finance/cTipoPrestamo.h"

#include <gtest/gtest.h>

#include "tests/catalogs/Producto.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using T = cTipoPrestamo;

#define CAMPO(columna) #columna, De(&T::set##columna, &T::get##columna)

const std::vector<CampoDe<T>> campos = {
    {CAMPO(TipoPrestamoID), 3, 0, "Q  ", "Q  "},
    {CAMPO(DescTipoPrestamo), 31, 13, "Prueba", "Otra"},
    {CAMPO(Tantos), 0, 14, "7", "5"},
    {CAMPO(Tasa_Normal), 0, 15, "24.250000", "18.500000"},
    {CAMPO(Tasa_Mora), 0, 16, "1234.560059", "36.750000"},
    {CAMPO(ClaveMoviGarantia), 2, 12, "GL", "AH"},
    {CAMPO(CuentaActivo), 24, 1, Cuenta("1301-01"), Cuenta("1301-02")},
    {CAMPO(CuentaActivoVencida), 24, 2, Cuenta("1302-01"), Cuenta("1302-02")},
    {CAMPO(CuentaIntNormal), 24, 3, Cuenta("4101-01"), Cuenta("4101-02")},
    {CAMPO(CuentaIntNormalVencida), 24, 4, Cuenta("1304-01"), Cuenta("1304-02")},
    {CAMPO(CuentaIntNormalNocob), 24, 5, Cuenta("1303-01"), Cuenta("1303-02")},
    {CAMPO(CuentaIntMora), 24, 6, Cuenta("4102-01"), Cuenta("4102-02")},
    {CAMPO(CuentaIntMoraVencida), 24, 7, Cuenta("4103-01"), Cuenta("4103-02")},
    {CAMPO(CuentaIva), 24, 8, Cuenta("2401-02"), Cuenta("2401-01")},
    {CAMPO(CuentaRiesgoCred), 24, 9, Cuenta("1390-01"), Cuenta("1390-02")},
    {CAMPO(CuentaOrdenAval), 24, 11, Cuenta("6101-01"), Cuenta("6101-02")},
    {CAMPO(CuentaOrdenInteres), 24, 10, Cuenta("6102-01"), Cuenta("6102-02")},
    {CAMPO(AplicaIvaPrestamo), 1, 17, "S", "N"},
    {CAMPO(DiasTraspasoAVencida), 0, 18, "91", "61"},
    {CAMPO(CuentaIntDevNoCobres), 24, 19, Cuenta("4104-01"), Cuenta("4104-02")},
    {CAMPO(CuentaRiesgoCredRes), 24, 20, Cuenta("5201-01"), Cuenta("5201-02")},
    {CAMPO(CuentaIntMoraNoCobAct), 24, 21, Cuenta("1305-01"), Cuenta("1305-02")},
    {CAMPO(CuentaIntMoraDevNoCobRes), 24, 22, Cuenta("4105-01"), Cuenta("4105-02")},
    {CAMPO(OrdenDeudorNormalBonificado), 24, 23, Cuenta("6104-01"), Cuenta("6104-02")},
    {CAMPO(OrdenAcredorNormalBonificado), 24, 24, Cuenta("6204-01"), Cuenta("6204-02")},
    {CAMPO(CuentaFondoRecuperacion), 24, 25, Cuenta("2304"), Cuenta("2303")},
    {CAMPO(CuentaGtosAdm), 24, 26, Cuenta("4302"), Cuenta("4303")},
    {CAMPO(CuentaIntNormalResVencida), 24, 27, Cuenta("4106-01"), Cuenta("4106-02")},
    {CAMPO(OrdenInteresAcreedor), 24, 28, Cuenta("6202-01"), Cuenta("6202-02")},
    {CAMPO(CalculoNormalID), 0, 29, "3", "1"},
    {CAMPO(CalculoMoraID), 0, 30, "4", "2"},
    {CAMPO(ClaveFinalidad), 3, 31, "MEJ", "CON"},
    {CAMPO(CuentaIntNormalResVigente), 24, 32, Cuenta("4107-01"), Cuenta("4107-02")},
    {CAMPO(CuentaOrdenAvalAcredor), 24, 33, Cuenta("6201-01"), Cuenta("6201-02")},
    {CAMPO(CuentaGarantiaDeudor), 24, 34, Cuenta("6103-01"), Cuenta("6103-02")},
    {CAMPO(CuentaGarantiaAcredor), 24, 35, Cuenta("6203-01"), Cuenta("6203-02")},
    {CAMPO(CuentaProvisionIVA), 24, 36, Cuenta("2401-03"), Cuenta("2302")},
    {CAMPO(MontoMaximo), 0, 37, "90000.500000", "80000.250000"},
    {CAMPO(PlazoMaximo), 0, 38, "720", "360"},
    {CAMPO(MontoMinimo), 0, 39, "1500.250000", "2500.750000"},
    {CAMPO(AvalesMinimos), 0, 40, "2", "3"},
    {CAMPO(PeriodoDiasDefault), 0, 41, "30", "15"},
    {CAMPO(Estatus), 0, 42, "1", "0"},
    {CAMPO(Comision), 0, 43, "1.500000", "2.250000"},
    {CAMPO(IvaComision), 0, 44, "16.000000", "8.000000"},
    {CAMPO(CuentaComision), 24, 45, Cuenta("4108-01"), Cuenta("4108-02")},
    {CAMPO(CuentaIvaComision), 24, 46, Cuenta("2401-04"), Cuenta("2301")},
    {CAMPO(NivelAutorizacion), 0, 47, "4", "6"},
    {CAMPO(Reciprocidad), 0, 48, "12.500000", "10.125000"},
    {CAMPO(PrestamoGrupal), 0, 49, "0", "1"},
    {CAMPO(ClasificacionContable), 24, 50, "1301-Q", "1301-R"},
};

const std::vector<Prueba> reglas = {
    {"DescTipoPrestamo", "", "No ha capturado la descripción"},
    {"CuentaActivo", "", "Falta capturar cuenta de Activo"},
    {"CuentaActivo", Cuenta("1000"), "La cuenta de activo debe ser afectable"},
    {"CuentaActivoVencida", "", "Falta capturar Cuenta de Activo Vencido"},
    {"CuentaActivoVencida", Cuenta("1000"), "La cuenta de activo vencida debe ser afectable"},
    {"CuentaIntNormal", "", "Falta capturar Cuenta de Interes Normal"},
    {"CuentaIntNormal", Cuenta("1000"), "La cuenta de interes normal debe ser afectable"},
    {"CuentaIntNormalVencida", "", "Falta capturar Cuenta de Interes Normal Vencido"},
    {"CuentaIntNormalVencida", Cuenta("1000"), "La cuenta de interes normal vencido debe ser afectable"},
    {"CuentaIntNormalNocob", "", "Falta capturar Cuenta de Interes Normal no cobrado"},
    {"CuentaIntNormalNocob", Cuenta("1000"), "La cuenta de interes normal no cobrado debe ser afectable"},
    {"CuentaIntMora", "", "Falta capturar Cuenta de Interes Moratorio"},
    {"CuentaIntMora", Cuenta("1000"), "La cuenta de interes moratorio debe ser afectable"},
    {"CuentaIntMoraVencida", "", "Falta capturar Cuenta de Interes Moratorio Vencido"},
    {"CuentaIntMoraVencida", Cuenta("1000"), "La cuenta de interes moratorio vencida debe ser afectable"},
    {"CuentaIva", "", "Falta capturar Cuenta de IVA"},
    {"CuentaIva", Cuenta("1000"), "La cuenta de IVA debe ser afectable"},
    {"CuentaRiesgoCred", "", "Falta capturar Cuenta de Riesgo Crediticio"},
    {"TipoPrestamoID", "", "Falta capturar la clave del tipo de prestamo"},
    {"CuentaOrdenAval", "", "Falta capturar Cuenta de Orden de Aval"},
    {"CuentaOrdenAval", Cuenta("1000"), "La cuenta de orden de aval debe ser afectable"},
    {"CuentaOrdenInteres", "", "Falta capturar Cuenta de Orden de Interes"},
    {"CuentaOrdenInteres", Cuenta("1000"), "La cuenta de orden de interes debe ser afectable"},
    {"AplicaIvaPrestamo", "", "Falta definir si el prestamo aplica IVA"},
    {"DiasTraspasoAVencida", "0", "Falta especificar los dias para traspasar a Cartera Vencida"},
    {"CuentaIntDevNoCobres", "",
     "Falta capturar Cuenta de Interes Normal Devengado No Cobrado de Resultados"},
    {"CuentaIntDevNoCobres", Cuenta("1000"),
     "La cuenta de interes devengado no cobrado de resultados debe ser afectable"},
    {"CuentaIntMoraNoCobAct", "", "Falta capturar Cuenta de Interes Moratorio No Cobrado de Activo"},
    {"CuentaIntMoraNoCobAct", Cuenta("1000"),
     "La cuenta de interes moratorio no cobrado de activo debe ser afectable"},
    {"CuentaIntMoraDevNoCobRes", "",
     "Falta capturar Cuenta de Interes Moratorio Devengado No Cobrado de Resultados"},
    {"CuentaIntMoraDevNoCobRes", Cuenta("1000"),
     "La cuenta de interes moratorio devengado no cobrado de resultados debe ser afectable"},
    {"OrdenDeudorNormalBonificado", Cuenta("1000"),
     "La cuenta de orden deudor normal bonificado de resultados debe ser afectable"},
    {"OrdenAcredorNormalBonificado", Cuenta("1000"),
     "La cuenta de orden deudor normal bonificado de resultados debe ser afectable"},
    {"CuentaFondoRecuperacion", Cuenta("1000"), "La cuenta de Fondo de Recuperación debe ser afectable"},
    {"CuentaGtosAdm", Cuenta("1000"), "La cuenta de Gastos Adm. debe ser afectable"},
    {"CuentaIntNormalResVencida", Cuenta("1000"),
     "La cuenta de Int. Normal Resultados Vencida debe ser afectable"},
    {"OrdenInteresAcreedor", Cuenta("1000"), "La cuenta de Orden Interes Acredor debe ser afectable"},
    {"CuentaIntNormalResVigente", Cuenta("1000"),
     "La cuenta de Int. Normal Resultados Vigente debe ser afectable"},
    {"CalculoNormalID", "0", "No ha especificado la formula de default para el interes normal."},
    {"CalculoMoraID", "0", "No ha especificado la formula de default para el interes moratorio."},
    {"ClaveFinalidad", "", "Falta capturar la finalidad de default"},
    {"CuentaOrdenAvalAcredor", "", "Falta capturar la Cuenta de Orden Aval Acredor"},
    {"CuentaGarantiaDeudor", "", "Falta capturar la Cuenta de Garantias Deudora"},
    {"CuentaGarantiaAcredor", "", "Falta capturar la Cuenta de Garantias Acredora"},
    {"CuentaProvisionIVA", "", "Falta capturar la Cuenta de Provision de IVA"},
    {"CuentaOrdenAvalAcredor", Cuenta("1000"), "La cuenta de Orden Aval Acredor debe ser afectable"},
    {"CuentaGarantiaDeudor", Cuenta("1000"), "La cuenta de Garantia Deudor debe ser afectable"},
    {"CuentaGarantiaAcredor", Cuenta("1000"), "La cuenta de Garantia Acredor debe ser afectable"},
    {"CuentaProvisionIVA", Cuenta("1000"), "La cuenta de Provision de IVA debe ser afectable"},
    {"MontoMaximo", "-0.01", "El monto maximo no puede ser negativo"},
    {"PlazoMaximo", "-1", "El plazo maximo no puede ser negativo"},
    {"MontoMinimo", "0", "El monto minimo debe ser mayo que cero"},
    {"AvalesMinimos", "-1", "El numero de avales no puede ser negativo"},
    {"PeriodoDiasDefault", "-1", "El Periodo de Default no puede ser negativo"},
    {"Estatus", "-1", "El Estatus no puede ser negativo"},
    {"Comision", "-0.01", "La comision no puede ser negativa"},
    {"IvaComision", "-0.01", "El IVA de la comision no puede ser negativo"},
    {"CuentaComision", "", "Falta capturar la Cuenta de Comision"},
    {"CuentaIvaComision", "", "Falta capturar la Cuenta del IVA de la Comision"},
    {"NivelAutorizacion", "-1", "El nivel de autorizacion no puede ser negativo"},
    {"Reciprocidad", "-0.01", "La reciprocidad no puede ser negativa"},
    {"ClasificacionContable", "", "Falta capturar la Cuenta de clasificacion contable"},
};

const std::vector<Prueba> permitido = {
    {"OrdenDeudorNormalBonificado", "", ""},
    {"OrdenAcredorNormalBonificado", "", ""},
    {"CuentaFondoRecuperacion", "", ""},
    {"CuentaGtosAdm", "", ""},
    {"CuentaIntNormalResVencida", "", ""},
    {"OrdenInteresAcreedor", "", ""},
    {"CuentaIntNormalResVigente", "", ""},
    {"CuentaRiesgoCred", Cuenta("1000"), ""},
    {"CuentaComision", Cuenta("1000"), ""},
    {"CuentaIvaComision", Cuenta("1000"), ""},
    {"CuentaRiesgoCredRes", Cuenta("1000"), ""},
    {"CuentaRiesgoCredRes", "", ""},
    {"ClaveMoviGarantia", "", ""},
    {"Tantos", "-1", ""},
    {"Tasa_Normal", "0", ""},
    {"Tasa_Normal", "-1", ""},
    {"Tasa_Mora", "0", ""},
    {"Tasa_Mora", "-1", ""},
    {"PrestamoGrupal", "-1", ""},
    {"DiasTraspasoAVencida", "-1", ""},
    {"MontoMaximo", "0", ""},
    {"MontoMaximo", "0.01", ""},  // below MontoMinimo
    {"MontoMinimo", "0.000001", ""},
    {"PlazoMaximo", "0", ""},
    {"AvalesMinimos", "0", ""},
    {"PeriodoDiasDefault", "0", ""},
    {"Estatus", "0", ""},
    {"Comision", "0", ""},
    {"IvaComision", "0", ""},
    {"NivelAutorizacion", "0", ""},
    {"Reciprocidad", "0", ""},
    {"TipoPrestamoID", "   ", ""},
};

const std::vector<Prueba> servidor = {
    {"Tantos", "-1", "Está fuera de rango el número de tantos"},
    {"Tasa_Normal", "0", ""},
    {"Tasa_Normal", "9999.999", ""},
    {"Tasa_Normal", "-1", "Está fuera de rango la tasa normal"},
    {"Tasa_Normal", "1.17549435e-38", ""},
    {"Tasa_Normal", "nan", "nan"},
    {"Tasa_Mora", "0", ""},
    {"Tasa_Mora", "10000", "Está fuera de rango la tasa moratoria"},
    {"Tasa_Mora", "1e30", "Está fuera de rango la tasa moratoria"},
    {"Tasa_Mora", "3.4028234e38", "Está fuera de rango la tasa moratoria"},
    {"Tasa_Mora", "inf", "inf"},
    {"DiasTraspasoAVencida", "-1", "Está fuera de rango el plazo para traspasar a vencida"},
    {"MontoMaximo", "0", ""},
    {"MontoMaximo", "999999999999.99", ""},
    {"MontoMaximo", "1000000000000", "Está fuera de rango el monto máximo"},
    {"MontoMaximo", "1e30", "Está fuera de rango el monto máximo"},
    {"MontoMaximo", "1.7976931348623157e308", "Está fuera de rango el monto máximo"},
    {"MontoMaximo", "inf", "inf"},
    {"MontoMaximo", "nan", "nan"},
    {"MontoMinimo", "0.01", ""},
    {"MontoMinimo", "0.000001", "Está fuera de rango el monto mínimo"},
    {"PlazoMaximo", "2147483647", "Está fuera de rango el plazo máximo"},
    {"Estatus", "2", "Está fuera de rango el estatus"},
    {"Comision", "999999999999.99", ""},
    {"IvaComision", "1e30", "Está fuera de rango el IVA de la comisión"},
    {"Reciprocidad", "0.000001", ""},
    {"PrestamoGrupal", "2", "Está fuera de rango la marca de préstamo grupal"},
    {"CalculoNormalID", "999", "No existe la fórmula de interés normal: número 999"},
    {"CalculoMoraID", "9223372036854775807", "No existe la fórmula de interés moratorio"},
    {"ClaveFinalidad", "ZZZ", "No existe la finalidad: ZZZ"},
    {"ClaveMoviGarantia", "ZZ", "No existe el movimiento de garantía: ZZ"},
    {"ClaveMoviGarantia", "", ""},
    {"CuentaRiesgoCred", Cuenta("1000"), ""},
    {"CuentaIvaComision", Cuenta("1000"), ""},
    {"TipoPrestamoID", "   ", "Falta la clave"},
    {"DescTipoPrestamo", "O'Hara", "Hara"},
    {"ClasificacionContable", "O'Hara", "Hara"},
    {"ClasificacionContable", "   ", "Falta la clasificación contable"},
};

}  // namespace

Producto TipoDePrestamo() {
  const char* const alta =
      "select spitipoprestamo('%s','%s',%i,%f,%f,'%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s',"
      "'%s',%i,'%s','%s','%s','%s','%s','%s','%s','%s','%s','%s',%li,%li,'%s');";
  const char* const cambio =
      "select sputipoprestamo('%s','%s', %i ,%f  ,%f,                                              "
      "'%s','%s','%s',                                                      "
      "'%s','%s','%s','%s','%s',                                            "
      "'%s','%s','%s','%s','%s',                                             "
      "%i ,'%s','%s','%s','%s',                                            "
      "'%s','%s','%s','%s','%s',                                            "
      "'%s',%li,%li,'%s');";
  const char* const directa =
      "update tipoprestamo set cuentaintnormalresvigente='%s',cuentaordenavalacredor='%s',"
      "cuentagarantiadeudor='%s',cuentagarantiaacredor='%s',cuentaprovisioniva='%s',montomaximo=%f,"
      "plazomaximo=%i,montominimo=%f,avalesminimos=%i,periododiasdefault=%i,estatus=%i,comision=%f,"
      "ivacomision=%f,cuentacomision='%s',cuentaivacomision='%s',nivelautorizacion=%i,reciprocidad=%f,"
      "prestamogrupal=%i,clasificacioncontable='%s' where tipoprestamoid='%s';";
  Textos directos = Nombres(campos, 32, 51);
  directos.push_back("TipoPrestamoID");
  Producto producto;
  producto.nombre = "cTipoPrestamo";
  producto.clase = "Tipo de Prestamo";
  producto.tabla = "tipoprestamo";
  producto.alta = {{alta, Nombres(campos, 0, 32), true}, {directa, directos, false}};
  producto.cambio = {{cambio, Nombres(campos, 0, 32), false}, {directa, directos, true}};
  producto.borrado = {"SELECT spdtipoprestamo('%s');", {"TipoPrestamoID"}, false};
  producto.busqueda = {"SELECT * FROM spstipoprestamo('%s');", {"TipoPrestamoID"}, true};
  producto.reglas = reglas;
  producto.permitido = permitido;
  producto.servidor = servidor;
  return ConCampos(producto, campos);
}

namespace {

/// A record that breaks no rule, with the values of the table.
T Valido() {
  T tipo;
  for (const auto& campo : campos) campo.columna.pon(tipo, campo.valor);
  return tipo;
}

TEST(cTipoPrestamo, ElConstructorCompletoGuardaTodoTalCualEnElOrdenDeLosMiembros) {
  const T tipo("1", "2", 3, 4.5f, 5.5f, "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16", "17",
               "R", 19, "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", 30L, 31L, "32", "33",
               "34", "35", "36", "37", 38.5, 39, 40.5, 41, 42, 43, 44.5, 45.5, "46", "47", 48, 49.5, 50, "51",
               true, false);
  EXPECT_EQ(Columnas(tipo, campos),
            (Textos{"1",  "2",         "3",  "4.500000",  "5.500000", "6",  "7",  "8",         "9",
                    "10", "11",        "12", "13",        "14",       "15", "16", "17",        "R",
                    "19", "20",        "21", "22",        "23",       "24", "25", "26",        "27",
                    "28", "29",        "30", "31",        "32",       "33", "34", "35",        "36",
                    "37", "38.500000", "39", "40.500000", "41",       "42", "43", "44.500000", "45.500000",
                    "46", "47",        "48", "49.500000", "50",       "51"}));
  EXPECT_TRUE(tipo.getDataChanged());
  EXPECT_FALSE(tipo.IsNew());
}

TEST(cTipoPrestamo, ElConstructorTomaLoQueSeConvierte) {
  char cuenta[] = "7";
  const T tipo("1", "2", 3L, 12.5, 5, "6", cuenta, "8", "9", "10", "11", "12", "13", "14", "15", "16", "17",
               "R", 19, "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", 30, 31, "32", "33", "34",
               "35", "36", cuenta, 5, 39L, 40, 41, 42, 43, 44.5f, 5, "46", "47", 48, 49, 50, "51", 0, 1);
  EXPECT_EQ(Columnas(tipo, campos),
            (Textos{"1",  "2",        "3",  "12.500000", "5.000000", "6",  "7",  "8",         "9",
                    "10", "11",       "12", "13",        "14",       "15", "16", "17",        "R",
                    "19", "20",       "21", "22",        "23",       "24", "25", "26",        "27",
                    "28", "29",       "30", "31",        "32",       "33", "34", "35",        "36",
                    "7",  "5.000000", "39", "40.000000", "41",       "42", "43", "44.500000", "5.000000",
                    "46", "47",       "48", "49.000000", "50",       "51"}));
  EXPECT_FALSE(tipo.getDataChanged());
  EXPECT_TRUE(tipo.IsNew());
}

class cTipoPrestamoTest : public ConSucursal {};

TEST_F(cTipoPrestamoTest, SinNadaDeLoOpcionalSeGuarda) {
  T tipo = Valido();
  tipo.setOrdenDeudorNormalBonificado("");
  tipo.setOrdenAcredorNormalBonificado("");
  tipo.setCuentaFondoRecuperacion("");
  tipo.setCuentaGtosAdm("");
  tipo.setCuentaIntNormalResVencida("");
  tipo.setOrdenInteresAcreedor("");
  tipo.setCuentaIntNormalResVigente("");
  tipo.setCuentaRiesgoCredRes("");
  tipo.setClaveMoviGarantia("");
  Salida salida;
  EXPECT_EQ(Lanzado([&] { tipo.AddNew(); }), std::nullopt);
  EXPECT_EQ(base_.Valor("select num_nulls(ordendeudornormalbonificado, ordenacredornormalbonificado,"
                        " cuentafondorecuperacion, cuentagtosadm, cuentaintnormalresvencida,"
                        " ordeninteresacreedor, cuentaintnormalresvigente, cuentariesgocredres,"
                        " tipomovimientoid) from norte.tipoprestamo where tipoprestamoid = 'Q'"),
            "9");
}

TEST_F(cTipoPrestamoTest, LaTasaViajaConLosDigitosDeSuPrecisionSencilla) {
  T tipo = Valido();
  tipo.setTasa_Normal(1234.56f);
  tipo.setMontoMaximo(1234.56);
  Salida salida;
  Espia espia;
  tipo.AddNew();
  EXPECT_EQ(espia.Cuantas("('Q  ','Prueba',7,1234.560059,"), 1u);
  EXPECT_EQ(espia.Cuantas(",montomaximo=1234.560000,"), 1u);
}

TEST_F(cTipoPrestamoTest, UnaClaveCortaSeGuardaYSeBuscaRellenada) {
  T tipo = Valido();
  tipo.setTipoPrestamoID("1");
  Salida salida;
  EXPECT_EQ(Lanzado([&] { tipo.AddNew(); }), std::nullopt);
  T leido;
  leido.setTipoPrestamoID("1");
  EXPECT_STREQ(leido.getTipoPrestamoID(), "1  ");
  leido.Find();
  EXPECT_FALSE(leido.IsNew());
  EXPECT_STREQ(leido.getDescTipoPrestamo(), "Prueba");
}

}  // namespace
}  // namespace pruebas
