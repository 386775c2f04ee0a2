// A row of a movement query, read only: two texts, four amounts, four dates. Nothing else uses it.
#pragma once

#include "framework/Registro.h"

class cConsultaMov : public Engine {
  auto Columnas() {
    return std::tie(Texto1, Texto2, Importe[0], Importe[1], Importe[2], Importe[3], Fecha[0], Fecha[1],
                    Fecha[2], Fecha[3]);
  }

 public:
  cConsultaMov() { VaciaColumnas(Columnas()); }
  void Copy(const cConsultaMov& otra) { *this = otra; }
  void Fill(int fila) { LlenaColumnas(Columnas(), fila); }

  const char* getTexto1() const { return Texto1; }
  const char* getTexto2() const { return Texto2; }
  /// Amount `i`, from 0 to 3.
  double getImporte(int i) const { return Importe[i]; }
  /// Date `i`, from 0 to 3.
  const date& getFecha(int i) const { return Fecha[i]; }

 private:
  char Texto1[16];
  char Texto2[83];
  double Importe[4];
  date Fecha[4];
};
