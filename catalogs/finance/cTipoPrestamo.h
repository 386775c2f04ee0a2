// A type of loan: its rates, formulas and limits, and the 28 accounts that loans of the type post to.
//
// The stored functions take the first 32 columns only. The other 19 are written by a second statement of the
// same transaction, straight into the table; as long as the catching form rolls back, no row is ever half
// written.
#pragma once

#include "framework/Registro.h"

class cTipoPrestamo : public Registro<cTipoPrestamo, EngineVirtual> {
 public:
  cTipoPrestamo() { Clear(); }
  template <class... Valores>
  explicit cTipoPrestamo(const char* id, Valores... valores) {
    TomaMiembros(id, valores...);
  }

  /// Key of 3 characters, stored with blanks behind it.
  void setTipoPrestamoID(const char* valor) { PonRellenado(TipoPrestamoID, 3, valor); }
  void setDescTipoPrestamo(const char* valor) { Pon(DescTipoPrestamo, valor); }
  void setTantos(int valor) { Pon(Tantos, valor); }
  /// The rates are single precision and reach the server with the digits of that.
  void setTasa_Normal(float valor) { Pon(Tasa_Normal, valor); }
  void setTasa_Mora(float valor) { Pon(Tasa_Mora, valor); }
  /// The movement type of the guarantee, of 2 characters.
  void setClaveMoviGarantia(const char* valor) { Pon(ClaveMoviGarantia, valor); }
  void setCuentaActivo(const char* valor) { Pon(CuentaActivo, valor); }
  void setCuentaActivoVencida(const char* valor) { Pon(CuentaActivoVencida, valor); }
  void setCuentaIntNormal(const char* valor) { Pon(CuentaIntNormal, valor); }
  void setCuentaIntNormalVencida(const char* valor) { Pon(CuentaIntNormalVencida, valor); }
  void setCuentaIntNormalNocob(const char* valor) { Pon(CuentaIntNormalNocob, valor); }
  void setCuentaIntMora(const char* valor) { Pon(CuentaIntMora, valor); }
  void setCuentaIntMoraVencida(const char* valor) { Pon(CuentaIntMoraVencida, valor); }
  void setCuentaIva(const char* valor) { Pon(CuentaIva, valor); }
  void setCuentaRiesgoCred(const char* valor) { Pon(CuentaRiesgoCred, valor); }
  void setCuentaOrdenAval(const char* valor) { Pon(CuentaOrdenAval, valor); }
  void setCuentaOrdenInteres(const char* valor) { Pon(CuentaOrdenInteres, valor); }
  /// "S" or "N".
  void setAplicaIvaPrestamo(const char* valor) { Pon(AplicaIvaPrestamo, valor); }
  /// Days until a loan is overdue.
  void setDiasTraspasoAVencida(int valor) { Pon(DiasTraspasoAVencida, valor); }
  void setCuentaIntDevNoCobres(const char* valor) { Pon(CuentaIntDevNoCobres, valor); }
  void setCuentaRiesgoCredRes(const char* valor) { Pon(CuentaRiesgoCredRes, valor); }
  void setCuentaIntMoraNoCobAct(const char* valor) { Pon(CuentaIntMoraNoCobAct, valor); }
  void setCuentaIntMoraDevNoCobRes(const char* valor) { Pon(CuentaIntMoraDevNoCobRes, valor); }
  void setOrdenDeudorNormalBonificado(const char* valor) { Pon(OrdenDeudorNormalBonificado, valor); }
  void setOrdenAcredorNormalBonificado(const char* valor) { Pon(OrdenAcredorNormalBonificado, valor); }
  void setCuentaFondoRecuperacion(const char* valor) { Pon(CuentaFondoRecuperacion, valor); }
  void setCuentaGtosAdm(const char* valor) { Pon(CuentaGtosAdm, valor); }
  void setCuentaIntNormalResVencida(const char* valor) { Pon(CuentaIntNormalResVencida, valor); }
  void setOrdenInteresAcreedor(const char* valor) { Pon(OrdenInteresAcreedor, valor); }
  /// The formulas of both interests.
  void setCalculoNormalID(long valor) { Pon(CalculoNormalID, valor); }
  void setCalculoMoraID(long valor) { Pon(CalculoMoraID, valor); }
  /// The purpose, of 3 characters.
  void setClaveFinalidad(const char* valor) { Pon(ClaveFinalidad, valor); }
  void setCuentaIntNormalResVigente(const char* valor) { Pon(CuentaIntNormalResVigente, valor); }
  void setCuentaOrdenAvalAcredor(const char* valor) { Pon(CuentaOrdenAvalAcredor, valor); }
  void setCuentaGarantiaDeudor(const char* valor) { Pon(CuentaGarantiaDeudor, valor); }
  void setCuentaGarantiaAcredor(const char* valor) { Pon(CuentaGarantiaAcredor, valor); }
  void setCuentaProvisionIVA(const char* valor) { Pon(CuentaProvisionIVA, valor); }
  void setMontoMaximo(double valor) { Pon(MontoMaximo, valor); }
  /// In days.
  void setPlazoMaximo(int valor) { Pon(PlazoMaximo, valor); }
  void setMontoMinimo(double valor) { Pon(MontoMinimo, valor); }
  void setAvalesMinimos(int valor) { Pon(AvalesMinimos, valor); }
  void setPeriodoDiasDefault(int valor) { Pon(PeriodoDiasDefault, valor); }
  /// 1 or 0.
  void setEstatus(int valor) { Pon(Estatus, valor); }
  void setComision(double valor) { Pon(Comision, valor); }
  void setIvaComision(double valor) { Pon(IvaComision, valor); }
  void setCuentaComision(const char* valor) { Pon(CuentaComision, valor); }
  void setCuentaIvaComision(const char* valor) { Pon(CuentaIvaComision, valor); }
  void setNivelAutorizacion(int valor) { Pon(NivelAutorizacion, valor); }
  void setReciprocidad(double valor) { Pon(Reciprocidad, valor); }
  /// 1 for a loan to a group, else 0.
  void setPrestamoGrupal(int valor) { Pon(PrestamoGrupal, valor); }
  /// A code of the accountants, and no account.
  void setClasificacionContable(const char* valor) { Pon(ClasificacionContable, valor); }

