#include "operaciones/Listas_Window.h"

#include <cstring>

#include "app/sesion.h"
#include "db/Carga.h"
#include "widgets/cajas.h"

FXDEFMAP(Listas_Window)
Listas_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Listas_Window::ID_CATALOGO, Listas_Window::onCmdCatalogo),
    FXMAPFUNC(SEL_COMMAND, Listas_Window::ID_TABLA, Listas_Window::onRelee),
    FXMAPFUNC(SEL_TIMEOUT, Listas_Window::ID_ELIGE, Listas_Window::onElige),
    FXMAPFUNC(SEL_DOUBLECLICKED, Listas_Window::ID_TABLA, Listas_Window::onRenglon),
};
FXIMPLEMENT(Listas_Window, FXMDIChild, Listas_WindowMap, ARRAYNUMBER(Listas_WindowMap))

Listas_Window::Listas_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FXMDIChild(area, "Listas", nullptr, menu, 0, 5, 5, 780, 470) {
  setAccelTable(new FXAccelTable);
  auto* cuerpo = new MarcoDeForma(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  cuerpo->AlReleer([this] { onRelee(nullptr, 0, nullptr); });
  auto* partes =
      new FXSplitter(cuerpo, SPLITTER_HORIZONTAL | SPLITTER_TRACKING | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* izquierda = new FXVerticalFrame(partes, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0,
                                        0, 175, 0, 0, 0, 0, 0);
  catalogos =
      new ListaDeForma(izquierda, this, ID_CATALOGO, LIST_BROWSESELECT | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  for (const Catalogado& uno : Catalogados()) catalogos->appendItem(uno.nombre);
  catalogos->setCurrentItem(-1);
  marco = new MarcoDeTabla(new FXVerticalFrame(partes, LAYOUT_FILL_X | LAYOUT_FILL_Y), this, ID_TABLA);
}

void Listas_Window::create() {
  FXMDIChild::create();
  DaTeclado(catalogos);
}

Listas_Window::~Listas_Window() { getApp()->removeTimeout(this, ID_ELIGE); }

const Catalogado* Listas_Window::Elegido() const {
  const FXint cual = catalogos->getCurrentItem();
  return cual < 0 ? nullptr : &Catalogados()[cual];
}

void Listas_Window::Muestra() {
  const Catalogado* const elegido = Elegido();
  if (elegido == nullptr) return;
  getApp()->beginWaitCursor();
  marco->Pon(elegido->nombre, elegido->Hace());
  getApp()->endWaitCursor();
  setTitle(FXString("Listas: ") + elegido->nombre);
}

long Listas_Window::onCmdCatalogo(FXObject*, FXSelector, void*) {
  Muestra();
  if (marco->Lista()->Datos().Filas() == 0) onRelee(nullptr, 0, nullptr);
  return 1;
}

/// A load whose select fails throws nothing and leaves no rows: here the user is told why.
long Listas_Window::onRelee(FXObject*, FXSelector, void*) {
  const Catalogado* const elegido = Elegido();
  if (elegido == nullptr) return 1;
  std::string queja;
  try {
    quejaDeCarga.clear();
    elegido->relee();
    queja = quejaDeCarga.empty() ? PQerrorMessage(conn) : quejaDeCarga;
  } catch (char* texto) {
    queja = texto;
  }
  if (!queja.empty()) {
    engine.RollBackTransaction();
    cajaError(this, elegido->nombre, queja.c_str());
  }
  Muestra();
  return 1;
}

long Listas_Window::onRenglon(FXObject*, FXSelector, void*) {
  abierto = Elegido();
  const ListaDeTabla* const lista = marco->Lista();
  if (abierto == nullptr || abierto->opcion == 0 || lista->FilaActual() < 0) return 1;
  renglon.clear();
  for (int columna = 0; columna < lista->Datos().NumColumnas(); ++columna)
    renglon.emplace_back(lista->Datos().Celda(lista->FilaActual(), columna));
  getApp()->addTimeout(this, ID_ELIGE, 0);  // a dialog is on the screen by then, and runs until it is closed
  return getShell()->handle(this, FXSEL(SEL_COMMAND, abierto->opcion), nullptr);
}

long Listas_Window::onElige(FXObject*, FXSelector, void*) {
  const auto es = [this](const FXWindow* ventana) {
    return ventana != nullptr && strcmp(ventana->getClassName(), abierto->forma) == 0;
  };
  FXWindow* forma = getApp()->getModalWindow();
  if (forma == nullptr) {
    forma = getParent()->getLast();
    while (forma != nullptr && !es(forma)) forma = forma->getPrev();
  }
  if (es(forma)) EligeEnForma(forma, *abierto, renglon);
  return 1;
}
