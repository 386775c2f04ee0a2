#include "catalogs/finance/cTipoMovimiento.h"

#include <gtest/gtest.h>

#include "tests/catalogs/Producto.h"

namespace pruebas {
namespace {

using T = cTipoMovimiento;

#define CAMPO(columna) #columna, De(&T::set##columna, &T::get##columna)

const std::vector<CampoDe<T>> campos = {
    {CAMPO(TipoMovimientoID), 2, 0, "Q ", "Q "},
    {CAMPO(DescTipoMovimiento), 30, 7, "Prueba", "Otra"},
    {CAMPO(AplicaSaldo), 1, 8, "S", "N"},
    {CAMPO(CuentaDeposito), 24, 1, Cuenta("2101-01"), Cuenta("2101-02")},
    {CAMPO(CuentaRetiro), 24, 2, Cuenta("2101-03"), Cuenta("2101-04")},
    {CAMPO(CuentaIntPagado), 24, 3, Cuenta("5101-01"), Cuenta("5101-02")},
    {CAMPO(CuentaIntCobrado), 24, 4, Cuenta("4202"), Cuenta("4301")},
    {CAMPO(CuentaIvaMovimiento), 24, 5, Cuenta("2403"), Cuenta("2404")},
    {CAMPO(CuentaISR), 24, 6, Cuenta("2402-01"), Cuenta("2402-03")},
    {CAMPO(TipoPoliza), 1, 9, "D", "I"},
    {CAMPO(AceptaDeposito), 1, 10, "N", "S"},
    {CAMPO(AceptaRetiro), 1, 11, "S", "N"},
    {CAMPO(TasaInteres), 0, 12, "3.250000", "1234.567891"},
    {CAMPO(CuentaOrdenAcredor), 24, 13, Cuenta("6205"), Cuenta("6201-01")},
    {CAMPO(CuentaOrdenDeudor), 24, 14, Cuenta("6105"), Cuenta("6101-01")},
    {CAMPO(CuentaOrden), 1, 15, "N", "S"},
    {CAMPO(CuentaProvisionISR), 24, 16, Cuenta("2402-02"), Cuenta("2302")},
    {CAMPO(Comision), 0, 17, "25.500000", "12.250000"},
    {CAMPO(PorComision), 0, 18, "1.250000", "2.750000"},
    {CAMPO(PorIvaComision), 0, 19, "16.000000", "8.000000"},
    {CAMPO(CuentaComision), 24, 20, Cuenta("4201-01"), Cuenta("4201-02")},
    {CAMPO(CuentaIvaComision), 24, 21, Cuenta("2401-04"), Cuenta("2401-01")},
    {CAMPO(DesglosaIva), 0, 22, "1", "0"},
};

const std::vector<Prueba> reglas = {
    {"TipoMovimientoID", "", "No se especifico la clave"},
    {"DescTipoMovimiento", "", "No ha especificado la descripción"},
    {"AplicaSaldo", "", "No ha especificado si el movimiento aplica al saldo"},
    {"CuentaDeposito", "", "No ha especificado la cuenta de deposito"},
    {"CuentaDeposito", Cuenta("1000"), "La cuenta de deposito debe ser afectable"},
    {"CuentaRetiro", "", "No ha especificado la cuenta de retiro"},
    {"CuentaRetiro", Cuenta("1000"), "La cuenta de retiro debe ser afectable"},
    {"CuentaIntPagado", "", "No ha especificado la cuenta de int. pagado"},
    {"CuentaIntPagado", Cuenta("1000"), "La cuenta de interes pagado debe ser afectable"},
    {"CuentaIntCobrado", "", "No ha especificado la cuenta de int. cobrado"},
    {"CuentaIntCobrado", Cuenta("1000"), "La cuenta de cuenta de interes cobrado debe ser afectable"},
    {"CuentaIvaMovimiento", "", "No ha especificado la cuenta de iva del movimiento"},
    {"CuentaIvaMovimiento", Cuenta("1000"), "La cuenta de iva debe ser afectable"},
    {"CuentaISR", "", "Falta capturar Cuenta de ISR"},
    {"CuentaISR", Cuenta("1000"), "La cuenta de ISR debe ser afectable"},
    {"TipoPoliza", "", "No ha especificado el tipo de la poliza"},
    {"AceptaDeposito", "", "No ha especificado si Acepta ó NO Depositos"},
    {"AceptaRetiro", "", "No ha especificado si Acepta ó NO Retiro"},
    {"TasaInteres", "-0.01", "La tasa de interes debe ser mayor o igual a cero"},
    {"CuentaOrdenAcredor", Cuenta("1000"), "La cuenta de cuenta de orden acredor debe ser afectable"},
    {"CuentaOrdenDeudor", Cuenta("1000"), "La cuenta de cuenta de orden deudor debe ser afectable"},
    {"CuentaOrden", "", "No ha especificado si maneja cuentas de orden"},
    {"CuentaProvisionISR", "", "Falta capturar Cuenta de ISR"},
    {"CuentaProvisionISR", Cuenta("1000"), "La cuenta de Provision de ISR debe ser afectable"},
    {"Comision", "-0.01", "La comision debe ser mayor o igual a cero"},
    {"PorComision", "-0.01", "La tasa de comision debe ser mayor o igual a cero"},
    {"PorIvaComision", "-0.01", "La tasa de Iva de la comision debe ser mayor o igual a cero"},
    {"CuentaComision", "", "Falta capturar Cuenta de Comision"},
    {"CuentaIvaComision", "", "Falta capturar Cuenta de IVA Comision"},
    {"DesglosaIva", "-1", "No ha especificado la forma de cobro del IVA"},
};

const std::vector<Prueba> permitido = {
    {"TasaInteres", "0", ""},
    {"Comision", "0", ""},
    {"PorComision", "0", ""},
    {"PorIvaComision", "0", ""},
    {"DesglosaIva", "0", ""},
    {"CuentaOrdenAcredor", "", ""},
    {"CuentaOrdenDeudor", "", ""},
    {"CuentaComision", Cuenta("1000"), ""},
    {"CuentaIvaComision", Cuenta("1000"), ""},
    {"TipoMovimientoID", "  ", ""},
    {"DescTipoMovimiento", " ", ""},
    {"AplicaSaldo", "X", ""},
};

const std::vector<Prueba> servidor = {
    {"TasaInteres", "0", ""},
    {"TasaInteres", "9999.999999", ""},
    {"TasaInteres", "10000", "Está fuera de rango la tasa de interés"},
    {"TasaInteres", "1.7976931348623157e308", "Está fuera de rango la tasa de interés"},
    {"TasaInteres", "inf", "inf"},
    {"TasaInteres", "nan", "nan"},
    {"Comision", "0", ""},
    {"Comision", "999999995904", ""},
    {"Comision", "1e30", "Está fuera de rango la cuota de comisión"},
    {"Comision", "3.4028234e38", "Está fuera de rango la cuota de comisión"},
    {"PorComision", "100", ""},
    {"PorComision", "100.001", "Está fuera de rango el porcentaje de comisión"},
    {"PorIvaComision", "1e30", "Está fuera de rango el porcentaje de IVA de la comisión"},
    {"DesglosaIva", "2", "Está fuera de rango la marca de desglosar IVA"},
    {"TipoMovimientoID", "  ", "Falta la clave"},
    {"DescTipoMovimiento", "O'Hara", "Hara"},
    {"AplicaSaldo", "X", "Debe ser S o N la marca de aplicar al saldo"},
    {"CuentaComision", Cuenta("1000"), ""},
};

}  // namespace

Producto TipoDeMovimiento() {
  const std::string argumentos =
      "('%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s','%s',%f,'%s','%s','%s','%s',%f,%f,%f,'%s','%s'"
      ",%i);";
  Producto producto;
  producto.nombre = "cTipoMovimiento";
  producto.clase = "Tipo de Movimiento";
  producto.tabla = "tipomovimiento";
  producto.alta = {{"select spitipomovimiento" + argumentos, Nombres(campos, 0, 23), true}};
  producto.cambio = {{"select sputipomovimiento" + argumentos, Nombres(campos, 0, 23), true}};
  producto.borrado = {"SELECT spdtipomovimiento('%s');", {"TipoMovimientoID"}, false};
  producto.busqueda = {"SELECT * FROM spstipomovimiento('%s');", {"TipoMovimientoID"}, false};
  producto.reglas = reglas;
  producto.permitido = permitido;
  producto.servidor = servidor;
  return ConCampos(producto, campos);
}

namespace {

TEST(cTipoMovimiento, ElConstructorCompletoGuardaTodoTalCualEnElOrdenDeLosMiembros) {
  const T t("a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", 13.5, "n", "o", "p", "q", 18.5f,
            19.5f, 20.5f, "u", "v", 23, true, false);
  EXPECT_EQ(
      Columnas(t, campos),
      (Textos{"a",         "b", "c", "d", "e", "f",         "g",         "h",         "i", "j", "k", "l",
              "13.500000", "n", "o", "p", "q", "18.500000", "19.500000", "20.500000", "u", "v", "23"}));
  EXPECT_TRUE(t.getDataChanged());
  EXPECT_FALSE(t.IsNew());
}

TEST(cTipoMovimiento, ElConstructorTomaLoQueSeConvierte) {
  char cuenta[] = "d";
  const T t("a", "b", "c", cuenta, "e", "f", "g", "h", "i", "j", "k", "l", 5, "n", "o", "p", "q", 12.5, 5, 2L,
            "u", cuenta, 1.0, false, true);
  EXPECT_EQ(Columnas(t, campos),
            (Textos{"a",        "b", "c", "d", "e", "f",         "g",        "h",        "i", "j", "k", "l",
                    "5.000000", "n", "o", "p", "q", "12.500000", "5.000000", "2.000000", "u", "d", "1"}));
  EXPECT_FALSE(t.getDataChanged());
  EXPECT_TRUE(t.IsNew());
}

TEST(cTipoMovimiento, SinCuentasDeOrdenPasaAunqueSeManejen) {
  T t("Q", "b", "S", "d", "e", "f", "g", "h", "i", "D", "S", "S", 0.0, "", "", "S", "q", 0.0f, 0.0f, 0.0f,
      "u", "v", 1, true, false);
  EXPECT_TRUE(t.Check());
}

}  // namespace
}  // namespace pruebas
