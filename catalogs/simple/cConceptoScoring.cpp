#include "catalogs/simple/cConceptoScoring.h"

cConceptoScoring::cConceptoScoring(int id, const char* concepto, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, concepto);
}

bool cConceptoScoring::Check() {
  ExigeTexto(ConceptoScoring, "No ha especificado el concepto");
  return true;
}

Sentencia cConceptoScoring::SqlAddNew() const {
  return Sentencia("select spiconceptoscoring('%s');", ConceptoScoring);
}

Sentencia cConceptoScoring::SqlUpdate() const {
  return Sentencia("select spuconceptoscoring('%i','%s');", ConceptoScoringID, ConceptoScoring);
}

Sentencia cConceptoScoring::SqlDelete() const {
  return Sentencia("SELECT spdconceptoscoring(%i);", ConceptoScoringID);
}

Sentencia cConceptoScoring::SqlFind() const {
  return Sentencia("SELECT * FROM spsconceptoscoring(%i);", ConceptoScoringID);
}
