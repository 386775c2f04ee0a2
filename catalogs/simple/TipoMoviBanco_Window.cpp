#include "catalogs/simple/TipoMoviBanco_Window.h"

MAPA_FORMA(TipoMoviBanco_Window, onCmdTipoMoviBanco,
           MANDO(TipoMoviBanco_Window, ID_OPERACION, onCmdOperacionSumaResta))

cTipoMoviBanco tipomovibanco;
char sTipoMoviBanco[31];

TipoMoviBanco_Window::TipoMoviBanco_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo Movimientos Bancarios", {20, 20, 650, 180}) {
  ArmaLista("Movimiento");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Clave:", 2, id);
  matriz = ArmaGrupo("Datos del Movimiento");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  chkIncrementa = campoCasilla(matriz, "Incrementar Saldo:", this, ID_OPERACION);
  ArmaBotones();
  Abre("terminando creacion frm tipomovibanco", 3);
}

long TipoMoviBanco_Window::onCmdOperacionSumaResta(FXObject*, FXSelector, void*) {
  operacion = chkIncrementa->getCheck() ? "+" : "-";
  return 1;
}

void TipoMoviBanco_Window::Read() {
  Forma::Read();
  chkIncrementa->setCheck(strcmp(tipomovibanco.getOperacionSumaResta(), "+") == 0);
}

void TipoMoviBanco_Window::Update() {
  Forma::Update();
  tipomovibanco.setOperacionSumaResta(operacion.text());
}

void TipoMoviBanco_Window::Clear() {
  Forma::Clear();
  operacion = "";
  chkIncrementa->setCheck(FALSE);
}
