#include "catalogs/finance/Busqueda_Window.h"

#include "framework/Filas.h"

FXIMPLEMENT(Busqueda_Window, FXDialogBox, mapaDeBuscador<Busqueda_Window>,
            ARRAYNUMBER(mapaDeBuscador<Busqueda_Window>))

char sbusqueda[25];

namespace {

void Pega(FXString& renglon, const char* texto, size_t limite) {
  renglon.append(texto, static_cast<FXint>(LargoUtf8(texto, limite)));
}

}  // namespace

Busqueda_Window::Busqueda_Window(FXWindow* owner) : Buscador(owner, 350, "helvica") {
  FXint pedida = -1;
  for (const auto& [fila, cuenta] : Filas()) {
    if (pedida < 0 && strcmp(cuenta.getCuentaID(), sbusqueda) == 0) pedida = lstFilas->getNumItems();
    Agrega(RenglonDeCuenta(cuenta, corte, " "));
  }
  Muestra(std::max(pedida, 0));
}

void Busqueda_Window::Filtra() {
  filtro.valor.trimEnd();
  for (const auto& [fila, cuenta] : Filas()) {
    const FXString renglon =
        RenglonDeCuenta(cuenta, corte, "  ");  // one blank more than when the dialog opens
    if (renglon.contains(filtro.valor)) Agrega(renglon);
  }
}

const char* EligeCuenta(FXWindow* owner, const FXString& cuenta) {
  CopiaTexto(sbusqueda, cuenta.text());
  Busqueda_Window(owner).execute(PLACEMENT_CURSOR);
  return sbusqueda;
}

int FindCuenta(const char* cuentaID) {
  return PosicionDe(Catalogo::Catalogo_Ctas, &cCatalogo_Ctas::getCuentaID, cuentaID);
}

FXString RenglonDeCuenta(const cCatalogo_Ctas& cuenta, size_t digitos, const char* blancos) {
  FXString renglon;
  Pega(renglon, cuenta.getCuentaID(), digitos);
  renglon.append(blancos);
  Pega(renglon, cuenta.getCuentaNombre(), 29);
  return renglon;
}
