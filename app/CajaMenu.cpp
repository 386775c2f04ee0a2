// The menu of the main window.
#include <fxkeys.h>

#include <initializer_list>

#include "app/Caja.h"
#include "icons/Icono.h"
#include "icons/iconos.h"

namespace {

/// An entry of a pane. Its label is the toolkit's: text, tab, key, tab, help for the status line.
struct Entrada {
  const char* etiqueta;
  FXSelector mensaje;
  const unsigned char* dibujo = nullptr;
};
using Entradas = std::initializer_list<Entrada>;

constexpr Entrada separador = {nullptr, 0};

constexpr Entradas catalogos = {
    {"&Monedas\t\tCatalogo de tipos de monedas", Caja::ID_MONEDAS, iconos::moneda_icon},
    separador,
    {"&Bancos\t\tCatalogo de cuentas bancarias", Caja::ID_BANCOS, iconos::banco_icon},
    {"Movimientos Bancarios\t\tCatalogo de tipo de movimientos de bancos", Caja::ID_TIPOMOVIBANCOS},
    separador,
    {"&Tipo de Movimientos\t\tCatalogo de tipos de movimientos", Caja::ID_TIPOMOVIMIENTO,
     iconos::tipomovimiento_icon},
    {"Tipo de Inversión\t\tCatalogo de Tipos de Inversión", Caja::ID_TIPOINVERSION},
    separador,
};

constexpr Entradas prestamos = {
    {"Tipo de &Prestamos\t\tCatalogo de tipos de prestamos", Caja::ID_TIPOPRESTAMOS,
     iconos::tipoprestamo_icon},
    {"Estados del Credito\t\tCatalogo de estados del credito", Caja::ID_ESTADOSCREDITO},
    {"Finalidades del credito\t\tCatalogo de finalidades de creditos", Caja::ID_FINALIDADES},
    {"Clasificacion de Creditos\t\tCatalogo de Clasificacion de Creditos", Caja::ID_CLASIFICACIONCREDITOS},
    {"Tipo de &Garantias\t\tCatalogo de tipos de garantias", Caja::ID_TIPOGARANTIA},
    {"Tipo Tasa &Interes", Caja::ID_TASAINTERES},  // each of these two opens what the other one says
    {"Ta&sa Interes", Caja::ID_TIPOTASAINTERES},
};

constexpr Entradas socios = {
    {"Tipo de Socios\t\tCatalogo de Tipo de Socios", Caja::ID_TIPOSOCIOS},
    {"Ocupaciones\t\tOcupaciones", Caja::ID_OCUPACIONES},
    {"Motivos Baja\t\tCatalogo de Motivos de Baja de Socios", Caja::ID_MOTIVOBAJA},
};

constexpr Entradas seguridad = {
    {"&Usuarios\t\tMto. de usuarios y accesos a opciones del sistema", Caja::ID_USUARIOS, iconos::user_icon},
    {"Tipo de Usuarios\t\tCatalogo de tipos de usuarios", Caja::ID_TIPOUSUARIOS},
    {"Modulos\t\tCatalogo de Modulos del Sistema", Caja::ID_MODULOS},
};

constexpr Entradas contables = {
    {"INPC\t\tCatalogo de INPC", Caja::ID_INPC},
    {"UDIS\t\tCatalogo de UDIS", Caja::ID_UDIS},
    {"Recargos\t\tCatalogo de Recargos", Caja::ID_RECARGOS},
};

constexpr Entradas otros = {
    {"Formulas\t\tCatalogo de Formulas para Calculo de intereses", Caja::ID_CALCULOS},
    {"Tipo Promoción\t\tCatalogo de Tipos de Promociones", Caja::ID_TIPOPROMOCION},
    {"Tasas\t\tHistorico de Tasas de Interes", Caja::ID_TASA},
    {"Dias Inabiles\t\tDias Inabiles", Caja::ID_INABILES},
    {"Conceptos Scoring\t\tConcepto", Caja::ID_CONCEPTOSCORING},
};

/// A pane with its entries, all of which tell the main window.
FXMenuPane* Panel(Caja* caja, Entradas entradas) {
  auto* panel = new FXMenuPane(caja);
  for (const auto& [etiqueta, mensaje, dibujo] : entradas) {
    if (etiqueta == nullptr) {
      new FXMenuSeparator(panel);
    } else {
      new FXMenuCommand(panel, etiqueta, dibujo ? icono(caja->getApp(), dibujo) : nullptr, caja, mensaje);
    }
  }
  return panel;
}

}  // namespace

void Caja::ArmaMenu() {
  const char* permitir =
      PermiteOpciones() ? "&NO permitir opciones de conexion" : "&SI permitir opciones de conexion";
  const auto cascada = [this](const char* titulo, Entradas entradas) {
    FXMenuPane* panel = Panel(this, entradas);
    new FXMenuCascade(menuCatalogos, titulo, nullptr, panel);
    return panel;
  };

  menuInicio = Panel(this, {{"&Conectar\t\tConectarse al sistema", ID_CONECTAR, iconos::login_icon},
                            {"&Desconectar\t\tDesconectarse del sistema", ID_DESCONECTAR},
                            {permitir, ID_PERMITIROP},
                            separador});
  new FXMenuCommand(menuInicio, "&Salir\tCtl-Q\tSalir del sistema", iconoGif(getApp(), iconos::quit_gif),
                    getApp(), FXApp::ID_QUIT);
  auto* const inicio = new FXMenuTitle(menuBar, "&Inicio", nullptr, menuInicio);
  getAccelTable()->addAccel(KEY_F10, inicio, FXSEL(SEL_KEYPRESS, ID_HOTKEY),
                            FXSEL(SEL_KEYRELEASE, ID_HOTKEY));

  menuCatalogos = Panel(this, catalogos);
  menuPrestamos = cascada("Prestamos", prestamos);
  menuSocios = cascada("Socios", socios);
  menuSeguridad = cascada("Seguridad", seguridad);
  menuContables = cascada("Contables", contables);
  menuOtros = cascada("Otros", otros);
  tituloCatalogos = new FXMenuTitle(menuBar, "C&atalogos", nullptr, menuCatalogos);

  menuAyuda = Panel(this, {{"&Acerca del Sistema ...", ID_ABOUT}});
  new FXMenuTitle(menuBar, "A&yuda", nullptr, menuAyuda, LAYOUT_RIGHT);
}
