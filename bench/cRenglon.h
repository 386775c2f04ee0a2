// The record of the benchmarks: integer key, texts and a number in about a hundred bytes, as the rows that
// the cache keeps in a sorted list.
#pragma once

#include "framework/Registro.h"

class cRenglon : public Registro<cRenglon> {
 public:
  cRenglon() { Clear(); }
  explicit cRenglon(int clave) : cRenglon() { RenglonID = clave; }

 private:
  friend Registro<cRenglon>;

  auto Columnas() { return std::tie(RenglonID, Nombre, Ciudad, CP, Valor); }
  int Clave() const { return RenglonID; }

  int RenglonID;
  char Nombre[51];
  char Ciudad[31];
  char CP[7];
  float Valor;
};
