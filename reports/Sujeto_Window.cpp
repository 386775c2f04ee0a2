#include "reports/Sujeto_Window.h"

#include <cstdlib>

#include "app/sesion.h"
#include "catalogs/people/BusquedaSujeto_Window.h"
#include "catalogs/people/cSujeto.h"
#include "framework/Sentencia.h"
#include "reports/Archivo.h"
#include "reports/Reporte.h"

static constexpr auto& mapa = mapaDeReporte<Sujeto_Window, &Sujeto_Window::onCmdBusquedaSujeto>;
FXIMPLEMENT(Sujeto_Window, FXDialogBox, mapa, ARRAYNUMBER(mapa))

Sujeto_Window::Sujeto_Window(FXWindow* duenio) : VentanaReporte(duenio, "Busqueda Sujeto") {
  FXComposite* renglon = campoRenglon(matriz, "Nombre:");
  campoTexto(renglon, nullptr, 40, nombre);
  new FXButton(renglon, FXString::null, icono(getApp(), iconos::find_icon), this, ID_ELIGE,
               FRAME_RAISED | FRAME_THICK | LAYOUT_CENTER_Y);
  campoTexto(matriz, "Paterno:", 20, paterno);
  campoTexto(matriz, "Materno:", 20, materno);
  Arma("&Imprime", nombre.campo);
}

long Sujeto_Window::onCmdImprime(FXObject*, FXSelector, void*) {
  Genera();
  Reporte::Imprimir();
  return 1;
}

long Sujeto_Window::onCmdBusquedaSujeto(FXObject*, FXSelector, void*) {
  sbusquedasocio[0] = '\0';
  BusquedaSujeto_Window(this).execute(PLACEMENT_CURSOR);
  cSujeto sujeto;
  sujeto.setSujetoID(atol(sbusquedasocio));
  sujeto.Find();
  paterno.Pon(sujeto.getPaterno());
  materno.Pon(sujeto.getMaterno());
  nombre.Pon(sujeto.getNombre());
  return 0;
}

void Sujeto_Window::Genera() {
  Archivo salida(archivo);
  EjecutaTrazando(Sentencia(Consolidado() ? "SELECT * FROM spssujetoc('%s','%s','%s','%s');"
                                          : "SELECT * FROM spssujeto('%s','%s','%s','%s');",
                            nombre.valor.text(), paterno.valor.text(), materno.valor.text(),
                            clave.valor.text()));
  if (PQntuples(res) > 0) {
    salida.Escribe(Celda(0, 0));
    LiberaResultado();
  }
}
