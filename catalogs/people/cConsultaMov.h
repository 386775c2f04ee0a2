// A row of a movement query, read only: two texts, four amounts, four dates. Nothing else uses it.
#pragma once

#include "framework/Registro.h"

class cConsultaMov : public Engine {
 public:
  cConsultaMov() { Columnas(Vaciador()); }
  void Copy(const cConsultaMov& otra) { *this = otra; }
  void Fill(int fila) { Columnas(LectorDeFila(fila)); }

  const char* getTexto1() const { return Texto1; }
  const char* getTexto2() const { return Texto2; }
  /// Amount `i`, from 0 to 3.
  double getImporte(int i) const { return Importe[i]; }
  /// Date `i`, from 0 to 3.
  const date& getFecha(int i) const { return Fecha[i]; }

 private:
  template <class V>
  void Columnas(V columna) {
    columna(Texto1);
    columna(Texto2);
    for (double& importe : Importe) columna(importe);
    for (date& fecha : Fecha) columna(fecha);
  }

  char Texto1[16];
  char Texto2[83];
  double Importe[4];
  date Fecha[4];
};
