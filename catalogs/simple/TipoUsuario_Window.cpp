#include "catalogs/simple/TipoUsuario_Window.h"

MAPA_FORMA(TipoUsuario_Window, onCmdTipoUsuario)

cTipoUsuario tipousuario;

TipoUsuario_Window::TipoUsuario_Window(FXWindow* duenio) : Forma(duenio, "Tipo de Usuarios") {
  ArmaLista("Tipo Usuario");
  FXMatrix* matriz = ArmaGrupo("Identificador");
  campoClave(matriz, "Identificador:", 3, id);
  matriz = ArmaGrupo("Descripción");
  campoTexto(matriz, "Descripción:", 20, descripcion);
  ArmaBotones();
  Comienza();
}
