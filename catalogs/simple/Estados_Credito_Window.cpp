#include "catalogs/simple/Estados_Credito_Window.h"

MAPA_FORMA(Estados_Credito_Window, onCmdLista)

cEstados_Credito estados_credito;
char sDescripcionEdoCredito[31];

Estados_Credito_Window::Estados_Credito_Window(FXWindow* duenio) : Forma(duenio, "Estados del Credito") {
  ArmaLista("Estado del Credito");
  FXMatrix* matriz = ArmaGrupo("Identificacion");
  campoClave(matriz, "Clave:", 3, clave);
  matriz = ArmaGrupo("Datos del estado del credito");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  ArmaBotones();
  Comienza();
}
