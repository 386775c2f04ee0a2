#include "catalogs/simple/TipoSocio_Window.h"

MAPA_FORMA(TipoSocio_Window, onCmdTipoSocio)

cTipoSocio tiposocio;

TipoSocio_Window::TipoSocio_Window(FXWindow* duenio) : Forma(duenio, "Socios") {
  ArmaLista("Socios");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Identificador:", 2, id);
  matriz = ArmaGrupo("Descripciòn");
  campoTexto(matriz, "Descripcion:", 30, descripcion);
  campoParrafo(matriz, "Observaciones:", 4, 50, observaciones);
  ArmaBotones();
  Comienza();
}
