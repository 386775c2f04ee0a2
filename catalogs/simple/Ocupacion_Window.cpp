#include "catalogs/simple/Ocupacion_Window.h"

MAPA_FORMA_CORTA(Ocupacion_Window, onCmdOcupacion)

cOcupacion ocupacion;

Ocupacion_Window::Ocupacion_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Ocupacions", {20, 20, 550, 170}) {
  ArmaLista("Ocupacions");
  FXMatrix* matriz = ArmaGrupo("");
  campoClave(matriz, "Identificador:", 4, id, JUSTIFY_RIGHT);
  campoTexto(matriz, "Ocupacion:", 30, nombre);
  ArmaBotones();
  Abre("terminando creacion frm ocupacion", 99);
}
