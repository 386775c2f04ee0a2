#include "framework/CampoFecha.h"

#include "icons/Icono.h"
#include "icons/iconos.h"
#include "widgets/cFecha.h"

void campoFecha(FXMatrix* matriz, const char* etiqueta, DatoTexto& dato, FXObject* destino,
                FXSelector mensaje) {
  FXComposite* renglon = campoRenglon(matriz, etiqueta);
  dato.campo = new cFecha(destino, renglon, 10, &dato.destino, FXDataTarget::ID_VALUE,
                          FRAME_SUNKEN | FRAME_THICK | TEXTFIELD_LIMITED | JUSTIFY_LEFT | LAYOUT_CENTER_Y);
  new FXButton(renglon, FXString::null, icono(renglon->getApp(), iconos::calendario), destino, mensaje,
               FRAME_RAISED | FRAME_THICK | LAYOUT_CENTER_Y, 0, 0, 0, 0, 2, 2, 2, 2);
}
