// The main window: what it is made of, its clock and session text, and the entries of its menu.
#include "app/Caja.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "app/sesion.h"
#include "catalogs/simple/Monedas_Window.h"
#include "db/Apertura.h"
#include "framework/Iconos.h"
#include "icons/iconos.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Salida.h"
#include "tests/support/Servidor.h"
#include "tests/support/Sesion.h"
#include "widgets/TextoAcotado.h"

namespace pruebas {
namespace {

constexpr char Seccion[] = "SETTINGS";
constexpr char Desconectado[] = "¡DESCONECTADO!";

static_assert(Caja::ID_ABOUT == 60 && Caja::ID_CONECTAR == 61 && Caja::ID_DESCONECTAR == 62 &&
              Caja::ID_PERMITIROP == 63 && Caja::ID_MONEDAS == 64 && Caja::ID_CLOCK == 100);

void Ajusta(const char* llave, const char* valor) { App().reg().writeStringEntry(Seccion, llave, valor); }

void AjustaSesion() {
  Ajusta("user", "adriana");
  Ajusta("sucursal", "norte");
  Ajusta("servidor", "127.0.0.1");
  Ajusta("db", "caja");
}

/// The entries of a pane, as they stand, each with its tooltip-less label; "-" for a separator.
Textos Entradas(FXWindow* panel) {
  Textos entradas;
  for (FXWindow* pieza = panel->getFirst(); pieza; pieza = pieza->getNext()) {
    if (auto* opcion = dynamic_cast<FXMenuCommand*>(pieza)) entradas.push_back(Rotulo(opcion));
    if (dynamic_cast<FXMenuSeparator*>(pieza)) entradas.push_back("-");
  }
  return entradas;
}

template <class T>
T* Unico(FXWindow* raiz) {
  const std::vector<T*> todos = Todos<T>(raiz);
  return todos.size() == 1 ? todos[0] : nullptr;
}

std::string TextoDeSesion(FXWindow* caja) {
  return Todos<FXLabel>(Unico<FXStatusBar>(caja)).back()->getText().text();
}
std::string Hora(FXWindow* caja) { return Unico<FXTextField>(Unico<FXStatusBar>(caja))->getText().text(); }

class CajaTest : public testing::Test {
 protected:
  void SetUp() override {
    SinAjustes();
    IsConectado = false;
  }
  void TearDown() override { apertura::Cierra(); }
};

// The window.

TEST_F(CajaTest, TieneSuTituloSuTamanoYSusIconos) {
  const Principal caja;
  EXPECT_STREQ(caja->getClassName(), "Caja");
  EXPECT_EQ(caja->getMetaClass()->getBaseClass(), FXMETACLASS(FXMainWindow));
  EXPECT_STREQ(caja->getTitle().text(), "Tolvara V. 0.0.7a");
  EXPECT_EQ(caja->getWidth(), 800);
  EXPECT_EQ(caja->getHeight(), 600);
  EXPECT_EQ(caja->getDecorations(), FXuint{DECOR_ALL});
  EXPECT_EQ(caja->getIcon(), icono(&App(), iconos::bigcaja_icon));
  EXPECT_EQ(caja->getMiniIcon(), icono(&App(), iconos::smallcaja));
  EXPECT_STREQ(App().getNormalFont()->getName().text(), "arial");
  EXPECT_EQ(App().getNormalFont()->getSize(), 90u);
  EXPECT_EQ(App().getNormalFont()->getWeight(), FXuint{FXFont::Normal});
}

TEST_F(CajaTest, TieneBarraDeMenuDeHerramientasYDeEstado) {
  const Principal caja;
  const std::vector<FXToolBar*> barras = Todos<FXToolBar>(caja.get());
  ASSERT_EQ(barras.size(), 2u);
  ASSERT_NE(dynamic_cast<FXMenuBar*>(barras[0]), nullptr);
  for (FXToolBar* barra : barras) {
    EXPECT_NE(barra->getWetDock(), nullptr);
    const auto* agarre = dynamic_cast<FXToolBarGrip*>(barra->getFirst());
    ASSERT_NE(agarre, nullptr);
    EXPECT_TRUE(agarre->isDoubleBar());
    EXPECT_EQ(barra->getPadLeft(), 3);
    EXPECT_EQ(barra->getPadTop(), 2);
    EXPECT_EQ(barra->getFrameStyle(), FXuint{FRAME_RAISED});
  }
  EXPECT_EQ(barras[1]->numChildren(), 1);  // the tool bar holds its grip and nothing else
  const FXStatusBar* estado = Unico<FXStatusBar>(caja.get());
  ASSERT_NE(estado, nullptr);
  EXPECT_TRUE(estado->getCornerStyle());
  EXPECT_EQ(estado->getHSpacing(), 4);
  EXPECT_EQ(estado->getVSpacing(), 0);
}

TEST_F(CajaTest, ElEstadoTieneRelojYTextoDeSesion) {
  const Principal caja;
  FXStatusBar* const estado = Unico<FXStatusBar>(caja.get());
  const FXTextField* reloj = Unico<FXTextField>(estado);
  ASSERT_NE(reloj, nullptr);
  EXPECT_EQ(reloj->getNumColumns(), 11);
  EXPECT_EQ(reloj->getTextStyle(), FXuint{TEXTFIELD_READONLY});
  EXPECT_EQ(reloj->getBackColor(), estado->getBackColor());
  EXPECT_EQ(TextoDeSesion(caja.get()), " ");
  const FXFrame* texto = Todos<FXLabel>(estado).back();
  for (const FXFrame* pieza : {static_cast<const FXFrame*>(reloj), texto}) {
    EXPECT_TRUE(pieza->getLayoutHints() & LAYOUT_RIGHT && pieza->getLayoutHints() & LAYOUT_CENTER_Y);
    EXPECT_EQ(pieza->getFrameStyle(), FXuint{FRAME_SUNKEN});
    EXPECT_EQ(pieza->getPadLeft(), 2);
    EXPECT_EQ(pieza->getPadTop(), 1);
  }
}

TEST_F(CajaTest, TieneAreaDeHijasConSusBotones) {
  const Principal caja;
  EXPECT_NE(Unico<FXMDIClient>(caja.get()), nullptr);
  EXPECT_NE(Unico<FXMDIWindowButton>(caja.get()), nullptr);
  EXPECT_NE(Unico<FXMDIDeleteButton>(caja.get()), nullptr);
  EXPECT_NE(Unico<FXMDIRestoreButton>(caja.get()), nullptr);
  EXPECT_NE(Unico<FXMDIMinimizeButton>(caja.get()), nullptr);
}

TEST_F(CajaTest, AlConstruirseVaciaLasRanuras) {
  std::fill_n(mdiArray, RanurasMdi, true);
  const Principal caja;
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi, true), 0);
}

