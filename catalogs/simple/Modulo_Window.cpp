#include "catalogs/simple/Modulo_Window.h"

MAPA_FORMA(Modulo_Window, onCmdModulo)

cModulo modulo;

Modulo_Window::Modulo_Window(FXWindow* duenio) : Forma(duenio, "Modulo") {
  ArmaLista("Modulo");
  FXMatrix* matriz = ArmaGrupo("Clave");
  campoClave(matriz, "Clave:", 10, clave);
  matriz = ArmaGrupo("");
  campoParrafo(matriz, "Descripción:", 2, 40, descripcion);
  ArmaBotones();
  Comienza();
}
