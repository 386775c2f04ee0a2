#include "app/Caja.h"

#include <fxkeys.h>

#include <algorithm>
#include <cstring>
#include <iostream>
#include <vector>

#include "app/Traductor.h"
#include "app/sesion.h"
#include "db/Apertura.h"
#include "db/Login_Window.h"
#include "framework/Foco.h"
#include "icons/Icono.h"
#include "icons/iconos.h"

namespace {

constexpr char seccion[] = "SETTINGS";
constexpr char desconectado[] = "¡DESCONECTADO!";
constexpr char enReposo[] = "Listo.";
constexpr char sinLinea[] = "F9: conectarse. Se perdió la conexión.";

// Where the window stood, in a section of its own.
constexpr char lugar[] = "VENTANA";
constexpr FXint ninguna = -1;
constexpr FXint anchoMinimo = 400, altoMinimo = 300;
constexpr FXint orilla = 32;  // what a window manager puts around it

bool SesionPerdida() { return IsConectado && apertura::SePerdio(); }

}  // namespace

FXDEFMAP(Caja)
CajaMap[] = {
    FXMAPFUNC(SEL_COMMAND, Caja::ID_ABOUT, Caja::onCmdAbout),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_CONECTAR, Caja::onCmdConectar),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_DESCONECTAR, Caja::onCmdDesconectar),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_PERMITIROP, Caja::onCmdPermitirop),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_MONEDAS, Caja::onCmdMonedas),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_BANCOS, Caja::onCmdBancos),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_USUARIOS, Caja::onCmdUsuarios),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOMOVIMIENTO, Caja::onCmdTipoMovimiento),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOPRESTAMOS, Caja::onCmdTipoPrestamos),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOGARANTIA, Caja::onCmdTipoGarantia),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_ESTADOSCREDITO, Caja::onCmdEstadosCredito),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_FINALIDADES, Caja::onCmdFinalidades),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOMOVIBANCOS, Caja::onCmdTipoMoviBancos),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOINVERSION, Caja::onCmdTipoInversion),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_ESTADOSMEX, Caja::onCmdEstadosMex),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_CIUDADESMEX, Caja::onCmdCiudadesMex),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_MODULOS, Caja::onCmdModulos),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOSOCIOS, Caja::onCmdTipoSocios),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_CALCULOS, Caja::onCmdCalculos),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOUSUARIOS, Caja::onCmdTipoUsuarios),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOPROMOCION, Caja::onCmdTipoPromocion),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TASA, Caja::onCmdTasa),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_INPC, Caja::onCmdInpc),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_UDIS, Caja::onCmdUdis),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_RECARGOS, Caja::onCmdRecargos),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_MOTIVOBAJA, Caja::onCmdMotivoBaja),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_SUJETO, Caja::onCmdSujeto),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_INABILES, Caja::onCmdInabiles),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_GRUPOS, Caja::onCmdGrupos),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_OCUPACIONES, Caja::onCmdOcupaciones),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_CONCEPTOSCORING, Caja::onCmdConceptoScoring),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TASAINTERES, Caja::onCmdTasaInteres),
    FXMAPFUNC(SEL_COMMAND, Caja::ID_TIPOTASAINTERES, Caja::onCmdTipoTasaInteres),
    FXMAPFUNC(SEL_TIMEOUT, Caja::ID_CLOCK, Caja::onClock),
};

FXIMPLEMENT(Caja, FXMainWindow, CajaMap, ARRAYNUMBER(CajaMap))