// The menu.

TEST_F(CajaTest, ElMenuTieneSusEntradasEnOrden) {
  const Principal caja;
  const std::vector<FXMenuTitle*> titulos = Todos<FXMenuTitle>(caja.get());
  ASSERT_EQ(titulos.size(), 3u);
  EXPECT_EQ(Rotulo(titulos[0]), "&Inicio");
  EXPECT_EQ(Rotulo(titulos[1]), "C&atalogos");
  EXPECT_EQ(Rotulo(titulos[2]), "A&yuda");
  EXPECT_TRUE(titulos[2]->getLayoutHints() & LAYOUT_RIGHT);
  EXPECT_EQ(Entradas(titulos[0]->getMenu()),
            (Textos{"&Conectar", "&Desconectar", "&NO permitir opciones de conexion", "-", "&Salir"}));
  EXPECT_EQ(Entradas(titulos[1]->getMenu()).at(0), "&Monedas");
  EXPECT_EQ(Entradas(titulos[2]->getMenu()), Textos{"&Acerca del Sistema ..."});
}

TEST_F(CajaTest, CadaEntradaTieneIconoAyudaYMensaje) {
  const Principal caja;
  const struct {
    const char* rotulo;
    const char* ayuda;
    FXIcon* dibujo;
    FXSelector mensaje;
    const char* tecla;
  } entradas[] = {
      {"&Conectar", "Conectarse al sistema", icono(&App(), iconos::login_icon), 61, ""},
      {"&Desconectar", "Desconectarse del sistema", nullptr, 62, ""},
      {"&NO permitir opciones de conexion", "", nullptr, 63, ""},
      {"&Salir", "Salir del sistema", iconoGif(&App(), iconos::quit_gif), FXApp::ID_QUIT, "Ctl-Q"},
      {"&Monedas", "Catalogo de tipos de monedas", icono(&App(), iconos::moneda_icon), 64, ""},
      {"&Acerca del Sistema ...", "", nullptr, 60, ""},
  };
  for (const auto& [rotulo, ayuda, dibujo, mensaje, tecla] : entradas) {
    SCOPED_TRACE(rotulo);
    const FXMenuCommand* opcion = Opcion(caja.get(), rotulo);
    EXPECT_STREQ(opcion->getHelpText().text(), ayuda);
    EXPECT_EQ(opcion->getIcon(), dibujo);
    EXPECT_EQ(opcion->getSelector(), mensaje);
    EXPECT_STREQ(opcion->getAccelText().text(), tecla);
    EXPECT_EQ(opcion->getTarget(), mensaje == FXApp::ID_QUIT ? static_cast<FXObject*>(&App()) : caja.get());
  }
}

