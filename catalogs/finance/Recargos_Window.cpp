#include "catalogs/finance/Recargos_Window.h"

MAPA_FORMA(Recargos_Window, onCmdRecargos)

cRecargos recargos;

Recargos_Window::Recargos_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FormaMensual(area, menu, "Catalogo de Recargos", 500) {
  Arma("Recargos", "Porcentaje :");
}
