#include "app/Aplicacion.h"

#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <cstdlib>
#include <cstring>
#include <iostream>

namespace {

/// Ends a program that has not begun.
void Desiste(const char* texto) {
  std::cerr << texto << std::endl;
  std::_Exit(1);
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
  if (evento.type != KeyPress || XLookupKeysym(&evento.xkey, 0) != XK_F1 || getPopupWindow() != nullptr ||
      (evento.xkey.state & (ShiftMask | ControlMask | Mod1Mask)) != 0)
    return FXApp::dispatchEvent(evento);
  if (FXWindow* const ventana = EnFrente()) ayuda.Muestra(ventana);
  return true;
}

/// The window that the user is in: the one that has to be answered first, if there is one.
FXWindow* Aplicacion::EnFrente() const {
  FXWindow* const ventana = getModalWindow() != nullptr ? getModalWindow() : getActiveWindow();
  return ventana != nullptr ? ventana->getShell() : nullptr;
}
