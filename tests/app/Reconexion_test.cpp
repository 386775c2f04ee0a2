// The server goes while the user works: he is told, what he has typed stays, and F9 brings him back.
#include <gtest/gtest.h>

#include "catalogs/simple/Modulo_Window.h"
#include "catalogs/simple/Monedas_Window.h"
#include "db/Login_Window.h"
#include "tests/app/ConTeclas.h"
#include "tests/support/Entorno.h"
#include "tests/support/Espia.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

constexpr char SinLinea[] = "F9: conectarse. Se perdió la conexión.";

class ReconexionTest : public ConTeclas {
 protected:
  /// What the bar tells after a turn of the clock: the line, and whether the session text says connected.
  std::pair<std::string, bool> Estado() {
    caja_->handle(&App(), FXSEL(SEL_TIMEOUT, Caja::ID_CLOCK), nullptr);
    FXStatusBar* const barra = pruebas::Unico<FXStatusBar>(caja_.get());
    const std::string texto = Todos<FXLabel>(barra).back()->getText().text();
    return {barra->getStatusLine()->getNormalText().text(), texto.back() == '*'};
  }
  void ExigePerdida() {
    EXPECT_TRUE(BombeaHasta([this] { return Estado().first == SinLinea; }));
    EXPECT_FALSE(Estado().second);
  }
  void ExigeEnLinea() { EXPECT_EQ(Estado(), (std::pair<std::string, bool>{"Listo.", true})); }

  /// The answers to a login that succeeds.
  static void Entra(Guion& guion) {
    guion.Con([](FXDialogBox* login) {
      EXPECT_STREQ(login->getClassName(), "Login_Window");
      Escribe(login, "Password:", BaseDatos::Clave);
      Pulsa(Boton(login, "&Aceptar"));
    });
    guion.Responde(Respuesta::Aceptar);  // the greeting
  }
  /// F9, by key, and that login.
  void EntraConF9() {
    Guion guion;
    Entra(guion);
    escritorio_.Teclea({"F9"});
    EXPECT_TRUE(BombeaHasta([&] { return guion.Pendientes() == 0; }));
    Bombea(100);
  }
};

TEST_F(ReconexionTest, LaPerdidaSeVeSinTocarNada) {
  ExigeEnLinea();
  Espia espia;
  base_->MataSesiones();
  ExigePerdida();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_TRUE(IsConectado);  // it is the login that opens a session, and the user who closes one
}

TEST_F(ReconexionTest, QuienSeDesconectaNoHaPerdidoNada) {
  Escoge("&Desconectar");
  EXPECT_EQ(Estado().first, "Listo.");
  base_->MataSesiones();
  EXPECT_EQ(Estado().first, "Listo.");
}

TEST_F(ReconexionTest, UnaFormaSigueDondeEstabaYSeGuardaAlVolver) {
  Escoge("&Monedas");
  auto* const forma = Todos<Monedas_Window>(caja_.get()).at(0);
  Escribe(forma, "Moneda:", "RX");
  Escribe(forma, "Descripción:", "Prueba de reconexión");
  Escribe(forma, "Valor :", "2.5");
  base_->MataSesiones();
  base_->Ejecuta("insert into norte.moneda values ('RZ', 1, 'De otra persona')");
  {
    Guion guion;
    guion.Responde(Respuesta::Si);
    guion.Con([](FXDialogBox* caja) { Pulsa(Boton(caja, "&Aceptar")); });
    Pulsa(Boton(forma, "&Aceptar"));
    ASSERT_EQ(guion.Cuadros().size(), 2u);
    EXPECT_EQ(guion.Cuadros()[1].titulo, "Error en Validación");
    EXPECT_EQ(guion.Cuadros()[1].texto.find("No se sabe"), std::string::npos);
  }
  ExigePerdida();
  EXPECT_EQ(Leido(forma, "Descripción:"), "Prueba de reconexión");
  EntraConF9();
  ExigeEnLinea();
  EXPECT_EQ(Leido(forma, "Moneda:"), "RX");
  EXPECT_EQ(Leido(forma, "Descripción:"), "Prueba de reconexión");
  EXPECT_GE(Lista(forma)->findItem("De otra persona"), 0);
  EXPECT_EQ(Lista(forma)->findItem("Prueba de reconexión"), -1);
  {
    Guion guion;
    guion.Responde(Respuesta::Si);
    Pulsa(Boton(forma, "&Aceptar"));
  }
  EXPECT_EQ(base_->Valor("select count(*) from norte.moneda where monedaid = 'RX'"), "1");
  EXPECT_EQ(base_->Valor("delete from norte.moneda where monedaid in ('RX', 'RZ') returning 'x'"), "x");
}

