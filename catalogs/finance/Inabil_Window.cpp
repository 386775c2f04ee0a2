#include "catalogs/finance/Inabil_Window.h"

MAPA_FORMA(Inabil_Window, onCmdInabil, MANDO(Inabil_Window, ID_CALENDARIO, onCmdCalendario))

cInabil inabil;

Inabil_Window::Inabil_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FormaDiaria(area, menu, "Dias Inabiles", 460) {
  ArmaLista("Inabil");
  campoFecha(ArmaGrupo("Datos"), "Fecha:", fecha, this, ID_CALENDARIO);
  Termina();
}