TEST_F(CajaTest, SalirYCtlQTerminanElPrograma) {
  for (const bool tecla : {false, true}) {
    SCOPED_TRACE(tecla);
    const Principal caja;
    Reloj reloj([&] {
      if (tecla) {
        Tecla(Unico<FXTextField>(caja.get()), KEY_q, CONTROLMASK);
      } else {
        Pulsa(Opcion(caja.get(), "&Salir"));
      }
    });
    reloj.Inicia(1);
    Reloj rescate([] {
      ADD_FAILURE() << "el programa sigue";
      App().stop(7);
    });
    rescate.Inicia(3000);
    EXPECT_EQ(App().run(), 0);
  }
}

// The switch of the connection options.

TEST_F(CajaTest, PermitirOpcionesEmpiezaEnSi) {
  const Principal caja;
  const Salida salida;
  Pulsa(Opcion(caja.get(), "&NO permitir opciones de conexion"));
  EXPECT_STREQ(App().reg().readStringEntry(Seccion, "permitirop", ""), "N");
  EXPECT_EQ(salida.Texto(), "Opciones NO\nPermitirN\n");
  Pulsa(Opcion(caja.get(), "&NO permitir opciones de conexion"));  // the label stays
  EXPECT_STREQ(App().reg().readStringEntry(Seccion, "permitirop", ""), "S");
  EXPECT_EQ(salida.Texto(), "Opciones NO\nPermitirN\nOpciones SI\nPermitirS\n");
}

TEST_F(CajaTest, LaEntradaDePermitirSigueAlAjusteDelArranque) {
  for (const auto& [ajuste, rotulo] : {std::pair{"S", "&NO permitir opciones de conexion"},
                                       {"N", "&SI permitir opciones de conexion"},
                                       {"s", "&SI permitir opciones de conexion"}}) {
    Ajusta("permitirop", ajuste);
    const Principal caja;
    EXPECT_NO_THROW(Opcion(caja.get(), rotulo)) << ajuste;
  }
}

// Session text and clock.

TEST_F(CajaTest, ElTextoDeSesionDiceLosAjustes) {
  const Principal caja;
  caja->readRegistry();
  EXPECT_EQ(TextoDeSesion(caja.get()), "Usuario: xxx - Suc. \\\\xxx\\xxx\\xxx ¡DESCONECTADO!");
  AjustaSesion();
  caja->readRegistry();
  EXPECT_EQ(TextoDeSesion(caja.get()), "Usuario: adriana - Suc. \\\\127.0.0.1\\caja\\norte ¡DESCONECTADO!");
  IsConectado = true;
  caja->readRegistry();
  EXPECT_EQ(TextoDeSesion(caja.get()), "Usuario: adriana - Suc. \\\\127.0.0.1\\caja\\norte *");
}

