#include "catalogs/finance/cTipoInversion.h"

#include <gtest/gtest.h>

#include "tests/catalogs/Producto.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using T = cTipoInversion;

#define CAMPO(columna) #columna, De(&T::set##columna, &T::get##columna)

const std::vector<CampoDe<T>> campos = {
    {CAMPO(TipoInversionID), 3, 0, "Q  ", "Q  "},
    {CAMPO(CuentaRiesgoCred), 24, 1, Cuenta("2402-01"), Cuenta("2402-03")},
    {CAMPO(CuentaIntInverNoCob), 24, 2, Cuenta("2112-01"), Cuenta("2112-02")},
    {CAMPO(CalculoID), 0, 3, "5", "4"},
    {CAMPO(CuentaPasivo), 24, 4, Cuenta("2111-01"), Cuenta("2111-02")},
    {CAMPO(CuentaPasivoVencida), 24, 5, Cuenta("2113-01"), Cuenta("2113-02")},
    {CAMPO(CuentaIntInver), 24, 6, Cuenta("5111-01"), Cuenta("5111-02")},
    {CAMPO(CuentaIvaInver), 24, 7, Cuenta("2403"), Cuenta("2404")},
    {CAMPO(DescTipoInversion), 31, 8, "Prueba", "Otra"},
    {CAMPO(Tasa_Normal), 0, 9, "6.250000", "1234.560059"},
    {CAMPO(MontoMax), 0, 17, "250000.000000", "300000.500000"},
    {CAMPO(MontoMin), 0, 18, "1000.250000", "2000.750000"},
    {CAMPO(PlazoMax), 0, 19, "720", "360"},
    {CAMPO(Plazo), 0, 10, "30", "91"},
    {CAMPO(AplicaIvaInversion), 1, 11, "S", "N"},
    {CAMPO(AplicaISR), 0, 12, "1", "0"},
    {CAMPO(ReinvierteInteres), 0, 13, "0", "1"},
    {CAMPO(TipoMovimientoID), 2, 14, "AH", "VC"},
    {CAMPO(CuentaProvisionISR), 24, 15, Cuenta("2402-02"), Cuenta("2302")},
    {CAMPO(ClasificacionID), 0, 16, "1", "0"},
};

const std::vector<Prueba> reglas = {
    {"TipoInversionID", "", "No se especifico la clave"},
    {"DescTipoInversion", "", "No ha especificado la descripción"},
    {"Tasa_Normal", "0", "La tasa debe ser mayor a 0"},
    {"Plazo", "0", "El plazo minimo debe ser mayor que 0"},
    {"CuentaPasivo", "", "No ha especificado la cuenta de deposito"},
    {"CuentaPasivo", Cuenta("1000"), "La cuenta de pasivo debe ser afectable"},
    {"CuentaPasivoVencida", "", "No ha especificado la cuenta de retiro"},
    {"CuentaPasivoVencida", Cuenta("1000"), "La cuenta de pasivo vencida debe ser afectable"},
    {"CuentaIntInver", "", "No ha especificado la cuenta de int. pagado"},
    {"CuentaProvisionISR", "", "No ha especificado la cuenta de provision de ISR"},
    {"CuentaIntInver", Cuenta("1000"), "La cuenta de interes de la inversión debe ser afectable"},
    {"CuentaIntInverNoCob", "", "No ha especificado la cuenta de int. cobrado"},
    {"CuentaIntInverNoCob", Cuenta("1000"), "La cuenta de int. inversion no cobrado debe ser afectable"},
    {"CuentaIvaInver", "", "No ha especificado la cuenta de iva del movimiento"},
    {"CuentaIvaInver", Cuenta("1000"), "La cuenta de iva de la inversion debe ser afectable"},
    {"CuentaRiesgoCred", "", "Falta capturar Cuenta de riesgo crediticio"},
    {"CuentaRiesgoCred", Cuenta("1000"), "La cuenta de riesgo crediticio debe ser afectable"},
    {"AplicaIvaInversion", "", "No ha especificado el tipo de la poliza"},
    {"CalculoID", "0", "No ha seleccionado la formula para calculo del interes"},
    {"CuentaProvisionISR", Cuenta("1000"), "La cuenta de interes de la inversión debe ser afectable"},
    {"ClasificacionID", "-1", "No ha especificado la Clasificación del Tipo de Inversión"},
    {"MontoMax", "0", "El monto maximo debe ser mayor que 0"},
    {"MontoMin", "0", "El monto minimo debe ser mayor que 0"},
    {"MontoMin", "999999", "El monto minimo no puede ser mayor al monto maximo"},
    {"PlazoMax", "0", "El plazo maximo debe ser mayor que 0"},
};

const std::vector<Prueba> permitido = {
    {"TipoInversionID", "   ", ""}, {"MontoMin", "250000", ""},  // as MontoMax
    {"Plazo", "721", ""},                                        // beyond PlazoMax
    {"TipoMovimientoID", "", ""},   {"AplicaISR", "-1", ""},         {"ReinvierteInteres", "-1", ""},
    {"ClasificacionID", "0", ""},   {"Tasa_Normal", "0.000001", ""},
};

