// The options of the menu: whose permission each one asks, which form it opens, and which slots are in its
// way.
#include <fxkeys.h>

#include <algorithm>

#include "tests/app/ConCaja.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"

// Behind all others: its macros have common names.
#include <X11/Xlib.h>

namespace pruebas {
namespace {

constexpr int Modal = -1;  // in the place of a slot: a dialog

const struct Renglon {
  FXuint mensaje;
  const char* modulo;  ///< null: open to every user
  const char* forma;
  int prueba;  ///< the slot that the option tests
  int toma;    ///< and the one that its form takes
} Opciones[] = {
    {64, "0203", "Monedas_Window", 1, 1},
    {65, "0204", "Banco_Window", 2, 2},
    {66, "0206", "Usuario_Window", 4, 4},
    {67, "0207", "TipoMovimiento_Window", 5, 5},
    {68, "0208", "TipoPrestamo_Window", 6, 6},
    {69, "0209", "Tipo_Garantia_Window", Modal, Modal},
    {70, "0210", "Estados_Credito_Window", Modal, Modal},
    {71, "0211", "Finalidades_Window", Modal, Modal},
    {72, "0205", "TipoMoviBanco_Window", 3, 3},
    {73, "0212", "TipoInversion_Window", 10, 10},
    {74, "0213", "EstadoMex_Window", Modal, Modal},
    {75, "0214", "CiudadMex_Window", Modal, Modal},
    {76, "0215", "Modulo_Window", Modal, Modal},
    {77, "0217", "TipoSocio_Window", Modal, Modal},
    {78, "0218", "Calculo_Window", Modal, Modal},
    {79, "0216", "TipoUsuario_Window", Modal, Modal},
    {83, "0420", "TipoPromocion_Window", 91, 91},
    {84, "0424", "Tasa_Window", 94, 100},
    {86, "0428", "Inpc_Window", 98, 1},
    {87, "0427", "Udis_Window", 97, 1},
    {88, "0429", "Recargos_Window", 99, 1},
    {90, nullptr, "MotivoBaja_Window", 80, 99},
    {93, "0442", "Sujeto_Window", Modal, Modal},
    {94, "0448", "Inabil_Window", 98, 1},
    {95, "0449", "Grupo_Window", 98, 99},
    {96, "0450", "Ocupacion_Window", 98, 99},
    {97, "0452", "ConceptoScoring_Window", Modal, Modal},
    {98, "0217", "TasaInteres_Window", Modal, Modal},
    {99, "0217", "TipoTasaInteres_Window", Modal, Modal},
};

bool EsHija(const Renglon& opcion) { return opcion.prueba != Modal; }

std::vector<Renglon> Las(const std::function<bool(const Renglon&)>& cuales) {
  std::vector<Renglon> elegidas;
  std::copy_if(std::begin(Opciones), std::end(Opciones), std::back_inserter(elegidas), cuales);
  return elegidas;
}

/// The options that ask for a permission.
std::vector<Renglon> Guardadas() {
  return Las([](const Renglon& opcion) { return opcion.modulo != nullptr; });
}
/// The options whose form opens as a child.
std::vector<Renglon> Hijas() {
  return Las([](const Renglon& opcion) { return EsHija(opcion); });
}

class OpcionesTest : public ConCaja {
 protected:
  /// Sends the message of an option, whose handler answers 1.
  void Manda(FXuint mensaje) { EXPECT_EQ(caja_->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr), 1); }
  /// The same for an option that shows no box; a dialog is closed.
  void Abre(const Renglon& opcion) {
    Guion guion;
    if (!EsHija(opcion))
      guion.Con([&](FXDialogBox* ventana) {
        EXPECT_STREQ(ventana->getClassName(), opcion.forma);
        EXPECT_EQ(ventana->getOwner(), caja_.get());
        Pulsa(Boton(ventana, "&Cerrar"));
      });
    Manda(opcion.mensaje);
  }
  void Rechaza(const Renglon& opcion) {
    ExigeRechazo([&] { Manda(opcion.mensaje); });
    EXPECT_EQ(Abiertas(), Textos{});
  }

  /// The classes of the child forms that are open.
  Textos Abiertas() {
    Textos clases;
    for (const FXMDIChild* forma : Todos<FXMDIChild>(caja_.get())) clases.push_back(forma->getClassName());
    return clases;
  }
  void Cierra() { Pulsa(Boton(Todos<FXMDIChild>(caja_.get()).at(0), "&Cerrar")); }
  void CierraTodas() {
    while (!Abiertas().empty()) Cierra();
  }

