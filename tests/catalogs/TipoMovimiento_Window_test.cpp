// The form of the movement types: its table, its messages, and what only it does.
#include "catalogs/finance/TipoMovimiento_Window.h"

#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Pantalla.h"

namespace pruebas {

FormaProducto FormaTipoMovimiento() {
  FormaProducto forma = De<TipoMovimiento_Window, tipomovimiento>(TipoDeMovimiento());
  forma.rotulo = "Catalogo Tipo de Movimientos";
  forma.ancho = 830;
  forma.alto = 590;
  forma.traza = "terminando creacion frm tipomovimiento";
  forma.ranura = 5;
  forma.cajas = {"Tipo de Movimiento", "Identificación", "Datos del Tipo de Movimiento"};
  forma.campos = {
      {"Tipo de Movimiento:", Pieza::Clave, 3, "TipoMovimientoID"},
      {"Descripción:", Pieza::Texto, 30, "DescTipoMovimiento"},
      {"    Aplica al Saldo:", Pieza::Casilla, 0, "AplicaSaldo"},
      {"   Acepta Depositos:", Pieza::Casilla, 0, "AceptaDeposito"},
      {"    Acepta Retiros:", Pieza::Casilla, 0, "AceptaRetiro"},
      {"         Desglosa IVA:", Pieza::Casilla, 0, "DesglosaIva"},
      {"Cta. Deposito:", Pieza::Cuenta, 10, "CuentaDeposito"},
      {"Cta. Retiro:", Pieza::Cuenta, 10, "CuentaRetiro"},
      {"Cta. Int. Pagado:", Pieza::Cuenta, 10, "CuentaIntPagado"},
      {"Cta. Int. Cobrado:", Pieza::Cuenta, 10, "CuentaIntCobrado"},
      {"Cta. IDE:", Pieza::Cuenta, 10, "CuentaIvaMovimiento"},
      {"Cta. ISR:", Pieza::Cuenta, 10, "CuentaISR"},
      {"Provision ISR:", Pieza::Cuenta, 10, "CuentaProvisionISR"},
      {"         Tipo Poliza:", Pieza::Texto, 1, "TipoPoliza"},
      {"Tasa Interes:", Pieza::Real, 6, "TasaInteres"},
      {"   Maneja Cuentas Orden:", Pieza::Casilla, 0, "CuentaOrden"},
      {"Cta. Orden Acredor:", Pieza::Cuenta, 10, "CuentaOrdenAcredor"},
      {"Cta. Orden Deudor:", Pieza::Cuenta, 10, "CuentaOrdenDeudor"},
      {"  Cuota Comision:", Pieza::Real, 6, "Comision"},
      {"% Comision:", Pieza::Real, 6, "PorComision"},
      {"    % IVA Comision:", Pieza::Real, 6, "PorIvaComision"},
      {"Cta. Comision:", Pieza::Cuenta, 10, "CuentaComision"},
      {"Cta. IVA Comision:", Pieza::Cuenta, 10, "CuentaIvaComision"},
  };
  forma.carga = "SELECT * FROM spstipomovimiento('  ');";
  forma.trazaCarga = true;
  forma.propios = {{"TasaInteres", "12.750000"}};
  forma.fijas = {"AplicaSaldo", "AceptaDeposito", "AceptaRetiro", "CuentaOrden", "DesglosaIva"};
  forma.limites = {
      {"TasaInteres", "0", ""},
      {"TasaInteres", "9999", ""},
      {"TasaInteres", "10000", "Está fuera de rango la tasa de interés"},
      {"TasaInteres", "1e300", "Está fuera de rango la tasa de interés"},
      {"TasaInteres", "1e999", "inf"},
      {"Comision", "0", ""},
      {"Comision", "999999", ""},
      {"Comision", "1e30", "Está fuera de rango la cuota de comisión"},
      {"Comision", "1e39", "inf"},
      {"PorComision", "0", ""},
      {"PorComision", "100", ""},
      {"PorComision", "100.01", "Está fuera de rango el porcentaje de comisión"},
      {"PorIvaComision", "0", ""},
      {"PorIvaComision", "100", ""},
      {"PorIvaComision", "1e30", "Está fuera de rango el porcentaje de IVA de la comisión"},
      {"DescTipoMovimiento", "O'Hara", "Hara"},
      {"TipoPoliza", "'", "ERROR"},
  };
  return forma;
}

namespace {

using V = TipoMovimiento_Window;

class TipoMovimientoVentana : public ConForma {
 protected:
  TipoMovimientoVentana() : ConForma(FormaTipoMovimiento()) {}
};

TEST_F(TipoMovimientoVentana, SusMensajesVanEnOrden) {
  const auto cuenta = [](int cual, auto manejador) {
    return Mando<V>(FXSelector(V::ID_CUENTA + cual), manejador);
  };
  const auto lupas = [](int cual, FXSelector cuantas = 2) {
    return Mando<V>(FXSelector(V::ID_BUSCAR + cual), &V::onCmdBuscar, cuantas);
  };
  ExigeMapa<V>({
      Mando<V>(V::ID_AGREGAR, &V::onCmdAgregar),
      Mando<V>(V::ID_FIND, &V::onCmdFind),
      Mando<V>(V::ID_CLEAR, &V::onCmdClear),
      Mando<V>(V::ID_BORRAR, &V::onCmdBorrar),
      Mando<V>(V::ID_LISTA, &V::onCmdLista),
      cuenta(V::CuentaDeposito, &V::onCmdCuentaDeposito),
      cuenta(V::CuentaRetiro, &V::onCmdCuentaRetiro),
      cuenta(V::CuentaIntPagado, &V::onCmdCuentaIntPagado),
      cuenta(V::CuentaIntCobrado, &V::onCmdCuentaIntCobrado),
      cuenta(V::CuentaIvaMovimiento, &V::onCmdCuentaIvaMovimiento),
      Mando<V>(V::ID_APLICASALDO, &V::onCmdAplicaSaldo),
      cuenta(V::CuentaISR, &V::onCmdCuentaISR),
      cuenta(V::CuentaProvisionISR, &V::onCmdCuentaProvisionISR),
      cuenta(V::CuentaOrdenAcredor, &V::onCmdCuentaOrdenAcredor),
      cuenta(V::CuentaOrdenDeudor, &V::onCmdCuentaOrdenDeudor),
      cuenta(V::CuentaComision, &V::onCmdCuentaComision),
      cuenta(V::CuentaIvaComision, &V::onCmdCuentaIvaComision),
      lupas(V::CuentaDeposito),
      lupas(V::CuentaIntPagado),
      lupas(V::CuentaIvaMovimiento),
      lupas(V::CuentaProvisionISR),
      lupas(V::CuentaOrdenDeudor),
      lupas(V::CuentaIvaComision, 1),
      {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit},
      {FXSEL(SEL_SIGNAL, V::ID_SALIR), FXSEL(SEL_SIGNAL, V::ID_SALIR), &V::onCmdQuit},
  });
  EXPECT_EQ(FXSelector{V::ID_AGREGAR}, FXSelector{FXMDIChild::ID_LAST});
}

TEST_F(TipoMovimientoVentana, CadaMandoRespondeUno) {
  for (const FXSelector mensaje : {FXSelector{V::ID_APLICASALDO}, FXSelector(V::ID_CUENTA + V::CuentaISR)})
    EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr), 1);
}

