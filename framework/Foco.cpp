#include "framework/Foco.h"

#include <fxkeys.h>

namespace {

/// From the child with the keyboard once round the others until one takes it; without one, from the first,
/// which is the list and so comes last.
long Rodea(FXWindow* marco, FXSelector sel, void* evento, bool adelante) {
  FXWindow* hijo = marco->getFocus() != nullptr ? marco->getFocus() : marco->getFirst();
  for (FXint i = 0; i < marco->numChildren(); ++i) {
    FXWindow* const vecino = adelante ? hijo->getNext() : hijo->getPrev();
    hijo = vecino != nullptr ? vecino : adelante ? marco->getFirst() : marco->getLast();
    if (!hijo->shown()) continue;
    if (hijo->handle(marco, FXSEL(SEL_FOCUS_SELF, 0), evento) || hijo->handle(marco, sel, evento)) return 1;
  }
  return 1;
}

/// The widget with the keyboard inside a window.
FXWindow* ConTeclado(FXWindow* ventana) {
  while (ventana->getFocus() != nullptr) ventana = ventana->getFocus();
  return ventana;
}

}  // namespace

FXDEFMAP(MarcoDeForma)
MarcoDeFormaMap[] = {
    FXMAPFUNC(SEL_FOCUS_NEXT, 0, MarcoDeForma::onFocusNext),
    FXMAPFUNC(SEL_FOCUS_PREV, 0, MarcoDeForma::onFocusPrev),
};
FXIMPLEMENT(MarcoDeForma, FXHorizontalFrame, MarcoDeFormaMap, ARRAYNUMBER(MarcoDeFormaMap))

long MarcoDeForma::onFocusNext(FXObject*, FXSelector sel, void* evento) {
  return Rodea(this, sel, evento, true);
}

long MarcoDeForma::onFocusPrev(FXObject*, FXSelector sel, void* evento) {
  return Rodea(this, sel, evento, false);
}

FXDEFMAP(BotonDeForma)
BotonDeFormaMap[] = {
    FXMAPFUNC(SEL_LEFTBUTTONRELEASE, 0, BotonDeForma::onLeftBtnRelease),
    FXMAPFUNC(SEL_KEYRELEASE, 0, BotonDeForma::onKeyRelease),
    FXMAPFUNC(SEL_KEYRELEASE, BotonDeForma::ID_HOTKEY, BotonDeForma::onHotKeyRelease),
};
FXIMPLEMENT(BotonDeForma, FXButton, BotonDeFormaMap, ARRAYNUMBER(BotonDeFormaMap))

void BotonDeForma::setFocus() {
  FXWindow* const antes = ConTeclado(getShell());
  if (const auto* boton = dynamic_cast<BotonDeForma*>(antes)) {
    if (boton != this) anterior = boton->anterior;
  } else {
    anterior = static_cast<FXWindow*>(getTarget())->containsChild(antes) ? antes : nullptr;
  }
  FXButton::setFocus();
}

long BotonDeForma::onLeftBtnRelease(FXObject* emisor, FXSelector sel, void* evento) {
  return Devuelve(FXButton::onLeftBtnRelease(emisor, sel, evento));
}

long BotonDeForma::onKeyRelease(FXObject* emisor, FXSelector sel, void* evento) {
  return Devuelve(FXButton::onKeyRelease(emisor, sel, evento));
}

long BotonDeForma::onHotKeyRelease(FXObject* emisor, FXSelector sel, void* evento) {
  return Devuelve(FXButton::onHotKeyRelease(emisor, sel, evento));
}

long BotonDeForma::Devuelve(long atendido) {
  if (atendido != 0 && anterior != nullptr && ConTeclado(getShell()) == this) anterior->setFocus();
  return atendido;
}

FXDEFMAP(CampoParrafo)
CampoParrafoMap[] = {
    FXMAPFUNC(SEL_KEYPRESS, 0, CampoParrafo::onKeyPress),
};
FXIMPLEMENT(CampoParrafo, FXText, CampoParrafoMap, ARRAYNUMBER(CampoParrafoMap))

long CampoParrafo::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  switch (static_cast<FXEvent*>(evento)->code) {
    case KEY_Tab:
    case KEY_KP_Tab:
    case KEY_ISO_Left_Tab:
      return 0;  // the frame passes it on to the next field
    default:
      return FXText::onKeyPress(emisor, sel, evento);
  }
}

FXDEFMAP(ListaDeForma)
ListaDeFormaMap[] = {
    FXMAPFUNC(SEL_KEYPRESS, 0, ListaDeForma::onKeyPress),
};
FXIMPLEMENT(ListaDeForma, FXList, ListaDeFormaMap, ARRAYNUMBER(ListaDeFormaMap))

long ListaDeForma::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  const auto* tecla = static_cast<FXEvent*>(evento);
  const bool mira = tecla->code != KEY_space && tecla->code != KEY_KP_Space &&
                    (tecla->state & (CONTROLMASK | ALTMASK)) == 0 &&
                    static_cast<FXuchar>(tecla->text[0]) > ' ';
  FXObject* const forma = target;
  if (mira) target = nullptr;
  const long atendida = FXList::onKeyPress(emisor, sel, evento);
  target = forma;
  return atendida;
}

void DaTeclado(FXWindow* campo) {
  if (campo->id() == 0) return;
  campo->setFocus();
  if (auto* texto = dynamic_cast<FXTextField*>(campo)) texto->selectAll();
}
