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
    {"Next", "&Siguiente"},
    {"Previous", "&Anterior"},
    {"Restore", "&Restaurar"},
    {"Minimize", "&Minimizar"},
    {"Maximize", "Ma&ximizar"},
    {"Close", "&Cerrar"},
    {"Next window.", "Ventana siguiente."},
    {"Previous window.", "Ventana anterior."},
    {"Restore window.", "Restaurar la ventana."},
    {"Minimize window.", "Minimizar la ventana."},
    {"Maximize window.", "Maximizar la ventana."},
    {"Close window.", "Cerrar la ventana."},
};

/// The Spanish of `texto`, or `texto` itself.
const char* EnEspanol(const char* texto) {
  for (const Traduccion& t : traducciones) {
    if (strcmp(t.texto, texto) == 0) return t.espanol;
  }
  return texto;
}

}  // namespace

const FXchar* Traductor::tr(const FXchar*, const FXchar* mensaje, const FXchar*) const {
  return EnEspanol(mensaje);
}

void TraduceMenu(FXMDIMenu* menu) {
  for (FXWindow* hija = menu->getFirst(); hija != nullptr; hija = hija->getNext()) {
    if (auto* entrada = dynamic_cast<FXMenuCommand*>(hija)) {
      entrada->setText(EnEspanol(entrada->getText().text()));
      entrada->setHelpText(EnEspanol(entrada->getHelpText().text()));
    }
  }
}
