// The form of the investment types: its table, its messages, and what only it does.
#include "catalogs/finance/TipoInversion_Window.h"

#include <fxkeys.h>

#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Pantalla.h"

namespace pruebas {

FormaProducto FormaTipoInversion() {
  FormaProducto forma = De<TipoInversion_Window, tipoinversion>(TipoDeInversion());
  forma.rotulo = "Catalogo Tipo de Inversiones";
  forma.ancho = 800;
  forma.alto = 540;
  forma.traza = "terminando creacion frm tipoinversion";
  forma.ranura = 10;
  forma.cajas = {"Tipo de Inversión", "Identificación", "Datos del Tipo de Inversión"};
  forma.campos = {
      {"Tipo de Inversión:", Pieza::Clave, 3, "TipoInversionID"},
      {"Descripción:", Pieza::Texto, 30, "DescTipoInversion"},
      {"Tasa Normal:", Pieza::Real, 6, "Tasa_Normal"},
      {"Monto Minimo:", Pieza::Nada, 0, ""},
      {"Plazo Minimo:", Pieza::Nada, 0, ""},
      {"", Pieza::Real, 12, "MontoMin"},
      {"Monto Maximo:", Pieza::Real, 12, "MontoMax"},
      {"", Pieza::Entero, 3, "Plazo"},
      {"Plazo Maximo:", Pieza::EnteroReal, 5, "PlazoMax"},
      {"Pasivo:", Pieza::Cuenta, 10, "CuentaPasivo"},
      {"Interes devengado:", Pieza::Cuenta, 10, "CuentaPasivoVencida"},
      {"Interes:", Pieza::Cuenta, 10, "CuentaIntInver"},
      {"Interes No Cobrado:", Pieza::Cuenta, 10, "CuentaIntInverNoCob"},
      {"Cta. IDE:", Pieza::Cuenta, 10, "CuentaIvaInver"},
      {"Cuenta ISR:", Pieza::Cuenta, 10, "CuentaRiesgoCred"},
      {"Provision ISR:", Pieza::Cuenta, 10, "CuentaProvisionISR"},
      {"Calculo Interes:", Pieza::Combo, 5, "CalculoID"},
      {"Aplica IVA:", Pieza::Casilla, 0, "AplicaIvaInversion"},
      {"Mov.:", Pieza::Combo, 10, "TipoMovimientoID"},
      {"Aplica ISR:", Pieza::Casilla, 0, "AplicaISR"},
      {"Clasificación:", Pieza::Combo, 2, "ClasificacionID"},
      {"Reinvierte Interes:", Pieza::Casilla, 0, "ReinvierteInteres"},
  };
  forma.carga = "SELECT * FROM spstipoinversion('  ');";
  forma.trazaCarga = false;
  forma.propios = {{"Tasa_Normal", "12.500000"}};
  forma.fijas = {"AplicaIvaInversion"};
  forma.limites = {
      {"Tasa_Normal", "0.0001", ""},
      {"Tasa_Normal", "9999", ""},
      {"Tasa_Normal", "10000", "Está fuera de rango la tasa"},
      {"Tasa_Normal", "1e30", "Está fuera de rango la tasa"},
      {"Tasa_Normal", "1e39", "inf"},
      {"MontoMax", "999999995904", ""},
      {"MontoMax", "1e30", "Está fuera de rango el monto máximo"},
      {"MontoMax", "1e999", "inf"},
      {"MontoMin", "250000", ""},  // as the most
      {"MontoMin", "0.001", "Está fuera de rango el monto mínimo"},
      {"Plazo", "999", ""},
      {"PlazoMax", "99999", ""},
      {"PlazoMax", "1", ""},  // below the least
      {"DescTipoInversion", "O'Hara", "Hara"},
  };
  return forma;
}

namespace {

using V = TipoInversion_Window;

class TipoInversionVentana : public ConForma {
 protected:
  TipoInversionVentana() : ConForma(FormaTipoInversion()) {}
};

TEST_F(TipoInversionVentana, SusMensajesVanEnOrden) {
  const auto cuenta = [](int cual, auto manejador) {
    return Mando<V>(FXSelector(V::ID_CUENTA + cual), manejador);
  };
  const auto lupas = [](int cual, FXSelector cuantas = 2) {
    return Mando<V>(FXSelector(V::ID_BUSCAR + cual), &V::onCmdBusca, cuantas);
  };
  ExigeMapa<V>({
      Mando<V>(V::ID_AGREGAR, &V::onCmdAgregar),
      Mando<V>(V::ID_FIND, &V::onCmdFind),
      Mando<V>(V::ID_CLEAR, &V::onCmdClear),
      Mando<V>(V::ID_BORRAR, &V::onCmdBorrar),
      Mando<V>(V::ID_LISTA, &V::onCmdLista),
      Mando<V>(V::ID_CALCULO, &V::onCmdCalculo),
      cuenta(V::CuentaPasivo, &V::onCmdCuentaPasivo),
      cuenta(V::CuentaPasivoVencida, &V::onCmdCuentaPasivoVencido),
      cuenta(V::CuentaIntInver, &V::onCmdCuentaIntInver),
      cuenta(V::CuentaIntInverNoCob, &V::onCmdCuentaIntInverNoCob),
      cuenta(V::CuentaIvaInver, &V::onCmdCuentaIvaInver),
      Mando<V>(V::ID_APLICAIVA, &V::onCmdAplicaIvaInversion),
      cuenta(V::CuentaRiesgoCred, &V::onCmdCuentaRiesgoCred),
      cuenta(V::CuentaProvisionISR, &V::onCmdCuentaProvisionISR),
      Mando<V>(V::ID_TEST, &V::onCmdTest),
      {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit},
      lupas(V::CuentaPasivo),
      lupas(V::CuentaIntInver),
      lupas(V::CuentaIvaInver),
      lupas(V::CuentaProvisionISR, 1),
      Mando<V>(V::ID_MOVIMIENTO, &V::onCmdTipoMovimiento),
      {FXSEL(SEL_SIGNAL, V::ID_SALIR), FXSEL(SEL_SIGNAL, V::ID_SALIR), &V::onCmdQuit},
  });
  EXPECT_EQ(FXSelector{V::ID_AGREGAR}, FXSelector{FXMDIChild::ID_LAST});
}

TEST_F(TipoInversionVentana, CadaMandoRespondeUno) {
  for (const FXSelector mensaje :
       {FXSelector{V::ID_CALCULO}, FXSelector{V::ID_MOVIMIENTO}, FXSelector{V::ID_APLICAIVA}})
    EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr), 1);
}