TEST_F(TipoMovimientoVentana, SinMarcarNadaSeGuardanCuatroEnesYUnCero) {
  Valores valores = Alta();
  for (const char* columna : {"AplicaSaldo", "AceptaDeposito", "AceptaRetiro", "CuentaOrden"})
    valores[columna] = "N";
  valores["DesglosaIva"] = "0";
  Manda("&Nuevo");
  Llena(valores);
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(Enviado(), Guardado(tabla.producto.alta[0], valores));
}

TEST_F(TipoMovimientoVentana, CadaCasillaGuardaLaSuya) {
  Registra();
  Valores valores = Alta();
  for (const char* columna :
       {"AplicaSaldo", "AceptaDeposito", "AceptaRetiro", "CuentaOrden", "DesglosaIva"}) {
    SCOPED_TRACE(columna);
    for (int vez = 0; vez < 2; ++vez) {
      const bool marcada = Marcada(valores[columna]);
      valores[columna] =
          columna == std::string("DesglosaIva") ? (marcada ? "0" : "1") : (marcada ? "N" : "S");
      Pulsa(Casilla(columna));
      Acepta();
      EXPECT_EQ(Enviado(), Guardado(tabla.producto.cambio[0], valores));
    }
  }
}

// What the server never answers, and does not take back.
TEST_F(TipoMovimientoVentana, DeUnaLetraAjenaQuedaLaDelSaldoHastaQueSePulsa) {
  const Falla conX = [](PGconn* conexion, const char*) {
    return __real_PQexec(
        conexion,
        "select tipomovimientoid, cuentadeposito, cuentaretiro, cuentaintpagado, cuentaintcobrado,"
        " cuentaivamovimiento, cuentaisr, desctipomovimiento, 'X', tipopoliza, 'X', 'X',"
        " tasainteres, cuentaordenacredor, cuentaordendeudor, 'X', cuentaprovisionisr, comision,"
        " porcomision, porivacomision, cuentacomision, cuentaivacomision, 2"
        " from spstipomovimiento('AH')");
  };
  espia_.Cuando("spstipomovimiento", conX);
  Busca("AH");
  for (const char* columna : {"AplicaSaldo", "AceptaDeposito", "AceptaRetiro", "CuentaOrden"})
    EXPECT_FALSE(Casilla(columna)->getCheck()) << columna;
  EXPECT_EQ(Casilla("DesglosaIva")->getCheck(), MAYBE);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Guardar cambios realizados ?"});
  EXPECT_STREQ(tipomovimiento.getAplicaSaldo(), "X");
  for (const char* letra : {tipomovimiento.getAceptaDeposito(), tipomovimiento.getAceptaRetiro(),
                            tipomovimiento.getCuentaOrden()})
    EXPECT_STREQ(letra, "N");
  EXPECT_EQ(tipomovimiento.getDesglosaIva(), 1);
  Pulsa(Casilla("AplicaSaldo"));
  Manda("&Aceptar", {Respuesta::No});
  EXPECT_STREQ(tipomovimiento.getAplicaSaldo(), "S");
}

