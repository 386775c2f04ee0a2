// A branch at national scale.
#pragma once

#include <string>

#include "tests/support/Proceso.h"
#include "tests/support/Servidor.h"

/// Fills the branch norte of a reference database.
inline void Escala(pruebas::BaseDatos& base) {
  pruebas::Servidor& servidor = pruebas::Servidor::Unico();
  pruebas::Orden orden{{pruebas::Raiz() / "server" / "escala", "norte"}, "", servidor.Entorno(base.nombre())};
  pruebas::CorreBien(orden);
  base.Ejecuta("analyze");
}
