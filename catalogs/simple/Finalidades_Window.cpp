#include "catalogs/simple/Finalidades_Window.h"

MAPA_FORMA(Finalidades_Window, onCmdLista)

cFinalidades finalidades;
char sDescripcionFinalidad[31];

Finalidades_Window::Finalidades_Window(FXWindow* duenio) : Forma(duenio, "Finalidades") {
  ArmaLista("Finalidades");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Clave:", 3, clave);
  matriz = ArmaGrupo("Datos de la Finalidad del Credito");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  ArmaBotones();
  Comienza();
}
