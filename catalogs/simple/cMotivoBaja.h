// A reason for which a member leaves.
#pragma once

#include "framework/Registro.h"

class cMotivoBaja : public Registro<cMotivoBaja> {
 public:
  cMotivoBaja() { Clear(); }
  cMotivoBaja(int id, const char* descri, bool dataChanged, bool isNew);

  void setMotivoBajaID(int valor) { Pon(MotivoBajaID, valor); }
  /// Stored with blanks behind it up to 3 characters.
  void setDescripcionMotivo(const char* valor) { PonRellenado(DescripcionMotivo, 3, valor); }

  int getMotivoBajaID() const { return MotivoBajaID; }
  const char* getDescripcionMotivo() const { return DescripcionMotivo; }

  bool Check();
  const char* clase() const { return "MotivoBaja"; }

 private:
  friend Registro<cMotivoBaja>;

  auto Columnas() { return std::tie(MotivoBajaID, DescripcionMotivo); }
  int Clave() const { return MotivoBajaID; }
  void AlInsertar() { TomaClave(MotivoBajaID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int MotivoBajaID;
  char DescripcionMotivo[30];
};
