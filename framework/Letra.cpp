#include "framework/Letra.h"

bool TieneLetraGrande(FXApp* app) {
  constexpr FXuint comun = 100;  // points to the inch
  return app->reg().readUnsignedEntry("SETTINGS", "screenres", comun) > comun;
}
