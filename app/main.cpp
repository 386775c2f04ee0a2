#include "app/Caja.h"
#include "app/Programa.h"

int main(int argc, char* argv[]) { return Corre<Caja>(argc, argv); }
