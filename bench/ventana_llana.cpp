// The bare side of the start: the main window as the program shows it, written straight with the toolkit. No
// session, no cache, no server library, no drawings and no login: it is up when its window is.
#include <fx.h>

namespace {

const char* const inicio[] = {
    "&Conectar\t\tConectarse al sistema", "&Desconectar\t\tDesconectarse del sistema",
    "&NO permitir opciones de conexion", nullptr, "&Salir\tCtl-Q\tSalir del sistema"};
const char* const catalogos[] = {"&Monedas\t\tCatalogo de tipos de monedas"};
const char* const ayuda[] = {"&Acerca del Sistema ..."};

/// A menu with its entries; a null one is a separator.
template <size_t N>
void Menu(FXMenuBar* barra, const char* titulo, const char* const (&entradas)[N]) {
  auto* panel = new FXMenuPane(barra->getShell());
  new FXMenuTitle(barra, titulo, nullptr, panel);
  for (const char* entrada : entradas) {
    if (entrada != nullptr) {
      new FXMenuCommand(panel, entrada);
    } else {
      new FXMenuSeparator(panel);
    }
  }
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
  Menu(barra, "&Inicio", inicio);
  Menu(barra, "C&atalogos", catalogos);
  Menu(barra, "A&yuda", ayuda);
  app.create();
  ventana->show(PLACEMENT_SCREEN);
  return app.run();
}
