// A concept by which an application for a loan is scored.
#pragma once

#include "framework/Registro.h"

class cConceptoScoring : public Registro<cConceptoScoring> {
 public:
  cConceptoScoring() { Clear(); }
  cConceptoScoring(int id, const char* concepto, bool dataChanged, bool isNew);

  void setConceptoScoringID(int valor) { Pon(ConceptoScoringID, valor); }
  void setConceptoScoring(const char* valor) { Pon(ConceptoScoring, valor); }

  int getConceptoScoringID() const { return ConceptoScoringID; }
  const char* getConceptoScoring() const { return ConceptoScoring; }

  bool Check();
  const char* clase() const { return "Concepto Scoring"; }

 private:
  friend Registro<cConceptoScoring>;

  auto Columnas() { return std::tie(ConceptoScoringID, ConceptoScoring); }
  int Clave() const { return ConceptoScoringID; }
  void AlInsertar() { TomaClave(ConceptoScoringID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int ConceptoScoringID;
  char ConceptoScoring[21];
};
