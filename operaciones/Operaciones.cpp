#include "operaciones/Operaciones.h"

#include "catalogs/assets/Activo_Window.h"
#include "catalogs/assets/TipoDepreciaciones_Window.h"
#include "catalogs/people/CiudadMex_Window.h"
#include "catalogs/people/EstadoMex_Window.h"
#include "catalogs/simple/Asesor_Window.h"
#include "catalogs/simple/ClasificacionCredito_Window.h"
#include "catalogs/simple/Grupo_Window.h"
#include "operaciones/Bienes_Window.h"
#include "operaciones/Bitacora_Window.h"
#include "operaciones/Colonia_Window.h"
#include "operaciones/CuentaContable_Window.h"
#include "operaciones/Listas_Window.h"
#include "operaciones/Permisos_Window.h"
#include "operaciones/Tablero_Window.h"
#include "operaciones/TipoAsentamiento_Window.h"
#include "reports/PreCierre_Window.h"
#include "reports/Sujeto_Window.h"

namespace {

template <class Ventana>
void Hija(Operaciones* principal) {
  principal->AbreHija<Ventana>();
}
template <class Ventana>
void Dialogo(Operaciones* principal) {
  Ventana(principal).execute(PLACEMENT_OWNER);
}

/// An option: its label (text, tab, key, tab, help for the status line), the modules that it asks for, and
/// what it opens. One without modules is the title of the pane of those behind it.
struct Opcion {
  const char* etiqueta;
  const char* modulos[2];
  void (*abre)(Operaciones*);
};

const Opcion opciones[] = {
    {"&Cierre", {}, nullptr},
    {"&Pre-cierre\t\tEstado de los préstamos al fin de un mes", {"0910"}, Dialogo<PreCierre_Window>},
    {"&Reporte de personas\t\tPersonas de la sucursal o de todas", {"0442"}, Dialogo<Sujeto_Window>},
    {"&Activos", {}, nullptr},
    {"&Activos fijos\t\tActivos fijos y su depreciación", {"0909"}, Dialogo<Activo_Window>},
    {"&Tipos de depreciación\t\tClases de activos", {"0908"}, Dialogo<TipoDepreciaciones_Window>},
    {"&Préstamos", {}, nullptr},
    {"&Clasificación de créditos\t\tClases de la cartera", {"0903"}, Hija<ClasificacionCredito_Window>},
    {"P&ersonas", {}, nullptr},
    {"&Asesores\t\tCatálogo de asesores", {"0904"}, Hija<Asesor_Window>},
    {"&Grupos\t\tGrupos de socios", {"0449"}, Hija<Grupo_Window>},
    {"&Bienes de una persona\t\tBienes con que una persona responde",
     {"0907", "0206"},
     Dialogo<Bienes_Window>},
    {"&Geografía", {}, nullptr},
    {"&Estados\t\tEstados de la república", {"0213"}, Dialogo<EstadoMex_Window>},
    {"&Ciudades\t\tCiudades y municipios", {"0214"}, Dialogo<CiudadMex_Window>},
    {"&Tipos de asentamiento\t\tClases de colonias", {"0906"}, Dialogo<TipoAsentamiento_Window>},
    {"C&olonias\t\tColonias de una ciudad o de un código postal", {"0906"}, Dialogo<Colonia_Window>},
    {"C&uentas", {}, nullptr},
    {"&Catálogo de cuentas\t\tCuentas contables", {"0901"}, Dialogo<CuentaContable_Window>},
    {"C&onsultas", {}, nullptr},
    {"&Listas\t\tCualquier catálogo como una tabla", {"0911"}, Hija<Listas_Window>},
    {"&Bitácora\t\tQuién cambió qué y cuándo", {"0912"}, Hija<Bitacora_Window>},
    {"&Permisos\t\tTodos los usuarios contra todas las opciones", {"0913"}, Hija<Permisos_Window>},
    {"&Tablero\t\tEl cierre de los últimos doce meses", {"0914"}, Hija<Tablero_Window>},
};
static_assert(std::size(opciones) == Operaciones::ID_FIN - Operaciones::ID_PANEL_CIERRE);

}  // namespace

FXDEFMAP(Operaciones)
OperacionesMap[] = {
    FXMAPFUNCS(SEL_COMMAND, Operaciones::ID_PANEL_CIERRE, Operaciones::ID_FIN - 1, Operaciones::onCmdOpcion),
};
FXIMPLEMENT(Operaciones, Caja, OperacionesMap, ARRAYNUMBER(OperacionesMap))

Operaciones::Operaciones(FXApp* app) : Caja(app) {
  setTitle("Tolvara Operaciones V. 0.0.7a");
  ArmaMenu();
}

Operaciones::~Operaciones() {
  for (const FXMenuPane* panel : paneles) delete panel;
}

/// Puts the panes of this program where the first one has its catalogues, whose pane stays out of reach. Its
/// title goes first: with it goes its key, which is also one of ours.
void Operaciones::ArmaMenu() {
  FXWindow* const siguiente = tituloCatalogos->getNext();
  delete tituloCatalogos;
  tituloCatalogos = nullptr;
  FXMenuPane** panel = paneles;
  FXSelector mensaje = ID_PANEL_CIERRE;
  for (const Opcion& opcion : opciones) {
    if (opcion.abre == nullptr) {
      *panel++ = new FXMenuPane(this);
      (new FXMenuTitle(menuBar, opcion.etiqueta, nullptr, panel[-1]))->reparent(menuBar, siguiente);
    } else {
      new FXMenuCommand(panel[-1], opcion.etiqueta, nullptr, this, mensaje);
    }
    ++mensaje;
  }
}

long Operaciones::onCmdOpcion(FXObject*, FXSelector mensaje, void*) {
  const Opcion& opcion = opciones[FXSELID(mensaje) - ID_PANEL_CIERRE];
  for (const char* modulo : opcion.modulos)
    if (modulo != nullptr && !TieneAcceso(modulo)) return 1;
  opcion.abre(this);
  return 1;
}
