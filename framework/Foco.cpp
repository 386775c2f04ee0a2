#include "framework/Foco.h"

#include <fxkeys.h>

namespace {

/// Puts the keyboard into a piece, or into what is in it.
bool Entra(FXWindow* pieza, FXSelector sel, void* evento) {
  return pieza->handle(pieza, FXSEL(SEL_FOCUS_SELF, 0), evento) != 0 ||
         pieza->handle(pieza, sel, evento) != 0;
}

/// From the child with the keyboard once round the others until one takes it; without one, from the first,
/// which is the list and so comes last.
long Rodea(FXWindow* marco, FXSelector sel, void* evento, bool adelante) {
  FXWindow* hijo = marco->getFocus() != nullptr ? marco->getFocus() : marco->getFirst();
  for (FXint i = 0; i < marco->numChildren(); ++i) {
    FXWindow* const vecino = adelante ? hijo->getNext() : hijo->getPrev();
    hijo = vecino != nullptr ? vecino : adelante ? marco->getFirst() : marco->getLast();
    if (!hijo->shown()) continue;
    if (Entra(hijo, sel, evento)) return 1;
  }
  return 1;
}

/// The widget with the keyboard inside a window.
FXWindow* ConTeclado(FXWindow* ventana) {
  while (ventana->getFocus() != nullptr) ventana = ventana->getFocus();
  return ventana;
}

/// Is it a piece that does nothing with a key: a frame, an area, a bar, a window?
bool EstaEnNada(const FXWindow* pieza) {
  return !pieza->canFocus() || dynamic_cast<const FXMDIChild*>(pieza) != nullptr;
}

/// Can the user get at a piece of this frame?
bool SeAlcanza(const FXWindow* pieza, const FXWindow* marco) {
  if (!pieza->isEnabled()) return false;
  for (; pieza != marco; pieza = pieza->getParent())
    if (!pieza->shown()) return false;
  return true;
}

}  // namespace

// Frames pass Tab on as a move down or to the right.
FXDEFMAP(LibroDeForma)
LibroDeFormaMap[] = {
    FXMAPFUNC(SEL_FOCUS_NEXT, 0, LibroDeForma::onFocusNext),
    FXMAPFUNC(SEL_FOCUS_DOWN, 0, LibroDeForma::onFocusNext),
    FXMAPFUNC(SEL_FOCUS_RIGHT, 0, LibroDeForma::onFocusNext),
    FXMAPFUNC(SEL_FOCUS_PREV, 0, LibroDeForma::onFocusPrev),
    FXMAPFUNC(SEL_FOCUS_UP, 0, LibroDeForma::onFocusPrev),
    FXMAPFUNC(SEL_FOCUS_LEFT, 0, LibroDeForma::onFocusPrev),
};
FXIMPLEMENT(LibroDeForma, FXTabBook, LibroDeFormaMap, ARRAYNUMBER(LibroDeFormaMap))

/// The children are tab, page, tab, page.
FXWindow* LibroDeForma::Pagina() const { return childAtIndex(2 * getCurrent() + 1); }

long LibroDeForma::onFocusNext(FXObject* emisor, FXSelector sel, void* evento) {
  FXWindow* const pagina = Pagina();
  if (pagina == nullptr || getFocus() == pagina) return 0;
  if (getFocus() != nullptr && FXSELTYPE(sel) == SEL_FOCUS_RIGHT)  // from tab to tab
    return FXTabBook::onFocusNext(emisor, sel, evento);
  return Entra(pagina, FXSEL(SEL_FOCUS_NEXT, 0), evento);
}

long LibroDeForma::onFocusPrev(FXObject* emisor, FXSelector sel, void* evento) {
  FXWindow* const pagina = Pagina();
  if (pagina == nullptr || getFocus() == pagina) return 0;
  if (getFocus() != nullptr)
    return FXSELTYPE(sel) == SEL_FOCUS_LEFT ? FXTabBook::onFocusPrev(emisor, sel, evento) : 0;
  return Entra(pagina, FXSEL(SEL_FOCUS_PREV, 0), evento);
}