TEST_F(ReconexionTest, UnGuardadoCuyaRespuestaSePerdioSeVeEnLaListaAlVolver) {
  for (const bool llego : {true, false}) {
    SCOPED_TRACE(llego);
    Escoge("&Monedas");
    auto* const forma = Todos<Monedas_Window>(caja_.get()).at(0);
    Escribe(forma, "Moneda:", "RX");
    Escribe(forma, "Descripción:", "Quién sabe");
    Escribe(forma, "Valor :", "1");
    {
      Espia espia;
      espia.Cuando("COMMIT;", llego ? falla::CorteDespues() : falla::CorteAntes());
      Guion guion;
      guion.Responde(Respuesta::Si);
      guion.Responde(Respuesta::Aceptar);
      Pulsa(Boton(forma, "&Aceptar"));
      EXPECT_EQ(guion.Ultimo().titulo, "Error en Validación");
      EXPECT_EQ(guion.Ultimo().texto.find("No se sabe si se guardó: "), 0u) << guion.Ultimo().texto;
    }
    EXPECT_EQ(Leido(forma, "Descripción:"), "Quién sabe");
    EntraConF9();
    EXPECT_EQ(Lista(forma)->findItem("Quién sabe") >= 0, llego);
    EXPECT_EQ(base_->Valor("select count(*) from norte.moneda where monedaid = 'RX'"), llego ? "1" : "0");
    base_->Ejecuta("delete from norte.moneda where monedaid = 'RX'");
    Pulsa(Boton(forma, "&Cerrar"));
    Bombea(10);
  }
}

TEST_F(ReconexionTest, DesdeUnDialogoSeVuelveSinCerrarlo) {
  Guion guion;
  guion.Con([&](FXDialogBox* dialogo) {
    Toma(dialogo);
    Escribe(dialogo, "Clave:", "Z9");
    base_->MataSesiones();
    ExigePerdida();
    Entra(guion);
    escritorio_.Teclea({"F9"});
    EXPECT_TRUE(BombeaHasta([&] { return guion.Pendientes() == 0; }));
    Bombea(100);
    ExigeEnLinea();
    EXPECT_EQ(Leido(dialogo, "Clave:"), "Z9");
    EXPECT_GT(Lista(dialogo)->getNumItems(), 0);
    Pulsa(Boton(dialogo, "&Cerrar"));
  });
  Pulsa(Opcion(caja_.get(), "Modulos"));
  EXPECT_EQ(PQstatus(conn), CONNECTION_OK);
}

TEST_F(ReconexionTest, QuienDesisteSigueSinConexion) {
  base_->MataSesiones();
  ExigePerdida();
  Guion guion;
  guion.Responde("&Cerrar");
  escritorio_.Teclea({"F9"});
  EXPECT_TRUE(BombeaHasta([&] { return guion.Pendientes() == 0; }));
  ExigePerdida();
}

TEST_F(ReconexionTest, EnUnaCajaYEnLaEntradaLaTeclaNoHaceNada) {
  Escoge("&Monedas");
  auto* const forma = Todos<Monedas_Window>(caja_.get()).at(0);
  Escribe(forma, "Moneda:", "R?");
  Guion guion;
  const auto teclea = [&](FXDialogBox* ventana) {
    Toma(ventana);
    escritorio_.Teclea({"F9"});
    Bombea(200);
    Pulsa(Boton(ventana, ventana->isMemberOf(FXMETACLASS(Login_Window)) ? "&Cerrar" : "&Aceptar"));
  };
  guion.Con(teclea);
  Pulsa(Boton(forma, "&Buscar"));
  guion.Con(teclea);
  Pulsa(Opcion(caja_.get(), "&Conectar"));
  EXPECT_EQ(guion.Cuadros().size(), 2u);
}

TEST_F(ReconexionTest, SoloF9SinOtraTecla) {
  Guion guion;
  escritorio_.Teclea({"shift+F9", "ctrl+F9", "F8"});
  Bombea(200);
  EXPECT_TRUE(guion.Cuadros().empty());
}

TEST_F(ReconexionTest, EnUnServidorQueSoloLeeSeEntraYGuardarSeRechaza) {
  sesion_.reset();
  base_->Ejecuta("alter role adriana in database " + base_->nombre() +
                 " set default_transaction_read_only = on");
  const Variable atributos("PGTARGETSESSIONATTRS", "prefer-standby");
  EntraConF9();
  ExigeEnLinea();
  Escoge("&Monedas");
  auto* const forma = Todos<Monedas_Window>(caja_.get()).at(0);
  EXPECT_GT(Lista(forma)->getNumItems(), 0);
  Escribe(forma, "Moneda:", "RX");
  Escribe(forma, "Descripción:", "No se puede");
  Escribe(forma, "Valor :", "1");
  Guion guion;
  guion.Responde(Respuesta::Si);
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(forma, "&Aceptar"));
  EXPECT_EQ(guion.Ultimo().titulo, "Error en Validación");
  EXPECT_NE(guion.Ultimo().texto.find("read-only transaction"), std::string::npos) << guion.Ultimo().texto;
  EXPECT_EQ(Leido(forma, "Descripción:"), "No se puede");
  ExigeEnLinea();
  base_->Ejecuta("alter role adriana in database " + base_->nombre() +
                 " reset default_transaction_read_only");
}

}  // namespace
}  // namespace pruebas