const std::vector<Prueba> servidor = {
    {"Tasa_Normal", "0.000001", ""},
    {"Tasa_Normal", "9999.999", ""},
    {"Tasa_Normal", "10000", "Está fuera de rango la tasa"},
    {"Tasa_Normal", "1e30", "Está fuera de rango la tasa"},
    {"Tasa_Normal", "inf", "inf"},
    {"MontoMax", "999999995904", ""},
    {"MontoMax", "1e30", "Está fuera de rango el monto máximo"},
    {"MontoMax", "3.4028234e38", "Está fuera de rango el monto máximo"},
    {"MontoMin", "0.01", ""},
    {"MontoMin", "0.001", "Está fuera de rango el monto mínimo"},
    {"MontoMin", "1e-30", "Está fuera de rango el monto mínimo"},
    {"MontoMin", "250000", ""},
    {"Plazo", "99999", ""},
    {"Plazo", "2147483647", "Está fuera de rango el plazo mínimo"},
    {"PlazoMax", "99999", ""},
    {"PlazoMax", "100000", "Está fuera de rango el plazo máximo"},
    {"AplicaISR", "2", "Está fuera de rango la marca de aplicar ISR"},
    {"ReinvierteInteres", "-1", "Está fuera de rango la marca de reinvertir interés"},
    {"ClasificacionID", "2", "Está fuera de rango la clasificación"},
    {"CalculoID", "999", "No existe la fórmula de cálculo: número 999"},
    {"TipoMovimientoID", "ZZ", "No existe el tipo de movimiento: ZZ"},
    {"TipoMovimientoID", "", ""},
    {"TipoInversionID", "   ", "Falta la clave"},
    {"DescTipoInversion", "O'Hara", "Hara"},
    {"AplicaIvaInversion", "X", "Debe ser S o N la marca de aplicar IVA"},
};

}  // namespace

Producto TipoDeInversion() {
  const std::string argumentos =
      "('%s','%s','%s',%i,'%s','%s','%s','%s','%s',%f,%i,'%s',%i,%i,'%s','%s',%i,%f,%f,%i);";
  const Textos enSuOrden = {"TipoInversionID",
                            "CuentaRiesgoCred",
                            "CuentaIntInverNoCob",
                            "CalculoID",
                            "CuentaPasivo",
                            "CuentaPasivoVencida",
                            "CuentaIntInver",
                            "CuentaIvaInver",
                            "DescTipoInversion",
                            "Tasa_Normal",
                            "Plazo",
                            "AplicaIvaInversion",
                            "AplicaISR",
                            "ReinvierteInteres",
                            "TipoMovimientoID",
                            "CuentaProvisionISR",
                            "ClasificacionID",
                            "MontoMax",
                            "MontoMin",
                            "PlazoMax"};
  Producto producto;
  producto.nombre = "cTipoInversion";
  producto.clase = "Tipo de Inversión";
  producto.tabla = "tipoinversion";
  producto.alta = {{"select spitipoinversion" + argumentos, enSuOrden, false}};
  producto.cambio = {{"select sputipoinversion" + argumentos, enSuOrden, true}};
  producto.borrado = {"SELECT spdtipoinversion('%s');", {"TipoInversionID"}, false};
  producto.busqueda = {"SELECT * FROM spstipoinversion('%s');", {"TipoInversionID"}, true};
  producto.reglas = reglas;
  producto.permitido = permitido;
  producto.servidor = servidor;
  return ConCampos(producto, campos);
}

namespace {

T Valida() {
  return T("Q", "b", "c", 4, "e", "f", "g", "h", "i", 10.5f, 1000000.0f, 0.25f, 13, 14, "S", 16, 17, "r", "s",
           0, true, false);
}

TEST(cTipoInversion, ElConstructorCompletoGuardaTodoTalCualEnElOrdenDeLosMiembros) {
  EXPECT_EQ(Columnas(Valida(), campos),
            (Textos{"Q",        "b",  "c",  "4", "e",  "f",  "g", "h", "i", "10.500000", "1000000.000000",
                    "0.250000", "13", "14", "S", "16", "17", "r", "s", "0"}));
  EXPECT_TRUE(Valida().getDataChanged());
  EXPECT_FALSE(Valida().IsNew());
}

TEST(cTipoInversion, ElConstructorTomaLoQueSeConvierte) {
  char clave[] = "Q";
  const T t(clave, clave, "c", 4L, "e", "f", "g", "h", "i", 12.5, 5, 2, 13.0, 14, "S", 16, 17, "r", clave, 0,
            1, 0);
  EXPECT_EQ(Columnas(t, campos),
            (Textos{"Q",        "Q",        "c",  "4",  "e", "f",  "g",  "h", "i", "12.500000",
                    "5.000000", "2.000000", "13", "14", "S", "16", "17", "r", "Q", "0"}));
  EXPECT_TRUE(t.getDataChanged());
  EXPECT_FALSE(t.IsNew());
}

TEST(cTipoInversion, CheckTrazaLosMontosEnCuantoLlegaAEllos) {
  const char* const traza = "fMontoMax: 1e+06, fMontoMin: 0.25\n";
  const struct {
    void (*cambio)(T&);
    std::string traza;
  } tabla[] = {
      {[](T&) {}, traza},
      {[](T& t) { t.setPlazoMax(0); }, traza},
      {[](T& t) { t.setMontoMax(0); }, "fMontoMax: 0, fMontoMin: 0.25\n"},
      {[](T& t) { t.setClasificacionID(-1); }, ""},
      {[](T& t) { t.setCalculoID(0); }, ""},
  };
  for (const auto& fila : tabla) {
    T tipo = Valida();
    fila.cambio(tipo);
    Salida salida;
    Lanzado([&] { tipo.Check(); });
    EXPECT_EQ(salida.Texto(), fila.traza);
  }
}

}  // namespace
}  // namespace pruebas
