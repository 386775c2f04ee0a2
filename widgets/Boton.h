// The button of the program: raised, its drawing, if any, before its text.
#pragma once

#include <fx.h>

/// A new button of `padre` that sends `mensaje` to `destino`.
template <class Clase = FXButton>
Clase* NuevoBoton(FXComposite* padre, const char* texto, FXIcon* dibujo, FXObject* destino,
                  FXSelector mensaje, FXuint opciones) {
  return new Clase(padre, texto, dibujo, destino, mensaje,
                   FRAME_RAISED | FRAME_THICK | ICON_BEFORE_TEXT | opciones);
}