  const char* getTipoPrestamoID() const { return TipoPrestamoID; }
  const char* getDescTipoPrestamo() const { return DescTipoPrestamo; }
  int getTantos() const { return Tantos; }
  float getTasa_Normal() const { return Tasa_Normal; }
  float getTasa_Mora() const { return Tasa_Mora; }
  const char* getClaveMoviGarantia() const { return ClaveMoviGarantia; }
  const char* getCuentaActivo() const { return CuentaActivo; }
  const char* getCuentaActivoVencida() const { return CuentaActivoVencida; }
  const char* getCuentaIntNormal() const { return CuentaIntNormal; }
  const char* getCuentaIntNormalVencida() const { return CuentaIntNormalVencida; }
  const char* getCuentaIntNormalNocob() const { return CuentaIntNormalNocob; }
  const char* getCuentaIntMora() const { return CuentaIntMora; }
  const char* getCuentaIntMoraVencida() const { return CuentaIntMoraVencida; }
  const char* getCuentaIva() const { return CuentaIva; }
  const char* getCuentaRiesgoCred() const { return CuentaRiesgoCred; }
  const char* getCuentaOrdenAval() const { return CuentaOrdenAval; }
  const char* getCuentaOrdenInteres() const { return CuentaOrdenInteres; }
  const char* getAplicaIvaPrestamo() const { return AplicaIvaPrestamo; }
  int getDiasTraspasoAVencida() const { return DiasTraspasoAVencida; }
  const char* getCuentaIntDevNoCobres() const { return CuentaIntDevNoCobres; }
  const char* getCuentaRiesgoCredRes() const { return CuentaRiesgoCredRes; }
  const char* getCuentaIntMoraNoCobAct() const { return CuentaIntMoraNoCobAct; }
  const char* getCuentaIntMoraDevNoCobRes() const { return CuentaIntMoraDevNoCobRes; }
  const char* getOrdenDeudorNormalBonificado() const { return OrdenDeudorNormalBonificado; }
  const char* getOrdenAcredorNormalBonificado() const { return OrdenAcredorNormalBonificado; }
  const char* getCuentaFondoRecuperacion() const { return CuentaFondoRecuperacion; }
  const char* getCuentaGtosAdm() const { return CuentaGtosAdm; }
  const char* getCuentaIntNormalResVencida() const { return CuentaIntNormalResVencida; }
  const char* getOrdenInteresAcreedor() const { return OrdenInteresAcreedor; }
  long getCalculoNormalID() const { return CalculoNormalID; }
  long getCalculoMoraID() const { return CalculoMoraID; }
  const char* getClaveFinalidad() const { return ClaveFinalidad; }
  const char* getCuentaIntNormalResVigente() const { return CuentaIntNormalResVigente; }
  const char* getCuentaOrdenAvalAcredor() const { return CuentaOrdenAvalAcredor; }
  const char* getCuentaGarantiaDeudor() const { return CuentaGarantiaDeudor; }
  const char* getCuentaGarantiaAcredor() const { return CuentaGarantiaAcredor; }
  const char* getCuentaProvisionIVA() const { return CuentaProvisionIVA; }
  double getMontoMaximo() const { return MontoMaximo; }
  int getPlazoMaximo() const { return PlazoMaximo; }
  double getMontoMinimo() const { return MontoMinimo; }
  int getAvalesMinimos() const { return AvalesMinimos; }
  int getPeriodoDiasDefault() const { return PeriodoDiasDefault; }
  int getEstatus() const { return Estatus; }
  double getComision() const { return Comision; }
  double getIvaComision() const { return IvaComision; }
  const char* getCuentaComision() const { return CuentaComision; }
  const char* getCuentaIvaComision() const { return CuentaIvaComision; }
  int getNivelAutorizacion() const { return NivelAutorizacion; }
  double getReciprocidad() const { return Reciprocidad; }
  int getPrestamoGrupal() const { return PrestamoGrupal; }
  const char* getClasificacionContable() const { return ClasificacionContable; }