// No widget sends its message.
TEST_F(TipoInversionVentana, ElMandoMuertoSaludaYBlanquea) {
  for (const FXButton* boton : Todos<FXButton>(forma_))
    EXPECT_FALSE(boton->getTarget() == forma_ && boton->getSelector() == V::ID_TEST);
  EligeRenglon(Lista(forma_), 0);
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_COMMAND, V::ID_TEST), nullptr), 1);
  EXPECT_EQ(guion.Ultimo().clase, Clase::Aviso);
  EXPECT_EQ(guion.Ultimo().titulo, "Aquí Que?");
  EXPECT_EQ(guion.Ultimo().texto, "Hola Mundo.!");
  EXPECT_EQ(guion.Cuadros().at(0).botones.size(), 1u);
  EXPECT_EQ(Pantalla(), Vacia());
}

TEST_F(TipoInversionVentana, LosMontosYPlazosVanEnSusMatrices) {
  FXMatrix* const campos = dynamic_cast<FXMatrix*>(Texto("MontoMin")->getParent());
  EXPECT_EQ(campos->getNumColumns(), 5);
  const auto lugar = [&](FXWindow* pieza) {
    const FXint indice = campos->indexOfChild(pieza);
    return std::pair(campos->rowOfChild(pieza), campos->colOfChild(pieza)) ==
                   std::pair(indice / 5, indice % 5)
               ? std::pair(indice / 5, indice % 5)
               : std::pair(-1, -1);
  };
  EXPECT_EQ(lugar(Texto("MontoMin")), std::pair(0, 0));
  EXPECT_EQ(lugar(Texto("MontoMax")), std::pair(0, 2));
  EXPECT_EQ(lugar(Texto("Plazo")), std::pair(1, 0));
  EXPECT_EQ(lugar(Texto("PlazoMax")), std::pair(1, 2));
  EXPECT_EQ(Texto("Plazo")->getLayoutHints(), FXuint{LAYOUT_NORMAL});
  for (const char* columna : {"MontoMin", "MontoMax", "PlazoMax"})
    EXPECT_NE(Texto(columna)->getLayoutHints(), FXuint{LAYOUT_NORMAL}) << columna;
  FXMatrix* const etiquetas = dynamic_cast<FXMatrix*>(campos->getPrev());
  EXPECT_EQ(etiquetas->getNumColumns(), 1);
  EXPECT_EQ(Etiquetas(etiquetas), (Textos{"Monto Minimo:", "Plazo Minimo:"}));
  EXPECT_EQ(dynamic_cast<FXMatrix*>(Combo("CalculoID")->getParent())->getNumColumns(), 4);
  EXPECT_EQ(Combo("CalculoID")->getParent(), Casilla("ReinvierteInteres")->getParent());
}

