#include "reports/PreCierre_Window.h"

#include <cstdlib>
#include <iostream>

#include "app/sesion.h"
#include "framework/Sentencia.h"
#include "reports/Precorte.h"
#include "widgets/cajas.h"

namespace {

constexpr char titulo[] = "Pre-Corte";

FXString Ahora() { return FXSystem::time("%d/%m/%Y  %I:%M:%S %p", FXSystem::now()); }

}  // namespace

static constexpr auto& mapa = mapaDeReporte<PreCierre_Window, &PreCierre_Window::onCmdCalendario>;
FXIMPLEMENT(PreCierre_Window, FXDialogBox, mapa, ARRAYNUMBER(mapa))

PreCierre_Window::PreCierre_Window(FXWindow* duenio) : VentanaReporte(duenio, "Pre-Cierre") {
  campoFecha(matriz, "Fecha:", fecha, this, ID_ELIGE);
  Arma("&Pre-Cierre", fecha.campo);
}

long PreCierre_Window::onCmdImprime(FXObject*, FXSelector, void*) {
  if (!cajaPregunta(this, titulo, "Esta Usted seguro de Correr el PROCESO ?")) return 1;
  const FXString inicio = Ahora();
  getApp()->beginWaitCursor();
  EjecutaTrazando(Sentencia("select * from precierre('%s');", fecha.valor.text()));
  getApp()->endWaitCursor();
  const FXString termino = Ahora();
  if (atoi(Celda(0, 0)) == 1) {
    cajaInformacion(this, titulo,
                    Sentencia("Transacción Exitosa\n\n%s  %s\n%s  %s", "Inicio.......", inicio.text(),
                              "Termino...", termino.text()));
  }
  return 1;
}

void PreCierre_Window::Genera() {
  Archivo salida(archivo);
  const date dia = FechaDeTexto(fecha.valor);
  EjecutaTrazando(SqlPrecorte(Consolidado(), fecha.valor.text(), dia.year(), dia.month()));
  EscribePrecorte(salida);
  std::cout << "Termina generacion correctamente" << std::endl;
}