Caja::Caja(FXApp* app) : FXMainWindow(app, "Tolvara V. 0.0.7a", nullptr, nullptr, DECOR_ALL, 0, 0, 800, 600) {
  bigIcon = icono(app, iconos::bigcaja_icon);
  smallIcon = icono(app, iconos::smallcaja);
  setIcon(bigIcon);
  setMiniIcon(smallIcon);
  fuenteAnterior = app->getNormalFont();
  fuente = new FXFont(app, "arial", 9);
  app->setNormalFont(fuente);
  ArmaBarras();
  ArmaEstado();
  mdiClient = new FXMDIClient(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  mdiMenu = new FXMDIMenu(this, mdiClient);
  TraduceMenu(mdiMenu);
  ArmaMenu();
  ArmaBotonesDeHija();
  // From a minimised form, too, the next one is reached.
  getAccelTable()->addAccel(MKUINT(KEY_Tab, CONTROLMASK), mdiClient,
                            FXSEL(SEL_COMMAND, FXMDIClient::ID_MDI_NEXT));
  avisos = new FXToolTip(app);
  std::fill_n(mdiArray, RanurasMdi, false);
}

void Caja::ArmaBarras() {
  dragShellMenu = new FXToolBarShell(this, FRAME_RAISED, 0, 0, 0, 0, 4, 4);
  menuBar =
      new FXMenuBar(this, dragShellMenu, LAYOUT_DOCK_SAME | LAYOUT_SIDE_TOP | LAYOUT_FILL_X | FRAME_RAISED, 0,
                    0, 0, 0, 3, 3, 2, 2, 4, 4);
  new FXToolBarGrip(menuBar, menuBar, FXMenuBar::ID_TOOLBARGRIP, TOOLBARGRIP_DOUBLE);
  dragShellTool = new FXToolBarShell(this, FRAME_RAISED, 0, 0, 0, 0, 4, 4);
  toolBar =
      new FXToolBar(this, dragShellTool, LAYOUT_DOCK_NEXT | LAYOUT_SIDE_TOP | LAYOUT_FILL_X | FRAME_RAISED, 0,
                    0, 0, 0, 3, 3, 2, 2, 4, 4);
  new FXToolBarGrip(toolBar, toolBar, FXToolBar::ID_TOOLBARGRIP, TOOLBARGRIP_DOUBLE);
}

void Caja::ArmaEstado() {
  constexpr FXuint aLaDerecha = LAYOUT_RIGHT | LAYOUT_CENTER_Y | JUSTIFY_RIGHT | FRAME_SUNKEN;
  statusBar =
      new FXStatusBar(this, LAYOUT_SIDE_BOTTOM | LAYOUT_FILL_X | STATUSBAR_WITH_DRAGCORNER | FRAME_RAISED, 0,
                      0, 0, 0, 3, 3, 2, 2, 4, 0);
  statusBar->getStatusLine()->setNormalText(enReposo);
  clockField =
      new FXTextField(statusBar, 11, nullptr, 0, TEXTFIELD_READONLY | aLaDerecha, 0, 0, 0, 0, 2, 2, 1, 1);
  clockField->setBackColor(statusBar->getBackColor());
  statusLabel = new FXLabel(statusBar, " ", nullptr, aLaDerecha, 0, 0, 0, 0, 2, 2, 1, 1);
}

/// The window buttons of a child that fills the whole area.
void Caja::ArmaBotonesDeHija() {
  new FXMDIWindowButton(menuBar, mdiMenu, mdiClient, FXMDIClient::ID_MDI_MENUWINDOW, LAYOUT_LEFT);
  constexpr FXuint opciones = FRAME_RAISED | LAYOUT_RIGHT;
  new FXMDIDeleteButton(menuBar, mdiClient, FXMDIClient::ID_MDI_MENUCLOSE, opciones);
  new FXMDIRestoreButton(menuBar, mdiClient, FXMDIClient::ID_MDI_MENURESTORE, opciones);
  new FXMDIMinimizeButton(menuBar, mdiClient, FXMDIClient::ID_MDI_MENUMINIMIZE, opciones);
}

Caja::~Caja() {
  getApp()->removeTimeout(this, ID_CLOCK);
  for (const FXMenuPane* panel : {menuInicio, menuCatalogos, menuAyuda, menuPrestamos, menuContables,
                                  menuSocios, menuSeguridad, menuOtros})
    delete panel;
  delete mdiMenu;
  delete menuBar;
  delete statusBar;
  delete toolBar;
  delete dragShellMenu;
  delete dragShellTool;
  delete avisos;
  getApp()->setNormalFont(fuenteAnterior);
  delete fuente;
}

void Caja::create() {
  FXMainWindow::create();
  getApp()->addTimeout(this, ID_CLOCK, 1);
  avisos->create();
  MuestraDondeEstaba();
  Login();
  std::cout << "Formato Cuenta " << formatocuenta << std::endl;
}

/// In the middle of the screen, or where it stood when the program was last used, if that is on the screen.
void Caja::MuestraDondeEstaba() {
  FXRegistry& ajustes = getApp()->reg();
  const auto lee = [&ajustes](const char* llave) { return ajustes.readIntEntry(lugar, llave, ninguna); };
  const FXint x = lee("x"), y = lee("y"), ancho = lee("ancho"), alto = lee("alto");
  const FXint pantallaAncho = getRoot()->getWidth(), pantallaAlto = getRoot()->getHeight();
  const bool cabe =
      anchoMinimo <= ancho && ancho <= pantallaAncho && altoMinimo <= alto && alto <= pantallaAlto;
  if (cabe) resize(ancho, alto);
  if (cabe && 0 <= x && x <= pantallaAncho - ancho && 0 <= y && y <= pantallaAlto - alto) {
    move(x, y);
    show();
  } else {
    show(PLACEMENT_SCREEN);
    // On a small screen the title bar would be above it.
    if (pantallaAncho < getWidth() + orilla || pantallaAlto < getHeight() + orilla) maximize();
  }
  if (lee("maximizada") == 1) maximize();
}

/// Where the window stands now, for the next start. A maximised one will go back to the size it had before.
void Caja::AnotaLugar() {
  FXRegistry& ajustes = getApp()->reg();
  const bool grande = isMaximized();
  ajustes.writeIntEntry(lugar, "maximizada", grande);
  if (grande || isMinimized()) return;
  ajustes.writeIntEntry(lugar, "x", getX());
  ajustes.writeIntEntry(lugar, "y", getY());
  ajustes.writeIntEntry(lugar, "ancho", getWidth());
  ajustes.writeIntEntry(lugar, "alto", getHeight());
}

void Caja::Login() {
  bool abierta;
  {
    Login_Window login(this);
    abierta = login.execute(PLACEMENT_SCREEN) && IsConectado;
    readRegistry();
  }
  if (abierta) ReleeFormas();
}

/// Each open form shows what is there now, wherever it stands; its fields are left alone.
void Caja::ReleeFormas() {
  std::vector<MarcoDeForma*> marcos;
  const auto busca = [&](const auto& sigue, FXWindow* ventana) -> void {
    if (auto* const marco = dynamic_cast<MarcoDeForma*>(ventana)) marcos.push_back(marco);
    for (FXWindow* hija = ventana->getFirst(); hija != nullptr; hija = hija->getNext()) sigue(sigue, hija);
  };
  busca(busca, getRoot());
  for (MarcoDeForma* const marco : marcos) marco->Relee();
}

void Caja::readRegistry() {
  perdida = SesionPerdida();
  FXRegistry& ajustes = getApp()->reg();
  statusLabel->setText(FXStringFormat(
      "Usuario: %s - Suc. \\\\%s\\%s\\%s %s",  //
      ajustes.readStringEntry(seccion, "user", "xxx"), ajustes.readStringEntry(seccion, "servidor", "xxx"),
      ajustes.readStringEntry(seccion, "db", "xxx"), ajustes.readStringEntry(seccion, "sucursal", "xxx"),
      IsConectado && !perdida ? "*" : desconectado));
  FXStatusLine* const linea = statusBar->getStatusLine();
  linea->setNormalText(perdida ? sinLinea : enReposo);
  linea->setTextColor(perdida ? FXRGB(192, 0, 0) : getApp()->getForeColor());
}

/// Tells a user who has not noticed yet that there is no server any more.
void Caja::VigilaConexion() {
  if (SesionPerdida() != perdida) readRegistry();
}

long Caja::onClock(FXObject*, FXSelector, void*) {
  clockField->setText(FXSystem::time("%I:%M:%S %p", FXSystem::now()));
  if (shown()) AnotaLugar();
  VigilaConexion();
  getApp()->addTimeout(this, ID_CLOCK, 500);
  return 1;
}

long Caja::onCmdConectar(FXObject*, FXSelector, void*) {
  Login();
  return 1;
}

long Caja::onCmdDesconectar(FXObject*, FXSelector, void*) {
  if (!TieneAcceso("0102")) return 1;
  apertura::Cierra();
  IsConectado = false;
  statusLabel->setText(FXStringFormat("Usuario: %s - Suc. %s %s",  //
                                      getApp()->reg().readStringEntry(seccion, "user", "xxx"),
                                      getApp()->reg().readStringEntry(seccion, "sucursal", "xxx"),
                                      desconectado));
  return 1;
}

/// The switch that `permitirop` is in the settings.
bool Caja::PermiteOpciones() const {
  return strcmp(getApp()->reg().readStringEntry(seccion, "permitirop", "S"), "S") == 0;
}

long Caja::onCmdPermitirop(FXObject*, FXSelector, void*) {
  FXRegistry& ajustes = getApp()->reg();
  if (PermiteOpciones()) {
    ajustes.writeStringEntry(seccion, "permitirop", "N");
    std::cout << "Opciones NO" << std::endl;
  } else {
    ajustes.writeStringEntry(seccion, "permitirop", "S");
    std::cout << "Opciones SI" << std::endl;
  }
  std::cout << "Permitir" << ajustes.readStringEntry(seccion, "permitirop", "S") << std::endl;
  return 1;
}

long Caja::onCmdAbout(FXObject*, FXSelector, void*) {
  FXDialogBox acerca(this, "Acerca del Sistema", DECOR_TITLE | DECOR_BORDER);
  auto* marco = new FXVerticalFrame(&acerca, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 10, 10, 10, 10, 0, 0);
  constexpr FXuint aLaIzquierda = JUSTIFY_LEFT | LAYOUT_FILL_X;
  new FXLabel(marco, "Tolvara ", nullptr, aLaIzquierda, 0, 0, 0, 0, 2, 2, 2, 2);
  new FXHorizontalSeparator(marco, SEPARATOR_GROOVE | LAYOUT_FILL_X);
  new FXLabel(marco,
              FXStringFormat("\n TOLVARA, Cliente Gráfico Versión %sa\n\n"
                             " El equipo de desarrollo de Tolvara\n",
                             Version),
              nullptr, aLaIzquierda);
  auto* boton = new FXButton(marco, "&OK", nullptr, &acerca, FXDialogBox::ID_ACCEPT,
                             BUTTON_INITIAL | BUTTON_DEFAULT | FRAME_RAISED | FRAME_THICK | LAYOUT_CENTER_X,
                             0, 0, 0, 0, 32, 32, 2, 2);
  acerca.create();
  boton->setFocus();
  acerca.execute(PLACEMENT_OWNER);
  return 1;
}