TEST_F(TipoMovimientoVentana, SinCuentasDeOrdenSeGuardaAunqueSeManejen) {
  Valores valores = Alta();
  valores["CuentaOrden"] = "S";
  valores["CuentaOrdenAcredor"] = valores["CuentaOrdenDeudor"] = "";
  for (const CampoForma& campo : tabla.campos)
    if (!valores[campo.columna].empty()) Pon(campo.columna, valores[campo.columna]);
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(Enviado(), Guardado(tabla.producto.alta[0], valores));

  // Read again, they show the first account of the chart and stay empty until one is chosen.
  Busca(valores["TipoMovimientoID"]);
  EXPECT_EQ(Combo("CuentaOrdenAcredor")->getCurrentItem(), 0);
  EXPECT_TRUE(Manda("&Aceptar").empty());
  Pon("CuentaOrdenAcredor", Cuenta("6205"));
  Acepta();
  EXPECT_EQ(EnElServidor(valores["TipoMovimientoID"]).at("CuentaOrdenAcredor"), Cuenta("6205"));
}

TEST_F(TipoMovimientoVentana, UnaClaveDeUnaLetraViajaConSuBlancoYLaTerceraNoViaja) {
  Llena(Alta());
  for (const auto& [tecleada, viaja] : {std::pair("Z", "Z "), {"XYZ", "XY"}}) {
    Escribe(Texto("TipoMovimientoID"), tecleada);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
    EXPECT_STREQ(tipomovimiento.getTipoMovimientoID(), viaja);
  }
}

TEST_F(TipoMovimientoVentana, LaListaPasaPorSuBorrador) {
  EXPECT_EQ(Lista(forma_)->getItemText(Lista(forma_)->getNumItems() - 1), sTipoMovimiento);
}

}  // namespace
}  // namespace pruebas
