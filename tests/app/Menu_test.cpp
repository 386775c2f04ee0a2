// The menu of the main window: what stands in it, and which messages find a handler.
#include <fxkeys.h>

#include <algorithm>
#include <map>

#include "catalogs/simple/Monedas_Window.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "tests/app/ConCaja.h"
#include "tests/support/Espia.h"

namespace pruebas {
namespace {

using MenuTest = SinSesion;
using MenuConServidorTest = ConCaja;

const Textos Separador = {"-"};

/// A pane, cascades as their title alone: label, help, key, message, drawing.
const struct Panel {
  const char* titulo;
  Tabla entradas;
} Menu[] = {
    {"&Inicio",
     {{"&Conectar", "Conectarse al sistema", "", "61", "login_icon"},
      {"&Desconectar", "Desconectarse del sistema", "", "62", ""},
      {"&NO permitir opciones de conexion", "", "", "63", ""},
      Separador,
      {"&Salir", "Salir del sistema", "Ctl-Q", "salir", "quit_gif"}}},
    {"C&atalogos",
     {{"&Monedas", "Catalogo de tipos de monedas", "", "64", "moneda_icon"},
      Separador,
      {"&Bancos", "Catalogo de cuentas bancarias", "", "65", "banco_icon"},
      {"Movimientos Bancarios", "Catalogo de tipo de movimientos de bancos", "", "72", ""},
      Separador,
      {"&Tipo de Movimientos", "Catalogo de tipos de movimientos", "", "67", "tipomovimiento_icon"},
      {"Tipo de Inversión", "Catalogo de Tipos de Inversión", "", "73", ""},
      Separador,
      {"Prestamos"},
      {"Socios"},
      {"Seguridad"},
      {"Contables"},
      {"Otros"}}},
    {"Prestamos",
     {{"Tipo de &Prestamos", "Catalogo de tipos de prestamos", "", "68", "tipoprestamo_icon"},
      {"Estados del Credito", "Catalogo de estados del credito", "", "70", ""},
      {"Finalidades del credito", "Catalogo de finalidades de creditos", "", "71", ""},
      {"Clasificacion de Creditos", "Catalogo de Clasificacion de Creditos", "", "91", ""},
      {"Tipo de &Garantias", "Catalogo de tipos de garantias", "", "69", ""},
      {"Tipo Tasa &Interes", "", "", "98", ""},
      {"Ta&sa Interes", "", "", "99", ""}}},
    {"Socios",
     {{"Tipo de Socios", "Catalogo de Tipo de Socios", "", "77", ""},
      {"Ocupaciones", "Ocupaciones", "", "96", ""},
      {"Motivos Baja", "Catalogo de Motivos de Baja de Socios", "", "90", ""}}},
    {"Seguridad",
     {{"&Usuarios", "Mto. de usuarios y accesos a opciones del sistema", "", "66", "user_icon"},
      {"Tipo de Usuarios", "Catalogo de tipos de usuarios", "", "79", ""},
      {"Modulos", "Catalogo de Modulos del Sistema", "", "76", ""}}},
    {"Contables",
     {{"INPC", "Catalogo de INPC", "", "86", ""},
      {"UDIS", "Catalogo de UDIS", "", "87", ""},
      {"Recargos", "Catalogo de Recargos", "", "88", ""}}},
    {"Otros",
     {{"Formulas", "Catalogo de Formulas para Calculo de intereses", "", "78", ""},
      {"Tipo Promoción", "Catalogo de Tipos de Promociones", "", "83", ""},
      {"Tasas", "Historico de Tasas de Interes", "", "84", ""},
      {"Dias Inabiles", "Dias Inabiles", "", "94", ""},
      {"Conceptos Scoring", "Concepto", "", "97", ""}}},
    {"A&yuda", {{"&Acerca del Sistema ...", "", "", "60", ""}}},
};

/// The name of a drawing of the menu; empty for none.
std::string Nombre(const FXIcon* dibujo) {
  const std::map<const FXIcon*, std::string> nombres = {
      {nullptr, ""},
      {icono(&App(), iconos::login_icon), "login_icon"},
      {iconoGif(&App(), iconos::quit_gif), "quit_gif"},
      {icono(&App(), iconos::moneda_icon), "moneda_icon"},
      {icono(&App(), iconos::banco_icon), "banco_icon"},
      {icono(&App(), iconos::tipomovimiento_icon), "tipomovimiento_icon"},
      {icono(&App(), iconos::tipoprestamo_icon), "tipoprestamo_icon"},
      {icono(&App(), iconos::user_icon), "user_icon"},
  };
  const auto hallado = nombres.find(dibujo);
  return hallado == nombres.end() ? "otro" : hallado->second;
}

/// What an entry sends: a message to the main window, or the application's end.
std::string Mensaje(const FXMenuCommand* opcion, const Caja* caja) {
  if (opcion->getTarget() == caja) return std::to_string(opcion->getSelector());
  return opcion->getTarget() == &App() && opcion->getSelector() == FXApp::ID_QUIT ? "salir" : "a otro";
}

Tabla Entradas(const FXPopup* panel, const Caja* caja) {
  Tabla entradas;
  for (FXWindow* pieza = panel->getFirst(); pieza; pieza = pieza->getNext()) {
    if (const auto* opcion = dynamic_cast<FXMenuCommand*>(pieza))
      entradas.push_back({Rotulo(opcion), opcion->getHelpText().text(), opcion->getAccelText().text(),
                          Mensaje(opcion, caja), Nombre(opcion->getIcon())});
    else if (const auto* cascada = dynamic_cast<FXMenuCascade*>(pieza))
      entradas.push_back({Rotulo(cascada)});
    else if (dynamic_cast<FXMenuSeparator*>(pieza))
      entradas.push_back(Separador);
    else
      entradas.push_back({pieza->getClassName()});
  }
  return entradas;
}

TEST_F(MenuTest, LosTitulosEstanEnSuLugar) {
  const Principal caja;
  const std::vector<FXMenuTitle*> titulos = Todos<FXMenuTitle>(Unico<FXMenuBar>(caja.get()));
  ASSERT_EQ(titulos.size(), 3u);
  EXPECT_EQ(Rotulo(titulos[0]), "&Inicio");
  EXPECT_EQ(Rotulo(titulos[1]), "C&atalogos");
  EXPECT_EQ(Rotulo(titulos[2]), "A&yuda");
  for (const FXMenuTitle* titulo : titulos)
    EXPECT_EQ((titulo->getLayoutHints() & LAYOUT_RIGHT) != 0, titulo == titulos[2]);
}

TEST_F(MenuTest, CadaPanelTieneSusEntradasEnOrden) {
  const Principal caja;
  std::map<std::string, FXPopup*> paneles;
  for (const FXMenuTitle* titulo : Todos<FXMenuTitle>(caja.get()))
    paneles[Rotulo(titulo)] = titulo->getMenu();
  for (const FXMenuCascade* cascada : Todos<FXMenuCascade>(paneles.at("C&atalogos")))
    paneles[Rotulo(cascada)] = cascada->getMenu();
  for (const auto& [titulo, entradas] : Menu) {
    SCOPED_TRACE(titulo);
    ASSERT_EQ(paneles.count(titulo), 1u);
    EXPECT_EQ(Entradas(paneles.at(titulo), caja.get()), entradas);
    EXPECT_EQ(paneles.at(titulo)->getOwner(), caja.get());
  }
}

TEST_F(MenuTest, LosMensajesConManejadorSonTreintaYCuatro) {
  const auto atiende = [](FXuint tipo, FXuint mensaje) {
    return Caja::metaClass.search(FXSEL(tipo, mensaje)) != nullptr;
  };
  const std::vector<FXuint> sinManejador = {80, 81, 82, 85, 89, 91, 92};
  for (FXuint mensaje = 60; mensaje < 100; ++mensaje)
    EXPECT_EQ(atiende(SEL_COMMAND, mensaje),
              std::count(sinManejador.begin(), sinManejador.end(), mensaje) == 0)
        << mensaje;
  EXPECT_TRUE(atiende(SEL_TIMEOUT, 100));
  int atendidos = 0;
  for (FXuint tipo = 0; tipo < SEL_LAST; ++tipo)
    for (FXuint mensaje = 0; mensaje < 200; ++mensaje) atendidos += atiende(tipo, mensaje);
  EXPECT_EQ(atendidos, 34);
}

TEST_F(MenuTest, AlDestruirseSeLlevaSusPaneles) {
  const size_t antes = Todos<FXMenuPane>(App().getRootWindow()).size();
  { const Principal caja; }
  EXPECT_EQ(Todos<FXMenuPane>(App().getRootWindow()).size(), antes);
}

TEST_F(MenuConServidorTest, ConectadoONoTodasLasEntradasEstanActivas) {
  const auto apagadas = [this] {
    Textos rotulos;
    for (FXMenuPane* panel : Todos<FXMenuPane>(App().getRootWindow())) {
      for (const FXMenuCommand* opcion : Todos<FXMenuCommand>(panel)) {
        if (opcion->getTarget() == caja_.get() && !opcion->isEnabled()) rotulos.push_back(Rotulo(opcion));
      }
    }
    return rotulos;
  };
  Bombea();
  EXPECT_EQ(apagadas(), Textos{});
  const Sesion sesion(*base_);
  IsConectado = true;
  Bombea();
  EXPECT_EQ(apagadas(), Textos{});
  Escoge("&Desconectar");
  Bombea();
  EXPECT_EQ(apagadas(), Textos{});
}

TEST_F(MenuConServidorTest, ClasificacionDeCreditosNoHaceNada) {
  const Sesion sesion(*base_);
  const Espia espia;
  Escoge("Clasificacion de Creditos");
  EXPECT_EQ(espia.Sentencias(), Textos{});
  EXPECT_EQ(salida_.Texto(), "");
  EXPECT_EQ(Todos<FXMDIChild>(caja_.get()).size(), 0u);
}

// The switch of the connection options.

TEST_F(MenuTest, PermitirOpcionesEmpiezaEnSi) {
  const Principal caja;
  const Salida salida;
  Pulsa(Opcion(caja.get(), "&NO permitir opciones de conexion"));
  EXPECT_STREQ(App().reg().readStringEntry(Seccion, "permitirop", ""), "N");
  EXPECT_EQ(salida.Texto(), "Opciones NO\nPermitirN\n");
  Pulsa(Opcion(caja.get(), "&NO permitir opciones de conexion"));  // the label stays
  EXPECT_STREQ(App().reg().readStringEntry(Seccion, "permitirop", ""), "S");
  EXPECT_EQ(salida.Texto(), "Opciones NO\nPermitirN\nOpciones SI\nPermitirS\n");
}

TEST_F(MenuTest, LaEntradaDePermitirSigueAlAjusteDelArranque) {
  for (const auto& [ajuste, rotulo] : {std::pair{"S", "&NO permitir opciones de conexion"},
                                       {"N", "&SI permitir opciones de conexion"},
                                       {"s", "&SI permitir opciones de conexion"}}) {
    Ajusta("permitirop", ajuste);
    const Principal caja;
    EXPECT_NO_THROW(Opcion(caja.get(), rotulo)) << ajuste;
  }
}

// The end of the program.

/// Does `accion`, done while the program runs, end it?
bool Termina(const std::function<void()>& accion) {
  Reloj reloj(accion);
  reloj.Inicia(1);
  Reloj rescate([] { App().stop(7); });
  rescate.Inicia(3000);
  return App().run() == 0;
}

TEST_F(MenuConServidorTest, SalirTerminaElPrograma) {
  EXPECT_TRUE(Termina([&] { Pulsa(Opcion(caja_.get(), "&Salir")); }));
}

TEST_F(MenuConServidorTest, CtlQTerminaElProgramaDesdeDondeSea) {
  const auto terminaDesde = [](FXWindow* pieza) {
    return Termina([&] { Tecla(pieza, KEY_q, CONTROLMASK); });
  };
  EXPECT_TRUE(terminaDesde(Unico<FXTextField>(caja_.get()))) << "la ventana principal sin formas";
  const Sesion sesion(*base_);
  Escoge("&Monedas");
  auto* const forma = Unico<Monedas_Window>(caja_.get());
  ASSERT_NE(forma, nullptr);
  EXPECT_TRUE(terminaDesde(CampoJuntoA(forma, "Moneda:"))) << "una clave";
  EXPECT_TRUE(terminaDesde(CampoJuntoA(forma, "Valor :"))) << "un campo";
  EXPECT_TRUE(terminaDesde(Lista(forma))) << "la lista";
  EXPECT_TRUE(terminaDesde(Boton(forma, "&Nuevo"))) << "un botón";
}

TEST_F(MenuConServidorTest, LasTeclasDelMenuSobrevivenAUnaForma) {
  const Sesion sesion(*base_);
  const FXHotKey catalogos = parseHotKey("&a");
  ASSERT_TRUE(caja_->getAccelTable()->hasAccel(catalogos));
  Escoge("&Monedas");
  FXMDIChild* const forma = Todos<FXMDIChild>(caja_.get()).front();
  EXPECT_TRUE(forma->getAccelTable()->hasAccel(parseHotKey("&n")));
  Pulsa(Boton(forma, "&Cerrar"));
  Bombea();
  EXPECT_TRUE(caja_->getAccelTable()->hasAccel(catalogos));
}

}  // namespace
}  // namespace pruebas
