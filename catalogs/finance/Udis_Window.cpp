#include "catalogs/finance/Udis_Window.h"

MAPA_FORMA(Udis_Window, onCmdUdis, MANDO(Udis_Window, ID_CALENDARIO, onCmdCalendario))

cUdis udis;

Udis_Window::Udis_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FormaDiaria(area, menu, "Catalogo de UDIS", 620) {
  ArmaLista("Udis");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoFecha(matriz, "Fecha:", fecha, this, ID_CALENDARIO);
  matriz = ArmaGrupo("Datos");
  campoReal(matriz, "Valor :", 10, valor);
  Termina();
}