TEST_F(CajaTest, UnAjusteConPorcentajesSeMuestraTalCual) {
  const Principal caja;
  const std::string largo(3000, '%');
  Ajusta("user", "%s%n");
  Ajusta("db", largo.c_str());
  caja->readRegistry();
  EXPECT_EQ(TextoDeSesion(caja.get()), "Usuario: %s%n - Suc. \\\\xxx\\" + largo + "\\xxx ¡DESCONECTADO!");
}

TEST_F(CajaTest, ElRelojDaLaHoraYSigueAndando) {
  const Principal caja;
  App().addTimeout(caja.get(), Caja::ID_CLOCK, 1);
  ASSERT_TRUE(BombeaHasta([&] { return !Hora(caja.get()).empty(); }));
  const std::string primera = Hora(caja.get());
  tm partes{};
  const char* const fin = strptime(primera.c_str(), "%I:%M:%S %p", &partes);
  EXPECT_TRUE(fin && *fin == '\0') << primera;
  EXPECT_EQ(primera.size(), 11u);
  const FXuint resta = App().remainingTimeout(caja.get(), Caja::ID_CLOCK);
  EXPECT_GT(resta, 300u);
  EXPECT_LE(resta, 500u);
  EXPECT_TRUE(BombeaHasta([&] { return Hora(caja.get()) != primera; }));
}

TEST_F(CajaTest, ElRelojCalladoNoQuedaPendiente) {
  Caja* muerta = nullptr;
  {
    const Principal caja;
    muerta = caja.get();
    caja->onClock(nullptr, 0, nullptr);
    EXPECT_TRUE(App().hasTimeout(muerta, Caja::ID_CLOCK));
  }
  EXPECT_FALSE(App().hasTimeout(muerta, Caja::ID_CLOCK));
}

// The start.

TEST_F(CajaTest, AlCrearseSeMuestraPideElLoginYTraza) {
  CopiaTexto(formatocuenta, "99-99");
  const Principal caja;
  caja->hide();
  Guion guion;
  const Salida salida;
  guion.Con([&](FXDialogBox* login) {
    EXPECT_STREQ(login->getClassName(), "Login_Window");
    EXPECT_EQ(login->getOwner(), caja.get());
    EXPECT_TRUE(caja->shown());
    EXPECT_EQ(salida.Texto(), "");
    EXPECT_TRUE(BombeaHasta([&] { return !Hora(caja.get()).empty(); }));  // the clock ticks behind a dialog
    Pulsa(Boton(login, "&Cerrar"));
  });
  caja->create();
  EXPECT_EQ(guion.Cuadros().size(), 1u);
  EXPECT_EQ(salida.Texto(), "Formato Cuenta 99-99\n");
  EXPECT_EQ(TextoDeSesion(caja.get()), "Usuario: xxx - Suc. \\\\xxx\\xxx\\xxx ¡DESCONECTADO!");
  for (const FXMenuTitle* titulo : Todos<FXMenuTitle>(caja.get())) {
    for (const FXMenuCommand* opcion : Todos<FXMenuCommand>(titulo->getMenu()))
      EXPECT_TRUE(opcion->isEnabled());
  }
}

