// The record of the benchmarks: integer key, texts and a number in about a hundred bytes, as the rows that
// the cache keeps in a sorted list.
#pragma once

#include "framework/Registro.h"

class cRenglon : public Registro<cRenglon> {
 public:
  cRenglon() { Clear(); }
  explicit cRenglon(int clave) : cRenglon() { Clave = clave; }

  bool operator>(const cRenglon& otro) const { return Clave > otro.Clave; }
  bool operator<=(const cRenglon& otro) const { return Clave <= otro.Clave; }

 private:
  friend Registro<cRenglon>;

  template <class V>
  void Columnas(V columna) {
    columna(Clave);
    columna(Nombre);
    columna(Ciudad);
    columna(CP);
    columna(Valor);
  }

  int Clave;
  char Nombre[51];
  char Ciudad[31];
  char CP[7];
  float Valor;
};
