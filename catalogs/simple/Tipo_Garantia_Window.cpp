#include "catalogs/simple/Tipo_Garantia_Window.h"

MAPA_FORMA(Tipo_Garantia_Window, onCmdLista)

cTipo_Garantia tipo_garantia;
char sDescripcionGarantia[31];

Tipo_Garantia_Window::Tipo_Garantia_Window(FXWindow* duenio) : Forma(duenio, "Tipo de Garantia") {
  ArmaLista("Tipo Garantia");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Clave:", 3, clave);
  matriz = ArmaGrupo("Datos del Tipo de Garantia");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  ArmaBotones();
  Comienza();
}
