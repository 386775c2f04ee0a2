#include "catalogs/finance/Inpc_Window.h"

MAPA_FORMA(Inpc_Window, onCmdInpc)

cInpc inpc;

Inpc_Window::Inpc_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FormaMensual(area, menu, "Catalogo de INPC", 450) {
  Arma("Inpc", "Valor :");
}
