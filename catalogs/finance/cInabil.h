// A day on which the institution does not open. The one record that reads and writes its table itself.
#pragma once

#include "catalogs/finance/Series.h"

class cInabil : public SerieDiaria<cInabil> {
 public:
  cInabil() { Clear(); }
  cInabil(const date& fecha, bool dataChanged, bool isNew);

  bool Check();
  const char* clase() const { return "Inabil"; }

 private:
  friend Registro<cInabil>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate | TrazaDelete | TrazaFind;

  auto Columnas() { return std::tie(Fecha); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
};
