#include "app/Programa.h"
#include "operaciones/Operaciones.h"

int main(int argc, char* argv[]) { return Corre<Operaciones>(argc, argv); }