  bool Check();
  const char* clase() const { return "Tipo de Prestamo"; }

 private:
  friend Registro<cTipoPrestamo, EngineVirtual>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaFind;

  /// The arguments of the stored functions.
  auto DeLaFuncion() {
    return std::tie(TipoPrestamoID, DescTipoPrestamo, Tantos, Tasa_Normal, Tasa_Mora, ClaveMoviGarantia,
                    CuentaActivo, CuentaActivoVencida, CuentaIntNormal, CuentaIntNormalVencida,
                    CuentaIntNormalNocob, CuentaIntMora, CuentaIntMoraVencida, CuentaIva, CuentaRiesgoCred,
                    CuentaOrdenAval, CuentaOrdenInteres, AplicaIvaPrestamo, DiasTraspasoAVencida,
                    CuentaIntDevNoCobres, CuentaRiesgoCredRes, CuentaIntMoraNoCobAct,
                    CuentaIntMoraDevNoCobRes, OrdenDeudorNormalBonificado, OrdenAcredorNormalBonificado,
                    CuentaFondoRecuperacion, CuentaGtosAdm, CuentaIntNormalResVencida, OrdenInteresAcreedor,
                    CalculoNormalID, CalculoMoraID, ClaveFinalidad);
  }
  /// What the second statement writes.
  auto Directos() {
    return std::tie(CuentaIntNormalResVigente, CuentaOrdenAvalAcredor, CuentaGarantiaDeudor,
                    CuentaGarantiaAcredor, CuentaProvisionIVA, MontoMaximo, PlazoMaximo, MontoMinimo,
                    AvalesMinimos, PeriodoDiasDefault, Estatus, Comision, IvaComision, CuentaComision,
                    CuentaIvaComision, NivelAutorizacion, Reciprocidad, PrestamoGrupal,
                    ClasificacionContable);
  }
  auto Miembros() { return std::tuple_cat(DeLaFuncion(), Directos()); }
  /// The accounts of interest and of guarantor stand the other way round than in the functions.
  auto Columnas() {
    return std::tuple_cat(
        std::tie(TipoPrestamoID, CuentaActivo, CuentaActivoVencida, CuentaIntNormal, CuentaIntNormalVencida,
                 CuentaIntNormalNocob, CuentaIntMora, CuentaIntMoraVencida, CuentaIva, CuentaRiesgoCred,
                 CuentaOrdenInteres, CuentaOrdenAval, ClaveMoviGarantia, DescTipoPrestamo, Tantos,
                 Tasa_Normal, Tasa_Mora, AplicaIvaPrestamo, DiasTraspasoAVencida, CuentaIntDevNoCobres,
                 CuentaRiesgoCredRes, CuentaIntMoraNoCobAct, CuentaIntMoraDevNoCobRes,
                 OrdenDeudorNormalBonificado, OrdenAcredorNormalBonificado, CuentaFondoRecuperacion,
                 CuentaGtosAdm, CuentaIntNormalResVencida, OrdenInteresAcreedor, CalculoNormalID,
                 CalculoMoraID, ClaveFinalidad),
        Directos());
  }
  const char* Clave() const { return TipoPrestamoID; }

