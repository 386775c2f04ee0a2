#include "widgets/Teclado.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

constexpr FXuint pausa = 50;  // milliseconds
constexpr int vecesComoMaximo = 60;

/// Is the window on the screen?
bool SeVe(Display* pantalla, Window ventana) {
  XWindowAttributes datos;
  return XGetWindowAttributes(pantalla, ventana, &datos) != 0 && datos.map_state == IsViewable;
}

/// Asks the window manager, and the server for the case that there is none.
void Pide(Display* pantalla, Window ventana) {
  XEvent mensaje{};
  mensaje.xclient.type = ClientMessage;
  mensaje.xclient.window = ventana;
  mensaje.xclient.message_type = XInternAtom(pantalla, "_NET_ACTIVE_WINDOW", False);
  mensaje.xclient.format = 32;
  mensaje.xclient.data.l[0] = 2;  // on the user's behalf: he has started the program
  XSendEvent(pantalla, DefaultRootWindow(pantalla), False, SubstructureRedirectMask | SubstructureNotifyMask,
             &mensaje);
  XSetInputFocus(pantalla, ventana, RevertToParent, CurrentTime);
  XFlush(pantalla);
}

}  // namespace

FXDEFMAP(Teclado)
TecladoMap[] = {
    FXMAPFUNC(SEL_TIMEOUT, Teclado::ID_PIDE, Teclado::onPide),
};
FXIMPLEMENT(Teclado, FXObject, TecladoMap, ARRAYNUMBER(TecladoMap))

Teclado::Teclado(FXTopWindow* ventana) : ventana(ventana) {
  ventana->getApp()->addTimeout(this, ID_PIDE, pausa);
}

Teclado::~Teclado() {
  if (ventana != nullptr) ventana->getApp()->removeTimeout(this, ID_PIDE);
}

long Teclado::onPide(FXObject*, FXSelector, void*) {
  auto* const pantalla = static_cast<Display*>(ventana->getApp()->getDisplay());
  const bool lista = ventana->id() != 0 && SeVe(pantalla, ventana->id());
  // A box over it has the keyboard by right.
  if (lista && (ventana->hasFocus() || ventana->getApp()->getModalWindow() != ventana)) return 1;
  if (lista) Pide(pantalla, ventana->id());
  if (++veces < vecesComoMaximo) ventana->getApp()->addTimeout(this, ID_PIDE, pausa);
  return 1;
}
