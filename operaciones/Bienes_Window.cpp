#include "operaciones/Bienes_Window.h"

#include <cstdlib>
#include <cstring>

#include "catalogs/people/Bien_Window.h"
#include "catalogs/people/BusquedaSocio_Window.h"
#include "catalogs/people/BusquedaSujeto_Window.h"
#include "framework/Sentencia.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "widgets/Boton.h"
#include "widgets/cajas.h"

namespace {

/// The person who is the member with the key at the start of `renglon`, as it stands in the list of the
/// search; 0 if there is none. Throws what the server answers.
long PersonaDelSocio(const char* renglon) {
  for (const auto& [fila, socio] : Catalogo::SociosCaja) {
    const FXString clave = FXStringFormat("%-12s ", socio.getClaveSocioInt());
    if (strncmp(renglon, clave.text(), std::min<size_t>(clave.length(), strlen(renglon))) != 0) continue;
    Ejecuta(Sentencia("SELECT sujetoid FROM socio WHERE socioid = %li;", socio.getSocioID()));
    LanzaSiRechazada();
    const long persona = atol(Celda(0, 0));
    LiberaResultado();
    return persona;
  }
  return 0;
}

}  // namespace

FXDEFMAP(Bienes_Window)
Bienes_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Bienes_Window::ID_PERSONA, Bienes_Window::onCmdPersona),
    FXMAPFUNC(SEL_COMMAND, Bienes_Window::ID_SOCIO, Bienes_Window::onCmdSocio),
    FXMAPFUNC(SEL_COMMAND, Bienes_Window::ID_NUEVO, Bienes_Window::onCmdNuevo),
    FXMAPFUNC(SEL_COMMAND, Bienes_Window::ID_ABRIR, Bienes_Window::onCmdAbrir),
    FXMAPFUNC(SEL_DOUBLECLICKED, Bienes_Window::ID_LISTA, Bienes_Window::onCmdAbrir),
    FXMAPFUNC(SEL_COMMAND, Bienes_Window::ID_GUARDAR, Bienes_Window::onCmdGuardar),
    FXMAPFUNCS(SEL_UPDATE, Bienes_Window::ID_NUEVO, Bienes_Window::ID_GUARDAR,
               Bienes_Window::onUpdConPersona),
    FXMAPFUNC(SEL_CLOSE, 0, Bienes_Window::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, Bienes_Window::ID_SALIR, Bienes_Window::onCmdQuit),
};
FXIMPLEMENT(Bienes_Window, FXDialogBox, Bienes_WindowMap, ARRAYNUMBER(Bienes_WindowMap))

