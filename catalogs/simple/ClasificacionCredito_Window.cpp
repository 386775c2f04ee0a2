#include "catalogs/simple/ClasificacionCredito_Window.h"

MAPA_FORMA_CORTA(ClasificacionCredito_Window, onCmdClasificacionCredito)

cClasificacionCredito clasificacioncredito;

ClasificacionCredito_Window::ClasificacionCredito_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Clasificacion de Creditos", {20, 20, 550, 170}) {
  ArmaLista("Calsificacion de Creditos");
  FXMatrix* matriz = ArmaGrupo("");
  campoClave(matriz, "Identificador:", 4, id, JUSTIFY_RIGHT);
  campoTexto(matriz, "Descripcion:", 30, descripcion);
  ArmaBotones();
  Abre("terminando creacion frm clasificacioncredito", 99);
}
