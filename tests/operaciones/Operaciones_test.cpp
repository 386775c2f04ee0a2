// The main window of the second program: its menu, whose permission each option asks, and what it opens.
#include "tests/operaciones/ConOperaciones.h"

namespace pruebas {
namespace {

const struct Renglon {
  const char* panel;
  const char* rotulo;
  Textos modulos;
  const char* clase;
  bool hija;
} Opciones[] = {
    {"&Cierre", "&Pre-cierre", {"0910"}, "PreCierre_Window", false},
    {"&Cierre", "&Reporte de personas", {"0442"}, "Sujeto_Window", false},
    {"&Activos", "&Activos fijos", {"0909"}, "Activo_Window", false},
    {"&Activos", "&Tipos de depreciación", {"0908"}, "TipoDepreciaciones_Window", false},
    {"&Préstamos", "&Clasificación de créditos", {"0903"}, "ClasificacionCredito_Window", true},
    {"P&ersonas", "&Asesores", {"0904"}, "Asesor_Window", true},
    {"P&ersonas", "&Grupos", {"0449"}, "Grupo_Window", true},
    {"P&ersonas", "&Bienes de una persona", {"0907", "0206"}, "Bienes_Window", false},
    {"&Geografía", "&Estados", {"0213"}, "EstadoMex_Window", false},
    {"&Geografía", "&Ciudades", {"0214"}, "CiudadMex_Window", false},
    {"&Geografía", "&Tipos de asentamiento", {"0906"}, "TipoAsentamiento_Window", false},
    {"&Geografía", "C&olonias", {"0906"}, "Colonia_Window", false},
    {"C&uentas", "&Catálogo de cuentas", {"0901"}, "CuentaContable_Window", false},
    {"C&onsultas", "&Listas", {"0911"}, "Listas_Window", true},
    {"C&onsultas", "&Bitácora", {"0912"}, "Bitacora_Window", true},
    {"C&onsultas", "&Permisos", {"0913"}, "Permisos_Window", true},
    {"C&onsultas", "&Tablero", {"0914"}, "Tablero_Window", true},
};

std::string Pregunta(const std::string& modulo, const std::string& usuario = "adriana") {
  return "SELECT * FROM spspermisomodulo('" + usuario + "','" + modulo + "');";
}

class OperacionesTest : public ConOperaciones {
 protected:
  /// The entry of the option, of the pane on the screen.
  FXMenuCommand* Entrada(const Renglon& opcion) {
    for (FXMenuTitle* titulo : Todos<FXMenuTitle>(principal_)) {
      if (Rotulo(titulo) != opcion.panel) continue;
      for (FXMenuCommand* entrada : Todos<FXMenuCommand>(titulo->getMenu()))
        if (Rotulo(entrada) == opcion.rotulo) return entrada;
    }
    return nullptr;
  }
  void Escoge(const Renglon& opcion) {
    FXMenuCommand* const entrada = Entrada(opcion);
    ASSERT_NE(entrada, nullptr) << opcion.rotulo;
    EXPECT_EQ(entrada->getTarget()->handle(entrada, FXSEL(SEL_COMMAND, entrada->getSelector()), nullptr), 1);
  }
  /// The same for an option that opens its window; a dialog is closed.
  void Abre(const Renglon& opcion) {
    Guion guion;
    if (!opcion.hija)
      guion.Con([&](FXDialogBox* ventana) {
        EXPECT_STREQ(ventana->getClassName(), opcion.clase);
        EXPECT_EQ(ventana->getOwner(), principal_);
        Pulsa(Boton(ventana, "&Cerrar"));
      });
    Escoge(opcion);
  }
  /// The option answers with the box of the refused access and opens nothing.
  void Rechaza(const Renglon& opcion) {
    Guion guion;
    guion.Responde(Respuesta::Aceptar);
    Escoge(opcion);
    EXPECT_EQ(guion.Ultimo().titulo, "Acceso NO AUTORIZADO");
    EXPECT_EQ(guion.Ultimo().texto, "No tiene acceso a la opción ...");
    EXPECT_EQ(guion.Cuadros().size(), 1u);
    EXPECT_EQ(Abiertas(), Textos{});
  }
  Textos Abiertas() {
    Textos clases;
    for (const FXMDIChild* hija : Todos<FXMDIChild>(principal_)) clases.push_back(hija->getClassName());
    return clases;
  }
};

TEST_F(OperacionesTest, ElMenuDelPrimeroCedeSusCatalogos) {
  Textos titulos;
  for (const FXMenuTitle* titulo : Todos<FXMenuTitle>(principal_)) titulos.push_back(Rotulo(titulo));
  EXPECT_EQ(titulos, (Textos{"&Inicio", "&Cierre", "&Activos", "&Préstamos", "P&ersonas", "&Geografía",
                             "C&uentas", "C&onsultas", "A&yuda"}));
  EXPECT_STREQ(principal_->getTitle().text(), "Tolvara Operaciones V. 0.0.7a");
}

TEST_F(OperacionesTest, CadaTituloTieneSuTecla) {
  for (const FXMenuTitle* titulo : Todos<FXMenuTitle>(principal_))
    EXPECT_TRUE(principal_->getAccelTable()->hasAccel(parseHotKey(Rotulo(titulo).c_str()))) << Rotulo(titulo);
}

TEST_F(OperacionesTest, CadaOpcionEstaEnSuPanelYEnElMenuNoHayOtras) {
  size_t entradas = 0;
  const std::vector<FXMenuTitle*> titulos = Todos<FXMenuTitle>(principal_);
  for (size_t i = 1; i + 1 < titulos.size(); ++i)
    entradas += Todos<FXMenuCommand>(titulos[i]->getMenu()).size();
  EXPECT_EQ(entradas, std::size(Opciones));
  for (const Renglon& opcion : Opciones) EXPECT_NE(Entrada(opcion), nullptr) << opcion.rotulo;
}

TEST_F(OperacionesTest, CadaUnaPreguntaPorSusModulosYAbreSuVentana) {
  const Sesion sesion(*base_);
  for (const Renglon& opcion : Opciones) {
    SCOPED_TRACE(opcion.rotulo);
    const Espia espia;
    Abre(opcion);
    for (size_t i = 0; i < opcion.modulos.size(); ++i)
      EXPECT_EQ(espia.Sentencias().at(i), Pregunta(opcion.modulos[i]));
    EXPECT_EQ(espia.Cuantas("spspermisomodulo"), opcion.modulos.size());
    EXPECT_EQ(Abiertas(), opcion.hija ? Textos{opcion.clase} : Textos{});
    for (FXMDIChild* hija : Todos<FXMDIChild>(principal_))
      hija->handle(&App(), FXSEL(SEL_COMMAND, FXWindow::ID_MDI_CLOSE), nullptr);
  }
}

TEST_F(OperacionesTest, SinDerechosTodasSeNieganYNadaMasSePregunta) {
  const Sesion sesion(*base_, "camila");
  for (const Renglon& opcion : Opciones) {
    SCOPED_TRACE(opcion.rotulo);
    const Espia espia;
    Rechaza(opcion);
    EXPECT_EQ(espia.Sentencias(), Textos{Pregunta(opcion.modulos[0], "camila")});
  }
}

TEST_F(OperacionesTest, CadaModuloDeUnaOpcionHaceFalta) {
  BaseDatos base;
  const Sesion sesion(base);
  for (const Renglon& opcion : Opciones) {
    for (const std::string& modulo : opcion.modulos) {
      SCOPED_TRACE(opcion.rotulo + (" " + modulo));
      base.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '" + modulo + "'");
      Rechaza(opcion);
      base.Ejecuta("update norte.permisomodulo set permiso = 'S' where clavemodulo = '" + modulo + "'");
    }
  }
}

TEST_F(OperacionesTest, UnaLineaCortadaNiega) {
  for (const Renglon& opcion : Opciones) {
    SCOPED_TRACE(opcion.rotulo);
    const Sesion sesion(*base_);
    Espia espia;
    espia.En(0, falla::CorteAntes());
    Rechaza(opcion);
  }
}

TEST_F(OperacionesTest, UnaVentanaHijaAbiertaPasaAlFrenteEnVezDeAbrirseOtra) {
  const Sesion sesion(*base_);
  const Renglon& asesores = Opciones[5];
  const Renglon& grupos = Opciones[6];
  Abre(asesores);
  Abre(grupos);
  Abre(asesores);
  EXPECT_EQ(Abiertas(), (Textos{"Asesor_Window", "Grupo_Window"}));
  EXPECT_STREQ(Todos<FXMDIClient>(principal_).at(0)->getActiveChild()->getClassName(), "Asesor_Window");
}

TEST_F(OperacionesTest, UnDerechoQuitadoConLaVentanaAbiertaSeNiegaAlGuardar) {
  BaseDatos base;
  const Sesion sesion(base);
  Abre(Opciones[5]);
  base.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '0904'");
  FXMDIChild* const forma = Todos<FXMDIChild>(principal_).at(0);
  Escribe(Todos<FXTextField>(forma).at(0), "88");
  Escribe(Todos<FXTextField>(forma).at(1), "Nadie");
  Guion guion;
  guion.Responde(Respuesta::Si);
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(forma, "&Aceptar"));
  EXPECT_NE(guion.Ultimo().texto.find("No tiene permiso para la opción Asesores"), std::string::npos)
      << guion.Ultimo().texto;
  EXPECT_EQ(base.Valor("select count(*) from norte.asesor where asesorid = 88"), "0");
}

}  // namespace
}  // namespace pruebas
