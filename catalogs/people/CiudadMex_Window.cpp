#include "catalogs/people/CiudadMex_Window.h"

#include "catalogs/people/EstadoMex_Window.h"

MAPA_FORMA(CiudadMex_Window, onCmdCiudadMex, MANDO(CiudadMex_Window, ID_ESTADOS, onCmdEstados),
           MANDO(CiudadMex_Window, ID_ESTADO, onCmdEstado))

cCiudadMex ciudadmex;
char sCiudadMex[51];

CiudadMex_Window::CiudadMex_Window(FXWindow* duenio) : Forma(duenio, "Ciudad") {
  ArmaLista("Ciudad");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Identificador:", 2, id);
  matriz = ArmaGrupo("Datos de la Ciudad");
  campoTexto(matriz, "Clave:", 3, clave);
  campoTexto(matriz, "Nombre:", 20, nombre);
  ArmaEstado(matriz);
  ArmaBotones();
  Comienza();
}

void CiudadMex_Window::ArmaEstado(FXMatrix* matriz) {
  FXComposite* renglon = campoRenglon(matriz, "Estado:");
  renglon->setLayoutHints(LAYOUT_CENTER_Y | LAYOUT_FILL_X | LAYOUT_FILL_COLUMN);
  estado.combo = campoCombo(renglon, nullptr, 10, this, ID_ESTADOS);
  estado.Llena(&cEstadoMex::getNombreEstadoMex);
  new FXButton(renglon, "...", nullptr, this, ID_ESTADO, FRAME_RAISED | FRAME_THICK | LAYOUT_CENTER_Y);
}

long CiudadMex_Window::onCmdEstado(FXObject*, FXSelector, void*) {
  EstadoMex_Window(this).execute(PLACEMENT_SCREEN);
  catalogo.LoadEstadosMex();
  estado.Renueva(&cEstadoMex::getNombreEstadoMex);
  return 1;
}
