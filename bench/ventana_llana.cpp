// The bare side of the start: the main window as the program shows it, written straight with the toolkit. No
// session, no cache, no server library, no drawings and no login: it is up when its window is.
#include <fx.h>

namespace {

const char* const inicio[] = {
    "&Conectar\t\tConectarse al sistema", "&Desconectar\t\tDesconectarse del sistema",
    "&NO permitir opciones de conexion", nullptr, "&Salir\tCtl-Q\tSalir del sistema"};
const char* const catalogos[] = {"&Monedas\t\tCatalogo de tipos de monedas",
                                 nullptr,
                                 "&Bancos\t\tCatalogo de cuentas bancarias",
                                 "Movimientos Bancarios\t\tCatalogo de tipo de movimientos de bancos",
                                 nullptr,
                                 "&Tipo de Movimientos\t\tCatalogo de tipos de movimientos",
                                 "Tipo de Inversión\t\tCatalogo de Tipos de Inversión",
                                 nullptr};
const char* const prestamos[] = {"Tipo de &Prestamos\t\tCatalogo de tipos de prestamos",
                                 "Estados del Credito\t\tCatalogo de estados del credito",
                                 "Finalidades del credito\t\tCatalogo de finalidades de creditos",
                                 "Clasificacion de Creditos\t\tCatalogo de Clasificacion de Creditos",
                                 "Tipo de &Garantias\t\tCatalogo de tipos de garantias",
                                 "Tipo Tasa &Interes",
                                 "Ta&sa Interes"};
const char* const socios[] = {"Tipo de Socios\t\tCatalogo de Tipo de Socios", "Ocupaciones\t\tOcupaciones",
                              "Motivos Baja\t\tCatalogo de Motivos de Baja de Socios"};
const char* const seguridad[] = {"&Usuarios\t\tMto. de usuarios y accesos a opciones del sistema",
                                 "Tipo de Usuarios\t\tCatalogo de tipos de usuarios",
                                 "Modulos\t\tCatalogo de Modulos del Sistema"};
const char* const contables[] = {"INPC\t\tCatalogo de INPC", "UDIS\t\tCatalogo de UDIS",
                                 "Recargos\t\tCatalogo de Recargos"};
const char* const otros[] = {"Formulas\t\tCatalogo de Formulas para Calculo de intereses",
                             "Tipo Promoción\t\tCatalogo de Tipos de Promociones",
                             "Tasas\t\tHistorico de Tasas de Interes", "Dias Inabiles\t\tDias Inabiles",
                             "Conceptos Scoring\t\tConcepto"};
const char* const ayuda[] = {"&Acerca del Sistema ..."};

/// A pane with its entries; a null one is a separator.
template <size_t N>
FXMenuPane* Panel(FXWindow* duena, const char* const (&entradas)[N]) {
  auto* panel = new FXMenuPane(duena);
  for (const char* entrada : entradas) {
    if (entrada != nullptr) {
      new FXMenuCommand(panel, entrada);
    } else {
      new FXMenuSeparator(panel);
    }
  }
  return panel;
}

void ArmaMenu(FXWindow* ventana, FXMenuBar* barra) {
  new FXMenuTitle(barra, "&Inicio", nullptr, Panel(ventana, inicio));
  FXMenuPane* panel = Panel(ventana, catalogos);
  new FXMenuCascade(panel, "Prestamos", nullptr, Panel(ventana, prestamos));
  new FXMenuCascade(panel, "Socios", nullptr, Panel(ventana, socios));
  new FXMenuCascade(panel, "Seguridad", nullptr, Panel(ventana, seguridad));
  new FXMenuCascade(panel, "Contables", nullptr, Panel(ventana, contables));
  new FXMenuCascade(panel, "Otros", nullptr, Panel(ventana, otros));
  new FXMenuTitle(barra, "C&atalogos", nullptr, panel);
  new FXMenuTitle(barra, "A&yuda", nullptr, Panel(ventana, ayuda), LAYOUT_RIGHT);
}

/// A docked bar with its grip.
template <class Barra>
Barra* Acoplada(FXMainWindow* ventana) {
  auto* suelta = new FXToolBarShell(ventana, FRAME_RAISED);
  auto* barra = new Barra(ventana, suelta, LAYOUT_DOCK_NEXT | LAYOUT_SIDE_TOP | LAYOUT_FILL_X | FRAME_RAISED);
  new FXToolBarGrip(barra, barra, Barra::ID_TOOLBARGRIP, TOOLBARGRIP_DOUBLE);
  return barra;
}

void ArmaEstado(FXMainWindow* ventana) {
  auto* estado =
      new FXStatusBar(ventana, LAYOUT_SIDE_BOTTOM | LAYOUT_FILL_X | STATUSBAR_WITH_DRAGCORNER | FRAME_RAISED);
  estado->getStatusLine()->setNormalText("Listo.");
  new FXTextField(estado, 11, nullptr, 0, TEXTFIELD_READONLY | LAYOUT_RIGHT | FRAME_SUNKEN);
  new FXLabel(estado, " ", nullptr, LAYOUT_RIGHT | FRAME_SUNKEN);
}

void ArmaArea(FXMainWindow* ventana, FXMenuBar* barra) {
  auto* area = new FXMDIClient(ventana, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* hijas = new FXMDIMenu(ventana, area);
  new FXMDIWindowButton(barra, hijas, area, FXMDIClient::ID_MDI_MENUWINDOW);
  new FXMDIDeleteButton(barra, area, FXMDIClient::ID_MDI_MENUCLOSE, LAYOUT_RIGHT);
  new FXMDIRestoreButton(barra, area, FXMDIClient::ID_MDI_MENURESTORE, LAYOUT_RIGHT);
  new FXMDIMinimizeButton(barra, area, FXMDIClient::ID_MDI_MENUMINIMIZE, LAYOUT_RIGHT);
}

}  // namespace

int main(int argc, char* argv[]) {
  FXApp app("llana", "Tolvara");
  app.init(argc, argv);
  auto* ventana = new FXMainWindow(&app, "Tolvara V. 0.0.7a", nullptr, nullptr, DECOR_ALL, 0, 0, 800, 600);
  app.setNormalFont(new FXFont(&app, "arial", 9));
  auto* barra = Acoplada<FXMenuBar>(ventana);
  Acoplada<FXToolBar>(ventana);
  ArmaEstado(ventana);
  ArmaArea(ventana, barra);
  ArmaMenu(ventana, barra);
  app.create();
  ventana->show(PLACEMENT_SCREEN);
  return app.run();
}
