#include "operaciones/TipoAsentamiento_Window.h"

MAPA_FORMA(TipoAsentamiento_Window, onCmdLista)

cTipoAsentamiento tipoasentamiento;

TipoAsentamiento_Window::TipoAsentamiento_Window(FXWindow* duenio) : Forma(duenio, "Tipos de asentamiento") {
  ArmaLista("Tipos de asentamiento", 200);
  campoClave(ArmaGrupo("Identificación"), "Identificador:", 6, id);
  campoTexto(ArmaGrupo("Datos del tipo"), "Asentamiento:", 50, nombre);
  ArmaBotones();
  Comienza();
}
