// The form of the concepts by which applications are scored.
#pragma once

#include "catalogs/simple/cConceptoScoring.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cConceptoScoring conceptoscoring;

class ConceptoScoring_Window : public Forma<ConceptoScoring_Window, FXDialogBox> {
  FXDECLARE(ConceptoScoring_Window)
 public:
  explicit ConceptoScoring_Window(FXWindow* duenio);

  long onCmdConceptoScoring(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }

 protected:
  ConceptoScoring_Window() {}

 private:
  friend Forma;
  cConceptoScoring& Actual() { return conceptoscoring; }
  auto& Filas() { return Catalogo::ConceptosScoring; }
  void Relee() { catalogo.LoadConceptosScoring(); }
  auto Datos() {
    return std::tuple(
        Liga(id, &cConceptoScoring::getConceptoScoringID, &cConceptoScoring::setConceptoScoringID),
        Liga(nombre, &cConceptoScoring::getConceptoScoring, &cConceptoScoring::setConceptoScoring));
  }

  DatoEntero id;
  DatoTexto nombre;
};
