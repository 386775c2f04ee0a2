// A purpose: what a loan is asked for.
#pragma once

#include "framework/Registro.h"

class cFinalidades : public Registro<cFinalidades> {
 public:
  cFinalidades() { Clear(); }
  cFinalidades(const char* clave, const char* descri, bool dataChanged, bool isNew);

  /// Key of 3 characters, stored with blanks behind it.
  void setClaveFinalidad(const char* valor) { PonRellenado(ClaveFinalidad, 3, valor); }
  void setDescripcionFinalidad(const char* valor) { Pon(DescripcionFinalidad, valor); }

  const char* getClaveFinalidad() const { return ClaveFinalidad; }
  const char* getDescripcionFinalidad() const { return DescripcionFinalidad; }

  bool Check();
  const char* clase() const { return "Finalidad"; }

 private:
  friend Registro<cFinalidades>;

  auto Columnas() { return std::tie(ClaveFinalidad, DescripcionFinalidad); }
  const char* Clave() const { return ClaveFinalidad; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char ClaveFinalidad[4];
  char DescripcionFinalidad[31];
};
