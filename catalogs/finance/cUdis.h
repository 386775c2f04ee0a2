// The value of the inflation-indexed unit on a day.
#pragma once

#include "catalogs/finance/Series.h"

class cUdis : public SerieDiaria<cUdis> {
 public:
  cUdis() { Clear(); }
  cUdis(const date& fecha, double valor, bool dataChanged, bool isNew);

  /// In pesos.
  void setValor(double valor) { Pon(Valor, valor); }
  double getValor() const { return Valor; }

  bool Check();
  const char* clase() const { return "Udis"; }

 private:
  friend Registro<cUdis>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate | TrazaDelete | TrazaFind;

  auto Columnas() { return std::tie(Fecha, Valor); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  double Valor;
};
