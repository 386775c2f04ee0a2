#include "icons/Icono.h"

#include <map>

namespace {

template <class Formato>
FXIcon* Unico(FXApp* app, const unsigned char* dibujo) {
  static auto& iconos = *new std::map<const unsigned char*, FXIcon*>;  // outlives all, as its icons do
  FXIcon*& icono = iconos[dibujo];
  if (icono == nullptr) icono = new Formato(app, dibujo, FXRGB(192, 192, 192));
  return icono;
}

}  // namespace

FXIcon* icono(FXApp* app, const unsigned char* dibujo) { return Unico<FXICOIcon>(app, dibujo); }

FXIcon* iconoGif(FXApp* app, const unsigned char* dibujo) { return Unico<FXGIFIcon>(app, dibujo); }
