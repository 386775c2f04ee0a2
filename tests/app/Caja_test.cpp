// The main window: what it is made of, its clock and session text, how a session opens and closes.
#include <algorithm>
#include <ctime>
#include <functional>

#include "catalogs/finance/TipoMovimiento_Window.h"
#include "catalogs/people/Usuario_Window.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "tests/app/ConCaja.h"
#include "tests/support/Espia.h"
#include "widgets/TextoAcotado.h"

namespace pruebas {
namespace {

using CajaTest = SinSesion;
using CajaConServidorTest = ConCaja;

constexpr char Desconectado[] = "¡DESCONECTADO!";

std::string TextoDeSesion(FXWindow* caja) {
  return Todos<FXLabel>(Unico<FXStatusBar>(caja)).back()->getText().text();
}
std::string Hora(FXWindow* caja) { return Unico<FXTextField>(Unico<FXStatusBar>(caja))->getText().text(); }

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

TEST_F(CajaTest, SusManejadoresRespondenUno) {
  const Principal caja;
  const Salida salida;
  const std::pair<FXuint, const char*> casos[] = {
      {60, "&OK"}, {61, "&Cerrar"}, {62, "&Aceptar"}, {63, nullptr}};
  for (const auto& [mensaje, respuesta] : casos) {
    SCOPED_TRACE(mensaje);
    Guion guion;
    if (respuesta) guion.Responde(respuesta);
    EXPECT_EQ(caja->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr), 1);
  }
  EXPECT_EQ(caja->handle(&App(), FXSEL(SEL_TIMEOUT, 100), nullptr), 1);
}

// With a server behind it.

TEST_F(CajaConServidorTest, DesconectarCierraYDejaLoDemasComoEstaba) {
  const Sesion sesion(*base_);
  IsConectado = true;
  CopiaTexto(gSchema, "norte");
  Espia espia;
  Escoge("&Desconectar");
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spspermisomodulo('adriana','0102');"});
  EXPECT_EQ(conn, nullptr);
  EXPECT_FALSE(IsConectado);
  EXPECT_STREQ(glogin, "adriana");
  EXPECT_STREQ(gSchema, "norte");
  EXPECT_EQ(TextoDeSesion(caja_.get()), "Usuario: adriana - Suc. norte ¡DESCONECTADO!");
  ExigeRechazo("&Monedas");
  ExigeRechazo("&Desconectar");
}

TEST_F(CajaConServidorTest, QuienNoPuedeDesconectarseSigueConectado) {
  const Sesion sesion(*base_, "camila");
  IsConectado = true;
  ExigeRechazo("&Desconectar");
  EXPECT_TRUE(IsConectado);
  EXPECT_EQ(PQstatus(conn), CONNECTION_OK);
}

TEST_F(CajaConServidorTest, ConectarAbreElLoginYRefrescaElTexto) {
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

TEST_F(CajaConServidorTest, ConectarDeNuevoNoCierraLaSesionAnterior) {
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

TEST_F(CajaConServidorTest, ElTextoDiceLoGuardadoAunqueElLoginSeRechace) {
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

TEST(CajaFin, DevuelveALaAplicacionLaLetraQueTenia) {
  FXFont* const anterior = App().getNormalFont();
  {
    const Principal caja;
    EXPECT_NE(App().getNormalFont(), anterior);
  }
  EXPECT_EQ(App().getNormalFont(), anterior);
}

/// A piece that says when it goes, together with the widget that it stands in.
class Testigo : public FXFrame {
 public:
  Testigo(FXComposite* padre, std::function<void()> alMorir)
      : FXFrame(padre, FRAME_NONE), alMorir_(std::move(alMorir)) {}
  ~Testigo() override { alMorir_(); }

 private:
  std::function<void()> alMorir_;
};

TEST(CajaFin, CallaElRelojYBorraSusPiezasEnOrden) {
  Textos idas;
  {
    const Principal caja;
    caja->onClock(nullptr, 0, nullptr);
    FXMenuBar* const barra = Unico<FXMenuBar>(caja.get());
    FXStatusBar* const estado = Unico<FXStatusBar>(caja.get());
    const std::vector<FXMenuTitle*> titulos = Todos<FXMenuTitle>(barra);
    const std::pair<const char*, FXComposite*> piezas[] = {
        {"dragShellMenu", dynamic_cast<FXComposite*>(barra->getDryDock())},
        {"statusBar", estado},
        {"menuBar", barra},
        {"menuCatalogos", titulos.at(1)->getMenu()},
        {"menuInicio", titulos.at(0)->getMenu()},
    };
    EXPECT_EQ(Rotulo(titulos[0]), "&Inicio");
    EXPECT_EQ(Rotulo(titulos[1]), "C&atalogos");
    for (const auto& [nombre, pieza] : piezas) {
      ASSERT_NE(pieza, nullptr) << nombre;
      new Testigo(pieza, [&idas, nombre = nombre, caja = caja.get()] {
        EXPECT_FALSE(App().hasTimeout(caja, Caja::ID_CLOCK));
        idas.push_back(nombre);
      });
    }
  }
  EXPECT_EQ(idas, (Textos{"menuInicio", "menuCatalogos", "menuBar", "statusBar", "dragShellMenu"}));
}

TEST_F(CajaConServidorTest, CreceHastaQueCabeLaFormaMasAncha) {
  const Sesion sesion(*base_);
  IsConectado = true;
  Escoge("&Usuarios");
  const auto formas = Todos<Usuario_Window>(caja_.get());
  ASSERT_EQ(formas.size(), 1u);
  EXPECT_EQ(formas[0]->getWidth(), 815);
  EXPECT_GT(caja_->getWidth(), 800);
  EXPECT_LE(formas[0]->getX() + formas[0]->getWidth(), formas[0]->getParent()->getWidth());
  EXPECT_FALSE(formas[0]->isMaximized());
}

TEST_F(CajaConServidorTest, ConLetraGrandeUnaFormaCreceLoQueLeFalta) {
  const Sesion sesion(*base_);
  IsConectado = true;
  FXFont* const comun = App().getNormalFont();
  FXFont grande(&App(), "arial", 180);
  grande.create();
  App().setNormalFont(&grande);  // as a screen of that resolution shows the common one
  for (const FXuint resolucion : {100u, 144u}) {
    App().reg().writeUnsignedEntry(Seccion, "screenres", resolucion);
    Escoge("&Tipo de Movimientos");
    const auto formas = Todos<TipoMovimiento_Window>(caja_.get());
    ASSERT_EQ(formas.size(), 1u);
    EXPECT_EQ(formas[0]->getWidth() == 830, resolucion == 100) << formas[0]->getWidth();
    delete formas[0];
  }
  App().setNormalFont(comun);
}

TEST_F(CajaConServidorTest, ConLetraGrandeUnDialogoNoEsMasAnchoQueLaPantalla) {
  const Sesion sesion(*base_);
  IsConectado = true;
  FXFont* const comun = App().getNormalFont();
  FXFont grande(&App(), "arial", 260);
  grande.create();
  App().setNormalFont(&grande);
  const FXint pantalla = App().getRootWindow()->getWidth();
  for (const FXuint resolucion : {100u, 192u}) {
    App().reg().writeUnsignedEntry(Seccion, "screenres", resolucion);
    Guion guion;
    guion.Con([&](FXDialogBox* ventana) {
      EXPECT_EQ(ventana->getWidth() > pantalla, resolucion == 100) << ventana->getWidth();
      const FXButton* const cerrar = Boton(ventana, "&Cerrar");
      FXint x = 0, y = 0;
      cerrar->translateCoordinatesTo(x, y, ventana, 0, 0);
      EXPECT_EQ(x + cerrar->getWidth() > pantalla, resolucion == 100);
      Pulsa(Boton(ventana, "&Cerrar"));
    });
    Pulsa(Opcion(caja_.get(), "Formulas"));
    EXPECT_EQ(guion.Cuadros().size(), 1u);
  }
  App().setNormalFont(comun);
}

/// The main window as the program makes it, its first login closed.
class CajaEnSuLugarTest : public SinSesion {
 protected:
  static void Anota(const char* llave, FXint valor) { App().reg().writeIntEntry("VENTANA", llave, valor); }
  static FXint Anotado(const char* llave) { return App().reg().readIntEntry("VENTANA", llave, -1); }
  /// Where it stands: left, top, width, height.
  static std::vector<FXint> Arranca(const std::function<void(Caja*)>& uso = {}) {
    const Salida salida;
    Guion guion;
    guion.Con([](FXDialogBox* login) { Pulsa(Boton(login, "&Cerrar")); });
    auto caja = std::make_unique<Caja>(&App());
    caja->create();
    Bombea(20);
    if (uso) uso(caja.get());
    return {caja->getX(), caja->getY(), caja->getWidth(), caja->getHeight()};
  }
};

TEST_F(CajaEnSuLugarTest, LaPrimeraVezMideOchocientosPorSeiscientos) {
  const auto lugar = Arranca();
  EXPECT_EQ(lugar.at(2), 800);
  EXPECT_EQ(lugar.at(3), 600);
}

TEST_F(CajaEnSuLugarTest, VuelveADondeEstaba) {
  Arranca([](Caja* caja) {
    caja->position(30, 40, 700, 500);
    Bombea(1200);  // the clock takes note
  });
  EXPECT_EQ(Anotado("ancho"), 700);
  EXPECT_EQ(Arranca(), (std::vector<FXint>{30, 40, 700, 500}));
}

TEST_F(CajaEnSuLugarTest, LoQueNoCabeEnLaPantallaNoSeToma) {
  const FXint ancho = App().getRootWindow()->getWidth(), alto = App().getRootWindow()->getHeight();
  const struct {
    FXint x, y, ancho, alto;
    bool mide;  // is its size taken?
  } tabla[] = {{0, 0, ancho + 1, 500, false}, {0, 0, 700, alto + 1, false},
               {0, 0, 399, 500, false},       {0, 0, 700, 299, false},
               {0, 0, -5, -5, false},         {ancho - 600, 0, 700, 500, true},
               {-1, 0, 700, 500, true},       {0, alto - 400, 700, 500, true}};
  for (const auto& fila : tabla) {
    SCOPED_TRACE(testing::Message() << fila.x << " " << fila.y << " " << fila.ancho << " " << fila.alto);
    Anota("x", fila.x);
    Anota("y", fila.y);
    Anota("ancho", fila.ancho);
    Anota("alto", fila.alto);
    const auto lugar = Arranca();
    EXPECT_EQ(lugar.at(2), fila.mide ? 700 : 800);
    EXPECT_EQ(lugar.at(3), fila.mide ? 500 : 600);
    EXPECT_GE(lugar.at(0), 0);
    EXPECT_LE(lugar.at(0) + lugar.at(2), ancho);
    EXPECT_LE(lugar.at(1) + lugar.at(3), alto);
  }
}

TEST_F(CajaConServidorTest, SeDejaDestruirConFormasAbiertas) {
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