TEST_F(CajaTest, AcercaDelSistemaSePresenta) {
  const Principal caja;
  Guion guion;
  guion.Con([&](FXDialogBox* acerca) {
    EXPECT_EQ(acerca->getOwner(), caja.get());
    EXPECT_EQ(acerca->getDecorations(), FXuint{DECOR_TITLE | DECOR_BORDER});
    const auto* marco = dynamic_cast<FXVerticalFrame*>(acerca->getFirst());
    ASSERT_NE(marco, nullptr);
    EXPECT_EQ(marco->getPadLeft(), 10);
    EXPECT_EQ(marco->getPadBottom(), 10);
    EXPECT_EQ(marco->getVSpacing(), 0);
    EXPECT_NE(Unico<FXHorizontalSeparator>(acerca), nullptr);
    FXButton* const boton = Boton(acerca, "&OK");
    EXPECT_TRUE(boton->getButtonStyle() & BUTTON_DEFAULT);
    EXPECT_TRUE(boton->isInitial());
    EXPECT_EQ(boton->getParent()->getFocus(), boton);
    EXPECT_EQ(boton->getPadLeft(), 32);
    EXPECT_EQ(boton->getPadTop(), 2);
    Pulsa(boton);
  });
  Pulsa(Opcion(caja.get(), "&Acerca del Sistema ..."));
  ASSERT_EQ(guion.Cuadros().size(), 1u);
  EXPECT_EQ(guion.Cuadros().at(0).titulo, "Acerca del Sistema");
  EXPECT_EQ(guion.Cuadros().at(0).texto,
            "Tolvara \n"
            "\n TOLVARA, Cliente Gráfico Versión 0.0.7a\n\n El equipo de desarrollo de Tolvara\n");
  EXPECT_EQ(guion.Cuadros().at(0).botones, Textos{"&OK"});
}

// The options, with a server behind them.

class CajaOpcionTest : public CajaTest {
 protected:
  static void SetUpTestSuite() { base_ = new BaseDatos; }
  static void TearDownTestSuite() {
    delete base_;
    base_ = nullptr;
  }
  void SetUp() override {
    CajaTest::SetUp();
    AjustaSesion();
    Ajusta("db", base_->nombre().c_str());
    Ajusta("puerto", Servidor::Unico().puerto().c_str());
    moneda.Clear();
  }
  void TearDown() override {
    CajaTest::TearDown();
    base_->MataSesiones();
  }

  /// Chooses an entry; every one of `respuestas` answers a box.
  Textos Escoge(const char* rotulo, size_t cajas = 0) {
    Guion guion;
    while (cajas-- > 0) guion.Responde(Respuesta::Aceptar);
    Pulsa(Opcion(caja_.get(), rotulo));
    cuadros_ = guion.Cuadros();
    return guion.Mensajes();
  }
  size_t Formas() { return Todos<Monedas_Window>(caja_.get()).size(); }

  void EsperaRechazo(const char* rotulo) {
    EXPECT_EQ(Escoge(rotulo, 1), Textos{"No tiene acceso a la opción ..."});
    ASSERT_EQ(cuadros_.size(), 1u);
    EXPECT_EQ(cuadros_.at(0).titulo, "Acceso NO AUTORIZADO");
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Error);
  }

  static BaseDatos* base_;
  Salida salida_;
  const Principal caja_;
  std::vector<Cuadro> cuadros_;
};

BaseDatos* CajaOpcionTest::base_ = nullptr;

TEST_F(CajaOpcionTest, MonedasPreguntaElAccesoYSeAbreUnaVez) {
  const Sesion sesion(*base_);
  Espia espia;
  EXPECT_TRUE(Escoge("&Monedas").empty());
  EXPECT_EQ(Formas(), 1u);
  EXPECT_EQ(espia.Sentencias().at(0), "SELECT * FROM spspermisomodulo('adriana','0203');");
  EXPECT_EQ(salida_.Lineas().at(0), "SELECT * FROM spspermisomodulo('adriana','0203');");
  EXPECT_TRUE(mdiArray[1]);
  espia.Vacia();
  EXPECT_TRUE(Escoge("&Monedas").empty());
  EXPECT_EQ(Formas(), 1u);
  EXPECT_EQ(espia.Sentencias().size(), 1u);  // asked at each click
  Pulsa(Boton(Todos<Monedas_Window>(caja_.get()).at(0), "&Cerrar"));
  EXPECT_EQ(Formas(), 0u);
  Escoge("&Monedas");
  EXPECT_EQ(Formas(), 1u);
}

