// A kind of guarantee: what backs a loan.
#pragma once

#include "framework/Registro.h"

class cTipo_Garantia : public Registro<cTipo_Garantia> {
 public:
  cTipo_Garantia() { Clear(); }
  cTipo_Garantia(const char* clave, const char* descri, bool dataChanged, bool isNew);

  /// Key of 3 characters, stored with blanks behind it.
  void setClaveGarantia(const char* valor) { PonRellenado(ClaveGarantia, 3, valor); }
  void setDescripcionGarantia(const char* valor) { Pon(DescripcionGarantia, valor); }

  const char* getClaveGarantia() const { return ClaveGarantia; }
  const char* getDescripcionGarantia() const { return DescripcionGarantia; }

  bool Check();
  const char* clase() const { return "Tipo de Garantía"; }

 private:
  friend Registro<cTipo_Garantia>;

  auto Columnas() { return std::tie(ClaveGarantia, DescripcionGarantia); }
  const char* Clave() const { return ClaveGarantia; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char ClaveGarantia[4];
  char DescripcionGarantia[31];
};