  static const Renglon& De(const std::string& forma) {
    return *std::find_if(std::begin(Opciones), std::end(Opciones),
                         [&](const Renglon& opcion) { return opcion.forma == forma; });
  }
  static std::string Pregunta(const Renglon& opcion, const std::string& usuario = "adriana") {
    return "SELECT * FROM spspermisomodulo('" + usuario + "','" + opcion.modulo + "');";
  }
  static std::vector<int> Ocupadas() {
    std::vector<int> ranuras;
    for (int ranura = 0; ranura <= RanurasMdi; ++ranura) {
      if (mdiArray[ranura]) ranuras.push_back(ranura);
    }
    return ranuras;
  }
};

TEST_F(OpcionesTest, NoFaltaLaFormaDeNinguna) {
  for (const Renglon& opcion : Opciones)
    EXPECT_NE(FXMetaClass::getMetaClassFromName(opcion.forma), nullptr) << opcion.forma;
}

TEST_F(OpcionesTest, CadaUnaPreguntaPorSuModuloYAbreSuForma) {
  const Sesion sesion(*base_);
  for (const Renglon& opcion : Opciones) {
    SCOPED_TRACE(opcion.mensaje);
    const Espia espia;
    const Salida salida;
    Abre(opcion);
    if (opcion.modulo) {
      EXPECT_EQ(espia.Sentencias().at(0), Pregunta(opcion));
      EXPECT_EQ(salida.Lineas().at(0), Pregunta(opcion));
    }
    EXPECT_EQ(espia.Cuantas("permiso"), opcion.modulo ? 1u : 0u);
    EXPECT_EQ(Abiertas(), EsHija(opcion) ? Textos{opcion.forma} : Textos{});
    CierraTodas();
  }
}

TEST_F(OpcionesTest, CadaDialogoSeCierraConEscape) {
  const Sesion sesion(*base_);
  for (const Renglon& opcion : Opciones) {
    if (EsHija(opcion)) continue;
    SCOPED_TRACE(opcion.forma);
    Guion guion;
    guion.Con([](FXDialogBox* ventana) {
      FXWindow* foco = ventana;
      while (foco->getFocus() != nullptr) foco = foco->getFocus();
      Tecla(foco, KEY_Escape);
      EXPECT_FALSE(ventana->shown());
      if (ventana->shown()) Pulsa(Boton(ventana, "&Cerrar"));
    });
    Manda(opcion.mensaje);
    EXPECT_EQ(guion.Cuadros().size(), 1u);
  }
}

TEST_F(OpcionesTest, SinPermisoCadaUnaSeNiega) {
  const Sesion sesion(*base_, "camila");
  for (const Renglon& opcion : Guardadas()) {
    SCOPED_TRACE(opcion.mensaje);
    const Espia espia;
    Rechaza(opcion);
    EXPECT_EQ(espia.Sentencias(), Textos{Pregunta(opcion, "camila")});
  }
}

TEST_F(OpcionesTest, MotivosBajaNoPreguntaANadie) {
  const Sesion sesion(*base_, "camila");
  const Espia espia;
  Abre(De("MotivoBaja_Window"));
  EXPECT_EQ(espia.Cuantas("permiso"), 0u);
  EXPECT_EQ(Abiertas().size(), 1u);
}

TEST_F(OpcionesTest, UnModuloQueNoExisteSeNiega) {
  BaseDatos base;
  base.Ejecuta("truncate norte.modulo cascade");
  const Sesion sesion(base);
  for (const Renglon& opcion : Guardadas()) {
    SCOPED_TRACE(opcion.mensaje);
    Rechaza(opcion);
  }
}

TEST_F(OpcionesTest, SoloLaEneMayusculaNiegaYLaFaltaDeRenglon) {
  BaseDatos base;
  const Sesion sesion(base, "braulio");
  const std::string suyo = " where usuarioid = 'braulio' and clavemodulo = '0203'";
  for (const char* const letra : {"S", "", "n", "X"}) {
    SCOPED_TRACE(letra);
    base.Ejecuta("update norte.permisomodulo set permiso = '" + std::string(letra) + "'" + suyo);
    Abre(De("Monedas_Window"));
    EXPECT_EQ(Abiertas(), Textos{"Monedas_Window"});
    CierraTodas();
  }
  base.Ejecuta("update norte.permisomodulo set permiso = 'N'" + suyo);
  Rechaza(De("Monedas_Window"));
  base.Ejecuta("delete from norte.permisomodulo" + suyo);
  Rechaza(De("Monedas_Window"));
}

TEST_F(OpcionesTest, UnPermisoQuitadoConLaFormaAbiertaValeDesdeElSiguienteClic) {
  BaseDatos base;
  const Sesion sesion(base);
  Escoge("&Monedas");
  base.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '0203'");
  ExigeRechazo("&Monedas");  // asked ahead of the slot, which is taken
  EXPECT_EQ(Abiertas(), Textos{"Monedas_Window"});
  Cierra();
  ExigeRechazo("&Monedas");
  EXPECT_EQ(Abiertas(), Textos{});
  base.Ejecuta("update norte.permisomodulo set permiso = 'S' where clavemodulo = '0203'");
  Escoge("&Monedas");
  EXPECT_EQ(Abiertas(), Textos{"Monedas_Window"});
}

TEST_F(OpcionesTest, UnaLineaCortadaEntreElClicYLaRespuestaNiega) {
  for (const Falla& corte : {falla::CorteAntes(), falla::CorteDespues()}) {
    for (const Renglon& opcion : Guardadas()) {
      SCOPED_TRACE(opcion.mensaje);
      const Sesion sesion(*base_);
      Espia espia;
      espia.En(0, corte);
      Rechaza(opcion);
      EXPECT_EQ(espia.Sentencias(), Textos{Pregunta(opcion)});
    }
  }
}

TEST_F(OpcionesTest, UnaPreguntaQueFallaNiega) {
  const Sesion sesion(*base_);
  for (const Falla& mala : {falla::Nula(), falla::Error("%s %n"), falla::SinFilas()}) {
    for (const Renglon& opcion : Guardadas()) {
      SCOPED_TRACE(opcion.mensaje);
      Espia espia;
      espia.En(0, mala);
      Rechaza(opcion);
    }
  }
}

TEST_F(OpcionesTest, SinSesionCadaUnaSeNiega) {
  ASSERT_EQ(conn, nullptr);
  for (const Renglon& opcion : Guardadas()) {
    SCOPED_TRACE(opcion.mensaje);
    Rechaza(opcion);
  }
}

TEST_F(OpcionesTest, UnDialogoSeAbreEnMedioDeLaPantalla) {
  const Sesion sesion(*base_);
  caja_->move(0, 0);
  Guion guion;
  guion.Con([](FXDialogBox* dialogo) {
    const FXWindow* const pantalla = App().getRootWindow();
    EXPECT_NEAR(dialogo->getX() + dialogo->getWidth() / 2, pantalla->getWidth() / 2, 2);
    EXPECT_NEAR(dialogo->getY() + dialogo->getHeight() / 2, pantalla->getHeight() / 2, 2);
    Pulsa(Boton(dialogo, "&Cerrar"));
  });
  Manda(De("TipoSocio_Window").mensaje);
}

/// A click that comes by way of the X server: what it runs is run by the event loop, as for a user.
void PulsaPorX(FXWindow* pieza) {
  auto* const pantalla = static_cast<Display*>(App().getDisplay());
  XEvent evento{};
  evento.xbutton.window = pieza->id();
  evento.xbutton.root = DefaultRootWindow(pantalla);
  evento.xbutton.same_screen = True;
  evento.xbutton.x = evento.xbutton.y = 5;
  evento.xbutton.button = Button1;
  for (const auto& [tipo, mascara] :
       {std::pair(ButtonPress, ButtonPressMask), {ButtonRelease, ButtonReleaseMask}}) {
    evento.type = tipo;
    XSendEvent(pantalla, pieza->id(), False, mascara, &evento);
    evento.xbutton.state = Button1Mask;
  }
  XFlush(pantalla);
}

TEST_F(OpcionesTest, LoQueUnDialogoNoAtrapaAtraviesaElCicloDeEventosYLoCierra) {
  const Sesion sesion(*base_);
  Espia espia;
  Guion guion;
  bool pulsado = false;
  guion.EnAdelante([&](FXDialogBox* dialogo) {
    if (dynamic_cast<FXMessageBox*>(dialogo) != nullptr) return Pulsa(Boton(dialogo, "&Sí"));
    if (std::exchange(pulsado, true)) return;  // its answer is on the way
    espia.Cuando("BEGIN;", falla::Error("No"));
    PulsaPorX(Boton(dialogo, "&Borrar"));
  });
  const auto lanzado = Lanzado([&] { Manda(De("TasaInteres_Window").mensaje); });
  EXPECT_EQ(lanzado, "Error al cargar catalogo de tipo tasas.");
  EXPECT_EQ(App().getModalWindow(), nullptr);
  for (const FXDialogBox* dialogo : Todos<FXDialogBox>(App().getRootWindow()))
    EXPECT_STRNE(dialogo->getClassName(), "TasaInteres_Window");
}

// The slots.

TEST_F(OpcionesTest, CadaFormaTomaSuRanuraYLaSueltaAlCerrarse) {
  const Sesion sesion(*base_);
  for (const Renglon& opcion : Hijas()) {
    SCOPED_TRACE(opcion.forma);
    Abre(opcion);
    EXPECT_EQ(Ocupadas(), std::vector<int>{opcion.toma});
    CierraTodas();
    EXPECT_EQ(Ocupadas(), std::vector<int>{});
  }
}

TEST_F(OpcionesTest, SoloLaRanuraQuePruebaCierraUnaOpcionYSinAviso) {
  const Sesion sesion(*base_);
  for (const Renglon& opcion : Hijas()) {
    SCOPED_TRACE(opcion.forma);
    for (const bool ocupada : {true, false}) {
      std::fill(std::begin(mdiArray), std::end(mdiArray), !ocupada);
      mdiArray[opcion.prueba] = ocupada;
      const Espia espia;
      Abre(opcion);
      EXPECT_EQ(Abiertas(), ocupada ? Textos{} : Textos{opcion.forma});
      EXPECT_EQ(espia.Cuantas("permiso"), opcion.modulo ? 1u : 0u);  // asked all the same
      CierraTodas();
    }
  }
  std::fill(std::begin(mdiArray), std::end(mdiArray), false);
}

TEST_F(OpcionesTest, UnaFormaAbiertaCierraLaOpcionDeOtra) {
  const struct {
    const char* abierta;
    const char* otra;
    bool abre;
  } casos[] = {
      {"Monedas_Window", "Monedas_Window", false},
      {"Banco_Window", "Banco_Window", false},
      {"TipoMoviBanco_Window", "TipoMoviBanco_Window", false},
      {"Usuario_Window", "Usuario_Window", false},
      {"TipoMovimiento_Window", "TipoMovimiento_Window", false},
      {"TipoPrestamo_Window", "TipoPrestamo_Window", false},
      {"TipoInversion_Window", "TipoInversion_Window", false},
      {"TipoPromocion_Window", "TipoPromocion_Window", false},
      {"Tasa_Window", "Tasa_Window", true},
      {"Udis_Window", "Udis_Window", true},
      {"Inpc_Window", "Inpc_Window", true},
      {"Inabil_Window", "Inabil_Window", true},
      {"Recargos_Window", "Recargos_Window", true},
      {"Grupo_Window", "Grupo_Window", true},
      {"Ocupacion_Window", "Ocupacion_Window", true},
      {"MotivoBaja_Window", "MotivoBaja_Window", true},
      {"Inpc_Window", "Monedas_Window", false},
      {"Udis_Window", "Monedas_Window", false},
      {"Recargos_Window", "Monedas_Window", false},
      {"Inabil_Window", "Monedas_Window", false},
      {"Monedas_Window", "Inpc_Window", true},
      {"Monedas_Window", "Udis_Window", true},
      {"Monedas_Window", "Recargos_Window", true},
      {"Monedas_Window", "Inabil_Window", true},
      {"Grupo_Window", "Recargos_Window", false},
      {"Ocupacion_Window", "Recargos_Window", false},
      {"MotivoBaja_Window", "Recargos_Window", false},
      {"Recargos_Window", "Grupo_Window", true},
      {"Recargos_Window", "Ocupacion_Window", true},
      {"Recargos_Window", "MotivoBaja_Window", true},
      {"Grupo_Window", "MotivoBaja_Window", true},
      {"Monedas_Window", "Banco_Window", true},
  };
  const Sesion sesion(*base_);
  for (const auto& [abierta, otra, abre] : casos) {
    SCOPED_TRACE(std::string(abierta) + ", " + otra);
    Abre(De(abierta));
    Abre(De(otra));
    EXPECT_EQ(Abiertas(), abre ? (Textos{abierta, otra}) : Textos{abierta});
    CierraTodas();
    Abre(De(otra));  // free again
    EXPECT_EQ(Abiertas(), Textos{otra});
    CierraTodas();
  }
}

TEST_F(OpcionesTest, AlCerrarseUnaDeDosLaRanuraQuedaLibreParaTodas) {
  const Sesion sesion(*base_);
  for (const Renglon& opcion : Hijas()) {
    if (opcion.prueba == opcion.toma) continue;  // opens once only
    SCOPED_TRACE(opcion.forma);
    Abre(opcion);
    Abre(opcion);
    EXPECT_EQ(Abiertas(), (Textos{opcion.forma, opcion.forma}));
    EXPECT_EQ(Ocupadas(), std::vector<int>{opcion.toma});
    Cierra();
    EXPECT_EQ(Ocupadas(), std::vector<int>{});
    EXPECT_EQ(Abiertas(), Textos{opcion.forma});
    CierraTodas();
  }
}

}  // namespace
}  // namespace pruebas
