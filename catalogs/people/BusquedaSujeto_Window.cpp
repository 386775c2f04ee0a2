#include "catalogs/people/BusquedaSujeto_Window.h"

#include "app/sesion.h"

FXIMPLEMENT(BusquedaSujeto_Window, FXDialogBox, mapaDeBuscador<BusquedaSujeto_Window>,
            ARRAYNUMBER(mapaDeBuscador<BusquedaSujeto_Window>))

void BusquedaSujeto_Window::Filtra() {
  if (filtro.valor.empty()) return;
  catalogo.LoadSujetos(filtro.valor.text());
  for (const auto& [fila, sujeto] : Filas()) {
    Agrega(FXStringFormat("%6li %s %s %s", sujeto.getSujetoID(), sujeto.getNombre(), sujeto.getPaterno(),
                          sujeto.getMaterno()));
  }
}
