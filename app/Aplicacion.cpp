#include "app/Aplicacion.h"

#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <cstdlib>
#include <cstring>
#include <iostream>

#include "app/Caja.h"
#include "framework/Foco.h"

namespace {

/// Ends a program that has not begun.
void Desiste(const char* texto) {
  std::cerr << texto << std::endl;
  std::_Exit(1);
}

bool HayForma(FXWindow* ventana) {
  if (dynamic_cast<MarcoDeForma*>(ventana) != nullptr) return true;
  for (FXWindow* hija = ventana->getFirst(); hija != nullptr; hija = hija->getNext())
    if (HayForma(hija)) return true;
  return false;
}

}  // namespace

void Aplicacion::init(int& argc, char** argv, bool connect) {
  const char* pantalla = nullptr;  // the toolkit's own option goes before the environment
  for (int i = 1; i + 1 < argc; ++i)
    if (strcmp(argv[i], "-display") == 0) pantalla = argv[i + 1];
  FXApp::init(argc, argv, false);
  if (connect && !openDisplay(pantalla))
    Desiste("No hay pantalla: abra el programa desde una sesión gráfica.");
}

void Aplicacion::create() {
  try {
    FXApp::create();
  } catch (const FXFontException&) {
    Desiste("No hay letras en este equipo: instale el paquete fonts-liberation.");
  }
}

bool Aplicacion::getNextEvent(FXRawEvent& evento, bool espera) {
  if (!FXApp::getNextEvent(evento, espera)) return false;
  if (evento.type != KeyPress && evento.type != KeyRelease) return true;
  const FXWindow* campo = getFocusWindow();
  if (campo == nullptr || campo->getComposeContext() == nullptr || campo->id() == evento.xany.window)
    return true;
  return XFilterEvent(&evento, campo->id()) == False;
}

bool Aplicacion::dispatchEvent(FXRawEvent& evento) {
  // An open menu or list has pointer and keyboard to itself.
  if (evento.type != KeyPress || getPopupWindow() != nullptr ||
      (evento.xkey.state & (ShiftMask | ControlMask | Mod1Mask)) != 0)
    return FXApp::dispatchEvent(evento);
  FXWindow* const ventana = EnFrente();
  switch (XLookupKeysym(&evento.xkey, 0)) {
    case XK_F1:
      if (ventana != nullptr) ayuda.Muestra(ventana);
      return true;
    case XK_F9:
      if (ventana != nullptr) Conecta(ventana);
      return true;
    default:
      return FXApp::dispatchEvent(evento);
  }
}

/// A user whose connection is lost may be in a dialog, behind which the menu cannot be reached: he need not
/// close it, and lose what he has typed. A box has to be answered first.
void Aplicacion::Conecta(FXWindow* enFrente) {
  if (!HayForma(enFrente) && dynamic_cast<Caja*>(enFrente) == nullptr) return;
  FXWindow* principal = enFrente;
  while (principal->getOwner() != nullptr) principal = principal->getOwner()->getShell();
  if (dynamic_cast<Caja*>(principal) != nullptr)
    principal->handle(this, FXSEL(SEL_COMMAND, Caja::ID_CONECTAR), nullptr);
}

/// The window that the user is in: the one that has to be answered first, if there is one.
FXWindow* Aplicacion::EnFrente() const {
  FXWindow* const ventana = getModalWindow() != nullptr ? getModalWindow() : getActiveWindow();
  return ventana != nullptr ? ventana->getShell() : nullptr;
}
