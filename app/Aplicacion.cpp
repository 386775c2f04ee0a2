#include "app/Aplicacion.h"

#include <X11/Xlib.h>

bool Aplicacion::getNextEvent(FXRawEvent& evento, bool espera) {
  if (!FXApp::getNextEvent(evento, espera)) return false;
  if (evento.type != KeyPress && evento.type != KeyRelease) return true;
  const FXWindow* campo = getFocusWindow();
  if (campo == nullptr || campo->getComposeContext() == nullptr || campo->id() == evento.xany.window)
    return true;
  return XFilterEvent(&evento, campo->id()) == False;
}
