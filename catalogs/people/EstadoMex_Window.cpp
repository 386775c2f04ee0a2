#include "catalogs/people/EstadoMex_Window.h"

MAPA_FORMA(EstadoMex_Window, onCmdEstadoMex)

cEstadoMex estadomex;
char sEstadoMex[21];

EstadoMex_Window::EstadoMex_Window(FXWindow* duenio) : Forma(duenio, "Estados") {
  ArmaLista("Estados");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Identificador:", 2, id);
  matriz = ArmaGrupo("Datos del Estado");
  campoTexto(matriz, "Clave:", 3, clave);
  campoTexto(matriz, "Nombre:", 20, nombre);
  ArmaBotones();
  Comienza();
}
