// A class of the loan portfolio.
#pragma once

#include "framework/Registro.h"

class cClasificacionCredito : public Registro<cClasificacionCredito> {
 public:
  cClasificacionCredito() { Clear(); }
  cClasificacionCredito(int id, const char* descri, bool dataChanged, bool isNew);

  void setClasificacionCreditoID(int valor) { Pon(ClasificacionCreditoID, valor); }
  /// Stored with blanks behind it up to 3 characters.
  void setDescripcion(const char* valor) { PonRellenado(Descripcion, 3, valor); }

  int getClasificacionCreditoID() const { return ClasificacionCreditoID; }
  const char* getDescripcion() const { return Descripcion; }

  bool Check();
  const char* clase() const { return "ClasificacionCredito"; }

 private:
  friend Registro<cClasificacionCredito>;

  auto Columnas() { return std::tie(ClasificacionCreditoID, Descripcion); }
  int Clave() const { return ClasificacionCreditoID; }
  void AlInsertar() { TomaClave(ClasificacionCreditoID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int ClasificacionCreditoID;
  char Descripcion[30];
};
