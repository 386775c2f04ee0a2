#include "catalogs/finance/TipoTasaInteres_Window.h"

FXDEFMAP(TipoTasaInteres_Window)
TipoTipoTasaInteres_Window[] = {
    MANDO(TipoTasaInteres_Window, ID_AGREGAR, onCmdAgregar),
    MANDO(TipoTasaInteres_Window, ID_FIND, onCmdFind),
    MAPA_FORMA_RESTO(TipoTasaInteres_Window, onCmdLista,
                     MANDO(TipoTasaInteres_Window, ID_FECHAINICIAL, onCmdCalendario),
                     MANDO(TipoTasaInteres_Window, ID_FECHAFINAL, onCmdCalendario)),
};

FXIMPLEMENT(TipoTasaInteres_Window, TipoTasaInteres_Window::Marco, TipoTipoTasaInteres_Window,
            ARRAYNUMBER(TipoTipoTasaInteres_Window))

cTasaInteres tasainteres;
int iTasainteresId;

TipoTasaInteres_Window::TipoTasaInteres_Window(FXWindow* duenio) : Forma(duenio, "Tasas Variables") {
  ArmaLista("Tasa Interes");
  FXMatrix* matriz = ArmaGrupo("Fechas");
  campoClave(matriz, "Tipo Tasa:", 5, tipo);
  campoFecha(matriz, "Fecha Inicio:", fechaInicial, this, ID_FECHAINICIAL);
  campoFecha(matriz, "Fecha Final:", fechaFinal, this, ID_FECHAFINAL);
  matriz = ArmaGrupo("Parametros");
  campoReal(matriz, "Valor 1:", 20, valor1);
  campoReal(matriz, "Valor 2:", 20, valor2);
  ArmaBotones();
  Comienza();
  std::cout << "terminando creacion frm tasavariable" << std::endl;
}

const char* TipoTasaInteres_Window::Renglon(const cTasaInteres& fila) {
  FormateaTexto(renglon, "%i %10s", fila.getTasainteresId(), fila.getTipotasa());
  return renglon;
}

long TipoTasaInteres_Window::onCmdLista(FXObject*, FXSelector, void*) {
  const FXint fila = lstFilas->getCurrentItem();
  if (fila < 0) return 0;
  iTasainteresId = atoi(lstFilas->getItemText(fila).text());
  std::cout << "tasaid:" << iTasainteresId << std::endl;
  tasainteres.setTasainteresId(iTasainteresId);
  tasainteres.Find();
  Read();
  return 0;
}

long TipoTasaInteres_Window::onCmdBorrar(FXObject*, FXSelector, void*) {
  try {
    if (cajaPreguntaBorrar(this, tasainteres.clase())) {
      tasainteres.Delete();
      Load();
      Clear();
      tasainteres.setIsNew(true);
    }
  } catch (char* texto) {
    Falla(texto);
  }
  return 1;
}
