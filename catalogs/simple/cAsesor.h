// An adviser: who attends to the borrowers.
#pragma once

#include "framework/Registro.h"

class cAsesor : public Registro<cAsesor> {
 public:
  cAsesor() { Clear(); }
  cAsesor(int id, const char* nombre, bool dataChanged, bool isNew);

  void setAsesorID(int valor) { Pon(AsesorID, valor); }
  void setNomAsesor(const char* valor) { Pon(NomAsesor, valor); }

  int getAsesorID() const { return AsesorID; }
  const char* getNomAsesor() const { return NomAsesor; }

  bool Check();
  const char* clase() const { return "Asesor"; }

 private:
  friend Registro<cAsesor>;

  auto Columnas() { return std::tie(AsesorID, NomAsesor); }
  int Clave() const { return AsesorID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int AsesorID;
  char NomAsesor[51];
};
