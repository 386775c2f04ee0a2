#include "app/Aplicacion.h"

#include <X11/Xlib.h>
#include <X11/keysym.h>

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