TEST_F(CajaOpcionTest, UnaRanuraOcupadaCierraLaOpcionSinAviso) {
  const Sesion sesion(*base_);
  mdiArray[1] = true;
  EXPECT_TRUE(Escoge("&Monedas").empty());
  EXPECT_EQ(Formas(), 0u);
  mdiArray[1] = false;
}

TEST_F(CajaOpcionTest, SoloLaEneMayusculaNiegaYLaFaltaDeRenglon) {
  const struct {
    const char* permiso;  ///< null for no row
    bool abre;
  } casos[] = {{"S", true}, {"N", false}, {"", true}, {"n", true}, {nullptr, false}};
  for (const auto& [permiso, abre] : casos) {
    SCOPED_TRACE(permiso ? permiso : "sin renglón");
    BaseDatos base;
    const std::string suyo = " where usuarioid = 'braulio' and clavemodulo = '0203'";
    base.Ejecuta(permiso ? "update norte.permisomodulo set permiso = '" + std::string(permiso) + "'" + suyo
                         : "delete from norte.permisomodulo" + suyo);
    const Sesion sesion(base, "braulio");
    if (abre) {
      EXPECT_TRUE(Escoge("&Monedas").empty());
      ASSERT_EQ(Formas(), 1u);
      Pulsa(Boton(Todos<Monedas_Window>(caja_.get()).at(0), "&Cerrar"));
    } else {
      EsperaRechazo("&Monedas");
      EXPECT_EQ(Formas(), 0u);
    }
  }
}

TEST_F(CajaOpcionTest, ElPermisoQuitadoValeDesdeLaSiguienteOpcion) {
  BaseDatos base;
  const Sesion sesion(base);
  Escoge("&Monedas");
  Pulsa(Boton(Todos<Monedas_Window>(caja_.get()).at(0), "&Cerrar"));
  base.Ejecuta(
      "update norte.permisomodulo set permiso = 'N' where usuarioid = 'adriana' and clavemodulo = '0203'");
  EsperaRechazo("&Monedas");
}

TEST_F(CajaOpcionTest, UnAccesoQueNoSePuedePreguntarSeNiega) {
  const Falla fallas[] = {falla::Nula(), falla::Error("%s %n"), falla::SinFilas(), falla::CorteAntes(),
                          falla::CorteDespues()};
  for (const Falla& mala : fallas) {
    const Sesion sesion(*base_);
    Espia espia;
    espia.En(0, mala);
    EsperaRechazo("&Monedas");
    EXPECT_EQ(espia.Sentencias().size(), 1u);
    EXPECT_EQ(Formas(), 0u);
  }
}

TEST_F(CajaOpcionTest, SinSesionNingunaOpcionPasaYNadaSeCae) {
  ASSERT_EQ(conn, nullptr);
  EsperaRechazo("&Monedas");
  EsperaRechazo("&Desconectar");
  EXPECT_EQ(Formas(), 0u);
}

TEST_F(CajaOpcionTest, DesconectarCierraYDejaLoDemasComoEstaba) {
  const Sesion sesion(*base_);
  IsConectado = true;
  CopiaTexto(gSchema, "norte");
  Espia espia;
  EXPECT_TRUE(Escoge("&Desconectar").empty());
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spspermisomodulo('adriana','0102');"});
  EXPECT_EQ(conn, nullptr);
  EXPECT_FALSE(IsConectado);
  EXPECT_STREQ(glogin, "adriana");
  EXPECT_STREQ(gSchema, "norte");
  EXPECT_EQ(TextoDeSesion(caja_.get()), "Usuario: adriana - Suc. norte ¡DESCONECTADO!");
  EXPECT_TRUE(Opcion(caja_.get(), "&Monedas")->isEnabled());
  EsperaRechazo("&Monedas");
  EsperaRechazo("&Desconectar");
}

