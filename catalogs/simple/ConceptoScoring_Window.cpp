#include "catalogs/simple/ConceptoScoring_Window.h"

MAPA_FORMA(ConceptoScoring_Window, onCmdConceptoScoring)

cConceptoScoring conceptoscoring;

ConceptoScoring_Window::ConceptoScoring_Window(FXWindow* duenio) : Forma(duenio, "Concepto Scoring") {
  ArmaLista("Concepto Scoring");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Identificador:", 2, id);
  matriz = ArmaGrupo("Concepto");
  campoTexto(matriz, "Nombre:", 20, nombre);
  ArmaBotones();
  Comienza();
}