TEST_F(TipoInversionVentana, LosCombosOfrecenSuCatalogoYNueveTienenLetraPropia) {
  const auto renglones = [&](const char* columna) {
    Textos textos;
    for (FXint i = 0; i < Combo(columna)->getNumItems(); ++i)
      textos.push_back(Combo(columna)->getItemText(i).text());
    return textos;
  };
  EXPECT_EQ(renglones("ClasificacionID"), (Textos{"Inversión Normal", "Certificado Aportacion"}));
  Textos movimientos, formulas;
  for (const auto& [numero, fila] : Catalogo::TipoMovimiento)
    movimientos.push_back(fila.getDescTipoMovimiento());
  for (const auto& [numero, fila] : Catalogo::Calculos) formulas.push_back(fila.getDescripcionCalculo());
  EXPECT_EQ(renglones("TipoMovimientoID"), movimientos);
  EXPECT_EQ(renglones("CalculoID"), formulas);
  int propias = 0;
  for (const FXComboBox* combo : Todos<FXComboBox>(forma_))
    propias += combo->getFont()->getName() == "helvica";
  EXPECT_EQ(propias, 9);
  EXPECT_NE(Combo("ClasificacionID")->getFont()->getName(), "helvica");
  EXPECT_NE(Combo("TipoMovimientoID")->getFont(), Combo("CalculoID")->getFont());
}

TEST_F(TipoInversionVentana, SinClasificacionSeRechazaYLaNormalEsCero) {
  Llena(Alta(), "ClasificacionID");
  const char* const dicho = "No ha especificado la Clasificación del Tipo de Inversión";
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{dicho});
  Pon("ClasificacionID", "0");
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(EnElServidor("Q  ").at("ClasificacionID"), "0");
}

TEST_F(TipoInversionVentana, ElMovimientoPuedeFaltar) {
  Llena(Alta(), "TipoMovimientoID");
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(
      base_.Valor("select tipomovimientoid is null from norte.tipoinversion where tipoinversionid = 'Q'"),
      "t");
  Busca("Q");
  EXPECT_EQ(Combo("TipoMovimientoID")->getCurrentItem(), 0);
  EXPECT_TRUE(Manda("&Aceptar").empty());  // shown, not taken
}

TEST_F(TipoInversionVentana, LosMontosSeTrazanTambienCuandoDespuesSeRechazan) {
  Llena(Alta());
  Escribe(Texto("MontoMax"), "0");
  Salida salida;
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"El monto maximo debe ser mayor que 0"});
  EXPECT_EQ(salida.Texto(), "fMontoMax: 0, fMontoMin: 1000.25\n");
}

TEST_F(TipoInversionVentana, LoQueYaNoExisteLoDiceElServidorYSeCorrige) {
  base_.Ejecuta(
      "insert into norte.tipomovimiento select (jsonb_populate_record(t, '{\"tipomovimientoid\": \"ZZ\","
      " \"desctipomovimiento\": \"ZZ\"}')).*"
      " from norte.tipomovimiento t where tipomovimientoid = 'AH'");
  catalogo.LoadTipoMovimiento();
  Cierra();
  Abre();
  Registra();
  const struct {
    const char *columna, *clave, *borra, *dicho;
    void (Catalogo::*carga)();
  } casos[] = {
      {"CalculoID", "6", "delete from norte.calculo where calculoid = 6",
       "No existe la fórmula de cálculo: número 6", &Catalogo::LoadCalculos},
      {"TipoMovimientoID", "ZZ", "delete from norte.tipomovimiento where tipomovimientoid = 'ZZ'",
       "No existe el tipo de movimiento: ZZ", &Catalogo::LoadTipoMovimiento},
  };
  for (const auto& [columna, clave, borra, dicho, carga] : casos) {
    SCOPED_TRACE(columna);
    const Valores antes = EnElServidor("Q  ");
    const FXint suya = Opcion(columna, clave);
    Pon(columna, clave);
    base_.Ejecuta(borra);
    for (const bool releido : {false, true}) {
      if (releido) (catalogo.*carga)();
      const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
      EXPECT_NE(dichos.at(1).find(dicho), std::string::npos) << dichos.at(1);
      EXPECT_EQ(EnElServidor("Q  "), antes);
    }
    EligeOpcion(Combo(columna), suya);  // the cache has no such row any more: the key stays
    EXPECT_NE(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}).at(1).find(dicho), std::string::npos);
    Pon(columna, Otra().at(columna));
    EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
    EXPECT_EQ(EnElServidor("Q  ").at(columna), Otra().at(columna));
  }
}

TEST_F(TipoInversionVentana, UnPlazoConPuntoOExponenteGuardaSuParteEntera) {
  Llena(Alta());
  for (const auto& [tecleado, vale] :
       {std::pair("12.5", 12), {"1e999", 1}, {"99999", 99999}, {"-5", -5}, {"", 0}}) {
    Escribe(Texto("PlazoMax"), tecleado);
    Manda("&Aceptar", {vale > 0 ? Respuesta::No : Respuesta::Aceptar});
    EXPECT_EQ(tipoinversion.getPlazoMax(), vale);
    Tecla(Texto("MontoMin"), KEY_End);
    EXPECT_EQ(Pantalla().at("PlazoMax"), std::to_string(vale));  // the field shows what it stands for
  }
}

TEST_F(TipoInversionVentana, LaListaPasaPorSuBorrador) {
  EXPECT_EQ(Lista(forma_)->getItemText(Lista(forma_)->getNumItems() - 1), sTipoInversion);
}

}  // namespace
}  // namespace pruebas