void LibroDeForma::Hojea(bool adelante, void* evento) {
  const FXint paginas = numChildren() / 2;
  if (paginas == 0) return;
  const bool dentro = getFocus() != nullptr;
  if (dentro) getFocus()->killFocus();
  setCurrent((getCurrent() + (adelante ? 1 : paginas - 1)) % paginas, TRUE);
  layout();
  if (dentro) Entra(Pagina(), FXSEL(SEL_FOCUS_NEXT, 0), evento);
}

FXDEFMAP(MarcoDeForma)
MarcoDeFormaMap[] = {
    FXMAPFUNC(SEL_FOCUS_NEXT, 0, MarcoDeForma::onFocusNext),
    FXMAPFUNC(SEL_FOCUS_PREV, 0, MarcoDeForma::onFocusPrev),
    FXMAPFUNC(SEL_KEYPRESS, 0, MarcoDeForma::onKeyPress),
    FXMAPFUNC(SEL_UPDATE, 0, MarcoDeForma::onUpdate),
};
FXIMPLEMENT(MarcoDeForma, FXHorizontalFrame, MarcoDeFormaMap, ARRAYNUMBER(MarcoDeFormaMap))

long MarcoDeForma::onFocusNext(FXObject*, FXSelector sel, void* evento) {
  return Rodea(this, sel, evento, true);
}

long MarcoDeForma::onFocusPrev(FXObject*, FXSelector sel, void* evento) {
  return Rodea(this, sel, evento, false);
}

long MarcoDeForma::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  const auto* const tecla = static_cast<FXEvent*>(evento);
  switch (MKUINT(tecla->code, tecla->state & (SHIFTMASK | CONTROLMASK | ALTMASK | METAMASK))) {
    case KEY_Tab:
    case KEY_KP_Tab:
      return Avanza(FXSEL(SEL_FOCUS_NEXT, 0), evento);
    case KEY_ISO_Left_Tab:
    case MKUINT(KEY_ISO_Left_Tab, SHIFTMASK):
    case MKUINT(KEY_Tab, SHIFTMASK):
      return Avanza(FXSEL(SEL_FOCUS_PREV, 0), evento);
    case MKUINT(KEY_Tab, CONTROLMASK):
      return PasaDeForma(true);
    case MKUINT(KEY_ISO_Left_Tab, CONTROLMASK | SHIFTMASK):
    case MKUINT(KEY_Tab, CONTROLMASK | SHIFTMASK):
      return PasaDeForma(false);
    case MKUINT(KEY_Page_Down, CONTROLMASK):
    case MKUINT(KEY_Page_Up, CONTROLMASK):
    case MKUINT(KEY_KP_Page_Down, CONTROLMASK):
    case MKUINT(KEY_KP_Page_Up, CONTROLMASK):
      if (libro != nullptr)
        libro->Hojea(tecla->code == KEY_Page_Down || tecla->code == KEY_KP_Page_Down, evento);
      return 1;
    case KEY_F5:
      Relee();
      return 1;
    default:
      return FXHorizontalFrame::onKeyPress(emisor, sel, evento);
  }
}

/// Tab: the innermost frame around the keyboard that has a next piece moves on to it. A combo box is one
/// piece.
long MarcoDeForma::Avanza(FXSelector sel, void* evento) {
  for (FXWindow* marco = ConTeclado(this); marco != this; marco = marco->getParent())
    if (dynamic_cast<FXComboBox*>(marco->getParent()) == nullptr &&
        marco->getParent()->handle(this, sel, evento))
      return 1;
  return handle(this, sel, evento);
}

