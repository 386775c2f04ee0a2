// The percentage of the surcharge in a month.
#pragma once

#include "catalogs/finance/Series.h"

class cRecargos : public SerieMensual<cRecargos> {
 public:
  cRecargos() { Clear(); }
  cRecargos(int ano, int mes, double porcentaje, bool dataChanged, bool isNew);

  void setPorcentaje(double valor) { Pon(Cifra, valor); }
  double getPorcentaje() const { return Cifra; }

  bool Check();
  const char* clase() const { return "Recargos"; }

 private:
  friend Registro<cRecargos>;
  friend SerieMensual;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate | TrazaDelete | TrazaFind;
  static constexpr const char* serie = "recargos";
};