  // The second statement. An insert traces its first one, an update this one.
  void AlInsertar() { EjecutaEscritura(SqlDirecta(), false); }
  void AlCambiar() { EjecutaEscritura(SqlDirecta(), true); }

  Sentencia SqlAddNew();
  Sentencia SqlUpdate();
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  Sentencia SqlDirecta();

  char TipoPrestamoID[4];
  char DescTipoPrestamo[32];
  int Tantos;
  float Tasa_Normal;
  float Tasa_Mora;
  char ClaveMoviGarantia[3];
  char CuentaActivo[25];
  char CuentaActivoVencida[25];
  char CuentaIntNormal[25];
  char CuentaIntNormalVencida[25];
  char CuentaIntNormalNocob[25];
  char CuentaIntMora[25];
  char CuentaIntMoraVencida[25];
  char CuentaIva[25];
  char CuentaRiesgoCred[25];
  char CuentaOrdenAval[25];
  char CuentaOrdenInteres[25];
  char AplicaIvaPrestamo[2];
  int DiasTraspasoAVencida;
  char CuentaIntDevNoCobres[25];
  char CuentaRiesgoCredRes[25];
  char CuentaIntMoraNoCobAct[25];
  char CuentaIntMoraDevNoCobRes[25];
  char OrdenDeudorNormalBonificado[25];
  char OrdenAcredorNormalBonificado[25];
  char CuentaFondoRecuperacion[25];
  char CuentaGtosAdm[25];
  char CuentaIntNormalResVencida[25];
  char OrdenInteresAcreedor[25];
  long CalculoNormalID;
  long CalculoMoraID;
  char ClaveFinalidad[4];
  char CuentaIntNormalResVigente[25];
  char CuentaOrdenAvalAcredor[25];
  char CuentaGarantiaDeudor[25];
  char CuentaGarantiaAcredor[25];
  char CuentaProvisionIVA[25];
  double MontoMaximo;
  int PlazoMaximo;
  double MontoMinimo;
  int AvalesMinimos;
  int PeriodoDiasDefault;
  int Estatus;
  double Comision;
  double IvaComision;
  char CuentaComision[25];
  char CuentaIvaComision[25];
  int NivelAutorizacion;
  double Reciprocidad;
  int PrestamoGrupal;
  char ClasificacionContable[25];
};
