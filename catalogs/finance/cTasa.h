// A dated rate of a loan, investment or movement type: a period with its normal and its late-payment rate.
// What becomes of an earlier period that is still open is the server's business.
#pragma once

#include "framework/Registro.h"

class cTasa : public Registro<cTasa, EngineVirtual> {
 public:
  cTasa() { Clear(); }
  cTasa(long id, const char* prestamo, const char* inversion, const char* movimiento, const date& inicial,
        const date& final, double normal, double moratorio, bool dataChanged, bool isNew);

  void setTasaID(long valor) { Pon(TasaID, valor); }
  void setTipoPrestamoID(const char* valor) { Pon(TipoPrestamoID, valor); }
  void setTipoInversionID(const char* valor) { Pon(TipoInversionID, valor); }
  void setTipoMovimientoID(const char* valor) { Pon(TipoMovimientoID, valor); }
  void setFechaInicial(const date& valor) { Pon(FechaInicial, valor); }
  void setFechaFinal(const date& valor) { Pon(FechaFinal, valor); }
  void setTasaNormal(double valor) { Pon(TasaNormal, valor); }
  void setTasaMoratorio(double valor) { Pon(TasaMoratorio, valor); }

  long getTasaID() const { return TasaID; }
  const char* getTipoPrestamoID() const { return TipoPrestamoID; }
  const char* getTipoInversionID() const { return TipoInversionID; }
  const char* getTipoMovimientoID() const { return TipoMovimientoID; }
  const date& getFechaInicial() const { return FechaInicial; }
  const date& getFechaFinal() const { return FechaFinal; }
  double getTasaNormal() const { return TasaNormal; }
  double getTasaMoratorio() const { return TasaMoratorio; }

  /// All three types are asked for at once.
  bool Check();
  const char* clase() const { return "Tasa"; }

 private:
  friend Registro<cTasa, EngineVirtual>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaFind;

  auto Columnas() {
    return std::tie(TasaID, TipoPrestamoID, TipoInversionID, TipoMovimientoID, FechaInicial, FechaFinal,
                    TasaNormal, TasaMoratorio);
  }
  long Clave() const { return TasaID; }
  /// A key of 0 is sent like any other.
  static bool HayClaveFind() { return true; }
  static bool HayClaveDelete() { return true; }
  void AlInsertar() { TomaClave(TasaID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  long TasaID;
  char TipoPrestamoID[4];
  char TipoInversionID[4];
  char TipoMovimientoID[4];
  date FechaInicial;
  date FechaFinal;
  double TasaNormal;
  double TasaMoratorio;
};
