// The consumer price index of a month.
#pragma once

#include "catalogs/finance/Series.h"

class cInpc : public SerieMensual<cInpc> {
 public:
  cInpc() { Clear(); }
  cInpc(int ano, int mes, double inpc, bool dataChanged, bool isNew);

  void setInpc(double valor) { Pon(Cifra, valor); }
  double getInpc() const { return Cifra; }

  bool Check();
  const char* clase() const { return "Inpc"; }

 private:
  friend Registro<cInpc>;
  friend SerieMensual;
  static constexpr unsigned trazas = TrazaUpdate | TrazaDelete | TrazaFind;
  static constexpr const char* serie = "inpc";
};
