// A promotion on a movement type: from when to when, on what condition, and whether it still holds.
#pragma once

#include "framework/Registro.h"

class cTipoPromocion : public Registro<cTipoPromocion, EngineVirtual> {
 public:
  cTipoPromocion() { Clear(); }
  cTipoPromocion(int id, const char* tipoMovimientoID, const date& fechaInicial, const date& fechaFinal,
                 const char* condicion, int estatus, const char* descripcion, bool dataChanged, bool isNew);

  void setTipoPromocionID(int valor) { Pon(TipoPromocionID, valor); }
  void setTipoMovimientoID(const char* valor) { Pon(TipoMovimientoID, valor); }
  void setFechaInicial(const date& valor) { Pon(FechaInicial, valor); }
  /// May be missing.
  void setFechaFinal(const date& valor) { Pon(FechaFinal, valor); }
  void setCondicion(const char* valor) { Pon(Condicion, valor); }
  /// 0 in force, 1 ended, 2 cancelled.
  void setEstatus(int valor) { Pon(Estatus, valor); }
  void setDescripcion(const char* valor) { Pon(Descripcion, valor); }

  int getTipoPromocionID() const { return TipoPromocionID; }
  const char* getTipoMovimientoID() const { return TipoMovimientoID; }
  const date& getFechaInicial() const { return FechaInicial; }
  const date& getFechaFinal() const { return FechaFinal; }
  const char* getCondicion() const { return Condicion; }
  int getEstatus() const { return Estatus; }
  const char* getDescripcion() const { return Descripcion; }

  /// As in every record; the dates are those of an empty text.
  void Clear();
  bool Check();
  const char* clase() const { return "TipoPromocion"; }

 private:
  friend Registro<cTipoPromocion, EngineVirtual>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaFind;

  auto Columnas() {
    return std::tie(TipoPromocionID, TipoMovimientoID, FechaInicial, FechaFinal, Condicion, Estatus,
                    Descripcion);
  }
  int Clave() const { return TipoPromocionID; }
  void AlInsertar() { TomaClave(TipoPromocionID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int TipoPromocionID;
  char TipoMovimientoID[4];
  date FechaInicial;
  date FechaFinal;
  char Condicion[84];
  int Estatus;
  char Descripcion[31];
};
