#include "catalogs/simple/Monedas_Window.h"

MAPA_FORMA(Monedas_Window, onCmdMoneda)

cMonedas moneda;
char sMoneda[30];

Monedas_Window::Monedas_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo de Monedas", {20, 20, 620, 205}) {
  ArmaLista("Monedas");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Moneda:", 2, id);
  matriz = ArmaGrupo("Datos de la Moneda");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  campoReal(matriz, "Valor :", 10, valor);
  ArmaBotones();
  Abre("terminando creacion frm pais", 1);
}
