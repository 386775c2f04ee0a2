#include "catalogs/people/BusquedaSocio_Window.h"

#include "app/sesion.h"
#include "widgets/rtrim.h"

FXIMPLEMENT(BusquedaSocio_Window, FXDialogBox, mapaDeBuscador<BusquedaSocio_Window>,
            ARRAYNUMBER(mapaDeBuscador<BusquedaSocio_Window>))

char sbusquedasocio[15];

namespace {

/// Key, full name and state in columns; the name's counts characters, so that an accent does not shift what
/// follows.
FXString Renglon(const cSocioCaja& socio) {
  const FXString completo =
      FXStringFormat("%s %s %s", socio.getNombre(), socio.getPaterno(), socio.getMaterno());
  const std::unique_ptr<char[]> recortado(rtrim(completo.text()));
  const FXString nombre = recortado.get();
  const int ancho = 40 + nombre.length() - nombre.count();
  return FXStringFormat("%-12s %-*s %-20s", socio.getClaveSocioInt(), ancho, nombre.text(),
                        socio.getEstatus());
}

}  // namespace

void BusquedaSocio_Window::Filtra() {
  try {
    catalogo.LoadSociosCajaF(filtro.valor.text());
  } catch (char*) {
    return;  // no dialog of search reports anything
  }
  for (const auto& [fila, socio] : Filas()) Agrega(Renglon(socio));
}
