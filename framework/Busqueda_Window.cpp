#include "framework/Busqueda_Window.h"

FXIMPLEMENT(Busqueda_Window, FXDialogBox, mapaDeBuscador<Busqueda_Window>,
            ARRAYNUMBER(mapaDeBuscador<Busqueda_Window>))

char sbusqueda[25];

namespace {

FXString Renglon(const cCatalogo_Ctas& cuenta, const char* blancos) {
  char renglon[56];
  FormateaCuenta(renglon, cuenta, 24, blancos);
  return renglon;
}

}  // namespace

Busqueda_Window::Busqueda_Window(FXWindow* owner) : Buscador(owner, 350, "helvica") {
  for (const auto& [fila, cuenta] : Filas()) Agrega(Renglon(cuenta, " "));
  Muestra(FindCuenta(sbusqueda));
}

void Busqueda_Window::Filtra() {
  filtro.valor.trimEnd();
  for (const auto& [fila, cuenta] : Filas()) {
    const FXString renglon = Renglon(cuenta, "  ");  // one blank more than when the dialog opens
    if (renglon.contains(filtro.valor)) Agrega(renglon);
  }
}

const char* EligeCuenta(FXWindow* owner, const FXString& cuenta) {
  CopiaTexto(sbusqueda, cuenta.text());
  Busqueda_Window(owner).execute(PLACEMENT_CURSOR);
  return sbusqueda;
}

int FindCuenta(const char* cuentaID) {
  int posicion = 0;
  for (const auto& [fila, cuenta] : Catalogo::Catalogo_Ctas) {
    if (strcmp(cuenta.getCuentaID(), cuentaID) == 0) return posicion;
    ++posicion;
  }
  return 0;
}
