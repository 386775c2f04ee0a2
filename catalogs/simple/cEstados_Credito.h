// A state of a loan: one of the steps that it goes through.
#pragma once

#include "framework/Registro.h"

class cEstados_Credito : public Registro<cEstados_Credito> {
 public:
  cEstados_Credito() { Clear(); }
  cEstados_Credito(const char* clave, const char* descri, bool dataChanged, bool isNew);

  /// Key of 3 characters, stored with blanks behind it.
  void setClaveEstadoCredito(const char* valor) { PonRellenado(ClaveEstadoCredito, 3, valor); }
  void setDescripcionEdoCredito(const char* valor) { Pon(DescripcionEdoCredito, valor); }

  const char* getClaveEstadoCredito() const { return ClaveEstadoCredito; }
  const char* getDescripcionEdoCredito() const { return DescripcionEdoCredito; }

  bool Check();
  const char* clase() const { return "Estado de Crédito"; }

 private:
  friend Registro<cEstados_Credito>;

  auto Columnas() { return std::tie(ClaveEstadoCredito, DescripcionEdoCredito); }
  const char* Clave() const { return ClaveEstadoCredito; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char ClaveEstadoCredito[4];
  char DescripcionEdoCredito[31];
};