Bienes_Window::Bienes_Window(FXWindow* duenio)
    : FXDialogBox(duenio, "Bienes de una persona", DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE, 0, 0, 560,
                  320) {
  auto* cuerpo = new FXHorizontalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* izquierda = new FXVerticalFrame(cuerpo, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  nombre = new FXLabel(izquierda, "Ninguna persona elegida", nullptr, JUSTIFY_LEFT | LAYOUT_FILL_X);
  auto* marco = new FXVerticalFrame(izquierda, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0,
                                    0, 0, 0, 0, 0, 0, 0);
  lstBienes = new FXList(marco, this, ID_LISTA, LIST_BROWSESELECT | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  aviso = new FXLabel(izquierda, " ", nullptr, JUSTIFY_LEFT | LAYOUT_FILL_X);
  auto* columna = new FXVerticalFrame(cuerpo, LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 0, 0);
  ArmaBotones(columna);
}

void Bienes_Window::ArmaBotones(FXComposite* columna) {
  const auto boton = [&](const char* texto, const unsigned char* dibujo, FXSelector mensaje,
                         FXuint opciones = 0) {
    NuevoBoton(columna, texto, icono(getApp(), dibujo), this, mensaje, LAYOUT_FILL_X | opciones);
  };
  boton("&Persona", iconos::find_icon, ID_PERSONA);
  boton("&Socio", iconos::find_icon, ID_SOCIO);
  boton("&Nuevo", iconos::nuevo_icon, ID_NUEVO);
  boton("A&brir", iconos::user_icon, ID_ABRIR);
  boton("&Cerrar", iconos::cerrar_icon, ID_CANCEL, LAYOUT_BOTTOM);
  boton("&Aceptar", iconos::ok_icon, ID_GUARDAR, LAYOUT_BOTTOM);
}

long Bienes_Window::onUpdConPersona(FXObject* emisor, FXSelector, void*) {
  return emisor->handle(this, FXSEL(SEL_COMMAND, hayPersona ? ID_ENABLE : ID_DISABLE), nullptr);
}

void Bienes_Window::Lee(long sujetoID) {
  persona = cSujeto();
  persona.getBienes().RemoverTodos();  // an assignment leaves them
  persona.setSujetoID(sujetoID);
  persona.Find();
  hayPersona = !persona.IsNew();
  pendiente = false;
  Muestra();
}

void Bienes_Window::Muestra() {
  const FXint actual = lstBienes->getCurrentItem();
  nombre->setText(hayPersona ? FXStringFormat("%li  %s %s %s", persona.getSujetoID(), persona.getNombre(),
                                              persona.getPaterno(), persona.getMaterno())
                             : FXString("Ninguna persona elegida"));
  lstBienes->clearItems();
  for (const cBien& uno : persona.getBienes()) {
    FXString renglon = uno.getDescriBien();
    if (uno.Deleted()) renglon += "  (se borra)";
    lstBienes->appendItem(renglon);
  }
  if (actual >= 0 && actual < lstBienes->getNumItems()) lstBienes->setCurrentItem(actual);
  aviso->setText(pendiente ? "Hay cambios sin guardar" : " ");
}

/// Lets the user search, and shows the goods of the person who was picked, if any. `suPersona` gives the
/// number of the person from what the search hands over.
template <class Buscador, class SuPersona>
long Bienes_Window::Busca(SuPersona suPersona) {
  sbusquedasocio[0] = '\0';
  Buscador(this).execute(PLACEMENT_CURSOR);
  if (sbusquedasocio[0] == '\0') return 1;
  try {
    if (const long elegida = suPersona(sbusquedasocio); elegida != 0) Lee(elegida);
  } catch (char* texto) {
    persona.RollBackTransaction();
    cajaError(this, "Bienes", texto);
  }
  return 1;
}

long Bienes_Window::onCmdPersona(FXObject*, FXSelector, void*) {
  return Busca<BusquedaSujeto_Window>([](const char* elegida) { return atol(elegida); });
}

long Bienes_Window::onCmdSocio(FXObject*, FXSelector, void*) {
  return Busca<BusquedaSocio_Window>(PersonaDelSocio);
}

void Bienes_Window::Edita(int indice) {
  if (Bien_Window(this, &persona, indice).execute(PLACEMENT_OWNER) != FALSE) pendiente = true;
  lista<cBien> quedan;
  for (const cBien& uno : persona.getBienes())
    if (!uno.IsNew() || !uno.Deleted()) quedan.Insertar(uno);  // the save would insert a new one all the same
  persona.getBienes() = quedan;
  Muestra();
}

long Bienes_Window::onCmdNuevo(FXObject*, FXSelector, void*) {
  if (hayPersona) Edita(-1);
  return 1;
}

long Bienes_Window::onCmdAbrir(FXObject*, FXSelector, void*) {
  const FXint cual = lstBienes->getCurrentItem();
  if (hayPersona && cual >= 0) Edita(cual);
  return 1;
}

long Bienes_Window::onCmdGuardar(FXObject*, FXSelector, void*) {
  if (!hayPersona || !pendiente) return 1;
  if (!cajaPregunta(this, "Bienes", "Guardar cambios realizados ?")) return 1;
  try {
    persona.Update();
    Lee(persona.getSujetoID());
  } catch (char* texto) {
    persona.RollBackTransaction();
    cajaError(this, "Error en Validación", texto);
  }
  return 1;
}
