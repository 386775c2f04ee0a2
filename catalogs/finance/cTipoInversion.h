// A type of investment: a deposit for a term, its rate and limits, and the accounts that it posts to.
#pragma once

#include "framework/Registro.h"

class cTipoInversion : public Registro<cTipoInversion> {
 public:
  cTipoInversion() { Clear(); }
  template <class... Valores>
  explicit cTipoInversion(const char* id, Valores... valores) {
    TomaMiembros(id, valores...);
  }

  /// Key of 3 characters, stored with blanks behind it.
  void setTipoInversionID(const char* valor) { PonRellenado(TipoInversionID, 3, valor); }
  void setCuentaRiesgoCred(const char* valor) { Pon(CuentaRiesgoCred, valor); }
  void setCuentaIntInverNoCob(const char* valor) { Pon(CuentaIntInverNoCob, valor); }
  /// The formula of the interest.
  void setCalculoID(int valor) { Pon(CalculoID, valor); }
  void setCuentaPasivo(const char* valor) { Pon(CuentaPasivo, valor); }
  void setCuentaPasivoVencida(const char* valor) { Pon(CuentaPasivoVencida, valor); }
  void setCuentaIntInver(const char* valor) { Pon(CuentaIntInver, valor); }
  void setCuentaIvaInver(const char* valor) { Pon(CuentaIvaInver, valor); }
  void setDescTipoInversion(const char* valor) { Pon(DescTipoInversion, valor); }
  void setTasa_Normal(float valor) { Pon(Tasa_Normal, valor); }
  void setMontoMax(float valor) { Pon(MontoMax, valor); }
  void setMontoMin(float valor) { Pon(MontoMin, valor); }
  /// In days, as Plazo, which is the shortest term.
  void setPlazoMax(int valor) { Pon(PlazoMax, valor); }
  void setPlazo(int valor) { Pon(Plazo, valor); }
  /// "S" or "N"; the two after it are 1 or 0.
  void setAplicaIvaInversion(const char* valor) { Pon(AplicaIvaInversion, valor); }
  void setAplicaISR(int valor) { Pon(AplicaISR, valor); }
  void setReinvierteInteres(int valor) { Pon(ReinvierteInteres, valor); }
  /// The movement type, of 2 characters.
  void setTipoMovimientoID(const char* valor) { Pon(TipoMovimientoID, valor); }
  void setCuentaProvisionISR(const char* valor) { Pon(CuentaProvisionISR, valor); }
  /// 0 an ordinary investment, 1 a certificate of contribution.
  void setClasificacionID(int valor) { Pon(ClasificacionID, valor); }

  const char* getTipoInversionID() const { return TipoInversionID; }
  const char* getCuentaRiesgoCred() const { return CuentaRiesgoCred; }
  const char* getCuentaIntInverNoCob() const { return CuentaIntInverNoCob; }
  int getCalculoID() const { return CalculoID; }
  const char* getCuentaPasivo() const { return CuentaPasivo; }
  const char* getCuentaPasivoVencida() const { return CuentaPasivoVencida; }
  const char* getCuentaIntInver() const { return CuentaIntInver; }
  const char* getCuentaIvaInver() const { return CuentaIvaInver; }
  const char* getDescTipoInversion() const { return DescTipoInversion; }
  float getTasa_Normal() const { return Tasa_Normal; }
  float getMontoMax() const { return MontoMax; }
  float getMontoMin() const { return MontoMin; }
  int getPlazoMax() const { return PlazoMax; }
  int getPlazo() const { return Plazo; }
  const char* getAplicaIvaInversion() const { return AplicaIvaInversion; }
  int getAplicaISR() const { return AplicaISR; }
  int getReinvierteInteres() const { return ReinvierteInteres; }
  const char* getTipoMovimientoID() const { return TipoMovimientoID; }
  const char* getCuentaProvisionISR() const { return CuentaProvisionISR; }
  int getClasificacionID() const { return ClasificacionID; }

  /// Traces the amounts ahead of their rules.
  bool Check();
  const char* clase() const { return "Tipo de Inversión"; }

 private:
  friend Registro<cTipoInversion>;
  static constexpr unsigned trazas = TrazaUpdate | TrazaFind;

  /// The order of the stored functions' arguments too.
  auto Columnas() {
    return std::tie(TipoInversionID, CuentaRiesgoCred, CuentaIntInverNoCob, CalculoID, CuentaPasivo,
                    CuentaPasivoVencida, CuentaIntInver, CuentaIvaInver, DescTipoInversion, Tasa_Normal,
                    Plazo, AplicaIvaInversion, AplicaISR, ReinvierteInteres, TipoMovimientoID,
                    CuentaProvisionISR, ClasificacionID, MontoMax, MontoMin, PlazoMax);
  }
  auto Miembros() {
    return std::tie(TipoInversionID, CuentaRiesgoCred, CuentaIntInverNoCob, CalculoID, CuentaPasivo,
                    CuentaPasivoVencida, CuentaIntInver, CuentaIvaInver, DescTipoInversion, Tasa_Normal,
                    MontoMax, MontoMin, PlazoMax, Plazo, AplicaIvaInversion, AplicaISR, ReinvierteInteres,
                    TipoMovimientoID, CuentaProvisionISR, ClasificacionID);
  }
  const char* Clave() const { return TipoInversionID; }

  Sentencia SqlAddNew() { return SqlEscritura("spitipoinversion"); }
  Sentencia SqlUpdate() { return SqlEscritura("sputipoinversion"); }
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  Sentencia SqlEscritura(const char* funcion);

  char TipoInversionID[4];
  char CuentaRiesgoCred[25];
  char CuentaIntInverNoCob[25];
  int CalculoID;
  char CuentaPasivo[25];
  char CuentaPasivoVencida[25];
  char CuentaIntInver[25];
  char CuentaIvaInver[25];
  char DescTipoInversion[32];
  float Tasa_Normal;
  float MontoMax;
  float MontoMin;
  int PlazoMax;
  int Plazo;
  char AplicaIvaInversion[2];
  int AplicaISR;
  int ReinvierteInteres;
  char TipoMovimientoID[3];
  char CuentaProvisionISR[25];
  int ClasificacionID;
};
