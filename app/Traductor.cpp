#include "app/Traductor.h"

#include <cstring>

namespace {

struct Traduccion {
  const char* texto;
  const char* espanol;
};

const Traduccion traducciones[] = {
    {"&OK", "&Aceptar"},
    {"&Cancel", "&Cancelar"},
    {"&Yes", "&Sí"},
    {"&No", "&No"},
    {"&Quit", "&Salir"},
    {"&Save", "&Guardar"},
    {"&Next", "&Siguiente"},
    {"&Previous", "&Anterior"},
    {"&Restore", "&Restaurar"},
    {"&Minimize", "&Minimizar"},
    {"Ma&ximize", "Ma&ximizar"},
    {"&Close", "&Cerrar"},
};

}  // namespace

const FXchar* Traductor::tr(const FXchar*, const FXchar* mensaje, const FXchar*) const {
  for (const Traduccion& t : traducciones) {
    if (strcmp(t.texto, mensaje) == 0) return t.espanol;
  }
  return mensaje;
}