TEST_F(CajaOpcionTest, QuienNoPuedeDesconectarseSigueConectado) {
  const Sesion sesion(*base_, "camila");
  IsConectado = true;
  EsperaRechazo("&Desconectar");
  EXPECT_TRUE(IsConectado);
  EXPECT_EQ(PQstatus(conn), CONNECTION_OK);
}

TEST_F(CajaOpcionTest, ConectarAbreElLoginYRefrescaElTexto) {
  Guion guion;
  guion.Con([](FXDialogBox* login) {
    Escribe(login, "Password:", BaseDatos::Clave);
    Pulsa(Boton(login, "&Aceptar"));
  });
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Opcion(caja_.get(), "&Conectar"));
  EXPECT_TRUE(IsConectado);
  EXPECT_EQ(TextoDeSesion(caja_.get()),
            "Usuario: adriana - Suc. \\\\127.0.0.1\\" + base_->nombre() + "\\norte *");
}

TEST_F(CajaOpcionTest, ConectarDeNuevoNoCierraLaSesionAnterior) {
  {
    const Sesion sesion(*base_);
    IsConectado = true;
    Guion guion;
    guion.Con([](FXDialogBox* login) {
      Escribe(login, "Password:", BaseDatos::Clave);
      Pulsa(Boton(login, "&Aceptar"));
    });
    guion.Responde(Respuesta::Aceptar);
    Pulsa(Opcion(caja_.get(), "&Conectar"));
    EXPECT_TRUE(IsConectado);
  }
  // The later one has been closed by the line above.
  EXPECT_TRUE(BombeaHasta(
      [] { return base_->Valor("select count(*) from pg_stat_activity where usename = 'adriana'") == "1"; }));
}

TEST_F(CajaOpcionTest, ElTextoDiceLoGuardadoAunqueElLoginSeRechace) {
  BaseDatos base;
  base.Ejecuta("update sur.empresa set nconcurrencias = 0");
  Ajusta("db", base.nombre().c_str());
  Guion guion;
  guion.Con([](FXDialogBox* login) {
    Pulsa(Boton(login, "Opciones >>"));
    Escribe(login, "Sucursal:", "sur");
    Escribe(login, "Password:", BaseDatos::Clave);
    Pulsa(Boton(login, "&Aceptar"));
  });
  guion.Responde(Respuesta::Aceptar);
  guion.Responde("&Cerrar");
  Pulsa(Opcion(caja_.get(), "&Conectar"));
  EXPECT_EQ(TextoDeSesion(caja_.get()),
            "Usuario: adriana - Suc. \\\\127.0.0.1\\" + base.nombre() + "\\sur " + Desconectado);
}

TEST_F(CajaOpcionTest, LasTeclasDelMenuSobrevivenAUnaForma) {
  const Sesion sesion(*base_);
  const Principal caja;
  const FXHotKey catalogos = parseHotKey("&a");
  ASSERT_TRUE(caja->getAccelTable()->hasAccel(catalogos));
  Pulsa(Opcion(caja.get(), "&Monedas"));
  FXMDIChild* const forma = Todos<FXMDIChild>(caja.get()).front();
  EXPECT_TRUE(forma->getAccelTable()->hasAccel(parseHotKey("&n")));
  Pulsa(Boton(forma, "&Cerrar"));
  Bombea();
  EXPECT_TRUE(caja->getAccelTable()->hasAccel(catalogos));
}

TEST(CajaFin, DevuelveALaAplicacionLaLetraQueTenia) {
  FXFont* const anterior = App().getNormalFont();
  {
    const Principal caja;
    EXPECT_NE(App().getNormalFont(), anterior);
  }
  EXPECT_EQ(App().getNormalFont(), anterior);
}

TEST_F(CajaOpcionTest, SeDejaDestruirConFormasAbiertas) {
  const Sesion sesion(*base_);
  auto caja = std::make_unique<Principal>();
  Pulsa(Opcion(caja->get(), "&Monedas"));
  EXPECT_TRUE(mdiArray[1]);
  caja.reset();
  EXPECT_FALSE(mdiArray[1]);
  Bombea(20);
}

}  // namespace
}  // namespace pruebas
