// The client with one more pane in its menu, "&Muestra": the windows that no option opens, and a date as the
// forms ask for one. The guided journey drives it, so that these windows are seen at work too; it is not
// installed.
#include <fx.h>

#include "app/Aplicacion.h"
#include "app/Caja.h"
#include "app/Traductor.h"
#include "catalogs/assets/Activo_Window.h"
#include "catalogs/assets/TipoDepreciaciones_Window.h"
#include "catalogs/finance/Busqueda_Window.h"
#include "catalogs/people/Bien_Window.h"
#include "catalogs/people/BusquedaSocio_Window.h"
#include "catalogs/people/BusquedaSujeto_Window.h"
#include "catalogs/people/CiudadMex_Window.h"
#include "catalogs/people/EstadoMex_Window.h"
#include "catalogs/simple/Asesor_Window.h"
#include "catalogs/simple/ClasificacionCredito_Window.h"
#include "catalogs/simple/Grupo_Window.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "reports/PreCierre_Window.h"
#include "reports/Sujeto_Window.h"
#include "widgets/Calendario_Window.h"
#include "widgets/cFecha.h"
#include "widgets/cajas.h"

namespace {

/// A date field with its calendar.
class Fecha_Window : public FXDialogBox {
  FXDECLARE(Fecha_Window)
 public:
  enum { ID_CALENDARIO = FXDialogBox::ID_LAST };

  explicit Fecha_Window(FXWindow* duenio);
  long onCmdCalendario(FXObject*, FXSelector, void*) {
    fecha->setText(EligeFecha(this, fecha->getText()));
    return 1;
  }

 protected:
  Fecha_Window() {}

 private:
  cFecha* fecha = nullptr;
};

FXDEFMAP(Fecha_Window)
Fecha_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Fecha_Window::ID_CALENDARIO, Fecha_Window::onCmdCalendario),
};
FXIMPLEMENT(Fecha_Window, FXDialogBox, Fecha_WindowMap, ARRAYNUMBER(Fecha_WindowMap))

Fecha_Window::Fecha_Window(FXWindow* duenio) : FXDialogBox(duenio, "Fecha", DECOR_TITLE | DECOR_BORDER) {
  auto* marco = new FXHorizontalFrame(this, LAYOUT_FILL_X);
  new FXLabel(marco, "Fecha:", nullptr, LAYOUT_CENTER_Y);
  fecha = new cFecha(this, marco, 10, nullptr, 0, FRAME_SUNKEN | FRAME_THICK | LAYOUT_CENTER_Y);
  new FXButton(marco, FXString::null, icono(getApp(), iconos::calendario), this, ID_CALENDARIO,
               FRAME_RAISED | FRAME_THICK);
  new FXButton(marco, "&Cerrar", icono(getApp(), iconos::cerrar_icon), this, ID_CANCEL,
               FRAME_RAISED | FRAME_THICK | ICON_BEFORE_TEXT);
}

class Muestrario : public Caja {
  FXDECLARE(Muestrario)
 public:
  enum { ID_MUESTRA = Caja::ID_CLOCK + 1 };
  static constexpr int NumMuestras = 14;

  explicit Muestrario(FXApp* app);
  ~Muestrario() override { delete panel; }
  long onCmdMuestra(FXObject*, FXSelector mensaje, void*);

 protected:
  Muestrario() {}

 private:
  template <class Ventana>
  static void Hija(Muestrario* principal) {
    (new Ventana(principal->Parte<FXMDIClient>(), nullptr))->create();
  }
  template <class Ventana>
  static void Dialogo(Muestrario* principal) {
    Ventana(principal).execute(PLACEMENT_OWNER);
  }
  /// The first good of the user's own person, or a new one, saved with the person at once.
  static void Bien(Muestrario* principal);
  /// The child of the window that is of this class.
  template <class Clase>
  Clase* Parte() {
    FXWindow* parte = getFirst();
    while (dynamic_cast<Clase*>(parte) == nullptr) parte = parte->getNext();
    return static_cast<Clase*>(parte);
  }

  static const struct Muestra {
    const char* etiqueta;
    void (*abre)(Muestrario* principal);
  } muestras[NumMuestras];

  FXMenuPane* panel = nullptr;
};

const Muestrario::Muestra Muestrario::muestras[] = {
    {"&Asesores", Muestrario::Hija<Asesor_Window>},
    {"&Clasificación de créditos", Muestrario::Hija<ClasificacionCredito_Window>},
    {"&Personas", Muestrario::Dialogo<BusquedaSujeto_Window>},
    {"&Socios", Muestrario::Dialogo<BusquedaSocio_Window>},
    {"&Fecha", Muestrario::Dialogo<Fecha_Window>},
    {"&Grupos", Muestrario::Hija<Grupo_Window>},
    {"C&uentas", Muestrario::Dialogo<Busqueda_Window>},
    {"&Depreciaciones", Muestrario::Dialogo<TipoDepreciaciones_Window>},
    {"Ac&tivos", Muestrario::Dialogo<Activo_Window>},
    {"P&re-cierre", Muestrario::Dialogo<PreCierre_Window>},
    {"Repor&te de personas", Muestrario::Dialogo<Sujeto_Window>},
    {"&Estados", Muestrario::Dialogo<EstadoMex_Window>},
    {"C&iudades", Muestrario::Dialogo<CiudadMex_Window>},
    {"&Bienes", Muestrario::Bien},
};

void Muestrario::Bien(Muestrario* principal) {
  cUsuario yo;
  yo.setUsuarioID(glogin);
  try {
    yo.Find();
    const bool tiene = !yo.getBienes().ListaVacia();
    if (Bien_Window(principal, &yo, tiene ? 0 : -1).execute(PLACEMENT_OWNER) != FALSE) yo.cSujeto::Update();
  } catch (char* texto) {
    yo.RollBackTransaction();
    cajaError(principal, "Bien", texto);
  }
}

FXDEFMAP(Muestrario)
MuestrarioMap[] = {
    FXMAPFUNCS(SEL_COMMAND, Muestrario::ID_MUESTRA, Muestrario::ID_MUESTRA + Muestrario::NumMuestras - 1,
               Muestrario::onCmdMuestra),
};
FXIMPLEMENT(Muestrario, Caja, MuestrarioMap, ARRAYNUMBER(MuestrarioMap))

Muestrario::Muestrario(FXApp* app) : Caja(app), panel(new FXMenuPane(this)) {
  FXSelector mensaje = ID_MUESTRA;
  for (const Muestra& muestra : muestras)
    new FXMenuCommand(panel, muestra.etiqueta, nullptr, this, mensaje++);
  new FXMenuTitle(Parte<FXMenuBar>(), "&Muestra", nullptr, panel);
}

long Muestrario::onCmdMuestra(FXObject*, FXSelector mensaje, void*) {
  muestras[FXSELID(mensaje) - ID_MUESTRA].abre(this);
  return 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  Aplicacion app;
  delete app.getTranslator();
  app.setTranslator(new Traductor(&app));
  app.init(argc, argv);
  new Muestrario(&app);
  app.create();
  return app.run();
}
