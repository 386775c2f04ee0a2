#include "catalogs/simple/Grupo_Window.h"

MAPA_FORMA_CORTA(Grupo_Window, onCmdGrupo)

cGrupo grupo;

Grupo_Window::Grupo_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Grupos", {20, 20, 550, 170}) {
  ArmaLista("Grupos");
  FXMatrix* matriz = ArmaGrupo("");
  campoClave(matriz, "Identificador:", 4, id, JUSTIFY_RIGHT);
  campoTexto(matriz, "Grupo:", 30, nombre);
  ArmaBotones();
  Abre("terminando creacion frm grupo", 99);
}