/// The next child form of the area, round and round, or the one before.
long MarcoDeForma::PasaDeForma(bool adelante) {
  auto* const hija = dynamic_cast<FXMDIChild*>(getParent());
  if (hija == nullptr) return 1;
  auto* const area = static_cast<FXMDIClient*>(hija->getParent());
  FXWindow* vecina = adelante ? hija->getNext() : hija->getPrev();
  if (vecina == nullptr) vecina = adelante ? area->getFirst() : area->getLast();
  if (vecina == hija) return 1;
  killFocus();
  area->setActiveChild(static_cast<FXMDIChild*>(vecina), TRUE);
  for (FXWindow* pieza = vecina->getFirst(); pieza != nullptr; pieza = pieza->getNext())
    if (auto* suyo = dynamic_cast<MarcoDeForma*>(pieza)) suyo->Recupera();
  return 1;
}

bool MarcoDeForma::EstaActiva() const {
  const auto* const hija = dynamic_cast<FXMDIChild*>(getParent());
  if (hija == nullptr) return true;
  return static_cast<FXMDIClient*>(hija->getParent())->getActiveChild() == hija && !hija->isMinimized();
}

long MarcoDeForma::onUpdate(FXObject* emisor, FXSelector sel, void* datos) {
  if (EstaActiva() && EstaEnNada(ConTeclado(getShell()))) Recupera();
  return FXHorizontalFrame::onUpdate(emisor, sel, datos);
}

void MarcoDeForma::killFocus() {
  FXWindow* const pieza = ConTeclado(this);
  if (pieza != this) ultimo = pieza;
  FXHorizontalFrame::killFocus();
}

void MarcoDeForma::Recupera() {
  if (id() == 0) return;
  if (ultimo != nullptr && SeAlcanza(ultimo, this)) return ultimo->setFocus();
  if (getFocus() != nullptr) getFocus()->killFocus();
  FXEvent sinTecla;
  handle(this, FXSEL(SEL_FOCUS_NEXT, 0), &sinTecla);
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
    FXMAPFUNC(SEL_COMMAND, FXText::ID_INSERT_STRING, CampoParrafo::onCmdInserta),
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

long CampoParrafo::onCmdInserta(FXObject* emisor, FXSelector sel, void* texto) {
  FXString limpio = static_cast<const FXchar*>(texto);
  limpio.substitute('\t', ' ');
  return FXText::onCmdInsertString(emisor, sel, const_cast<FXchar*>(limpio.text()));
}

FXDEFMAP(ListaDeForma)
ListaDeFormaMap[] = {
    FXMAPFUNC(SEL_KEYPRESS, 0, ListaDeForma::onKeyPress),
    FXMAPFUNC(SEL_QUERY_TIP, 0, ListaDeForma::onQueryTip),
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

long ListaDeForma::onQueryTip(FXObject* emisor, FXSelector sel, void* datos) {
  const bool cortada =
      0 <= cursor && cursor < items.no() && items[cursor]->getWidth(this) > getViewportWidth();
  return cortada ? FXList::onQueryTip(emisor, sel, datos) : 0;
}

FXDEFMAP(TablaDeForma)
TablaDeFormaMap[] = {
    FXMAPFUNC(SEL_KEYPRESS, 0, TablaDeForma::onKeyPress),
};
FXIMPLEMENT(TablaDeForma, FXTable, TablaDeFormaMap, ARRAYNUMBER(TablaDeFormaMap))

long TablaDeForma::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  switch (static_cast<FXEvent*>(evento)->code) {
    case KEY_space:
    case KEY_KP_Space:
    case KEY_Return:
    case KEY_KP_Enter:
      if (target != nullptr && 0 <= current.row)
        target->tryHandle(this, FXSEL(SEL_DOUBLECLICKED, message), &current);
      return 1;
    default:
      return FXTable::onKeyPress(emisor, sel, evento);
  }
}

void DaTeclado(FXWindow* campo) {
  if (campo->id() == 0) return;
  campo->setFocus();
  if (auto* texto = dynamic_cast<FXTextField*>(campo)) texto->selectAll();
}
