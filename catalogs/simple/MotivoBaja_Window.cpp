#include "catalogs/simple/MotivoBaja_Window.h"

MAPA_FORMA_CORTA(MotivoBaja_Window, onCmdMotivoBaja)

cMotivoBaja motivobaja;

MotivoBaja_Window::MotivoBaja_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Motivos Baja", {20, 20, 550, 170}) {
  ArmaLista("Motivos");
  FXMatrix* matriz = ArmaGrupo("");
  campoClave(matriz, "Identificador:", 4, id, JUSTIFY_RIGHT);
  campoTexto(matriz, "Descripcion:", 30, descripcion);
  ArmaBotones();
  Abre("terminando creacion frm motivobaja", 99);
}
