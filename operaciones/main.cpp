// Both programs, in one file with two names: they have all forms in common.
#include <cstring>

#include "app/Caja.h"
#include "app/Programa.h"
#include "operaciones/Operaciones.h"

int main(int argc, char* argv[]) {
  const char* barra = strrchr(argv[0], '/');
  const char* nombre = barra ? barra + 1 : argv[0];
  return strcmp(nombre, "tolvara-operaciones") == 0 ? Corre<Operaciones>(argc, argv)
                                                    : Corre<Caja>(argc, argv);
}
