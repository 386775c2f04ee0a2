// A type of movement of the savings accounts: what it takes, its rate and commission, and the accounts that
// it posts to.
#pragma once

#include "framework/Registro.h"

class cTipoMovimiento : public Registro<cTipoMovimiento, EngineVirtual> {
 public:
  cTipoMovimiento() { Clear(); }
  template <class... Valores>
  explicit cTipoMovimiento(const char* id, Valores... valores) {
    TomaMiembros(id, valores...);
  }

  /// Key of 2 characters, stored with blanks behind it.
  void setTipoMovimientoID(const char* valor) { PonRellenado(TipoMovimientoID, 2, valor); }
  void setDescTipoMovimiento(const char* valor) { Pon(DescTipoMovimiento, valor); }
  /// "S" or "N", as AceptaDeposito and AceptaRetiro.
  void setAplicaSaldo(const char* valor) { Pon(AplicaSaldo, valor); }
  void setCuentaDeposito(const char* valor) { Pon(CuentaDeposito, valor); }
  void setCuentaRetiro(const char* valor) { Pon(CuentaRetiro, valor); }
  void setCuentaIntPagado(const char* valor) { Pon(CuentaIntPagado, valor); }
  void setCuentaIntCobrado(const char* valor) { Pon(CuentaIntCobrado, valor); }
  void setCuentaIvaMovimiento(const char* valor) { Pon(CuentaIvaMovimiento, valor); }
  void setCuentaISR(const char* valor) { Pon(CuentaISR, valor); }
  /// The letter of the accounting voucher.
  void setTipoPoliza(const char* valor) { Pon(TipoPoliza, valor); }
  void setAceptaDeposito(const char* valor) { Pon(AceptaDeposito, valor); }
  void setAceptaRetiro(const char* valor) { Pon(AceptaRetiro, valor); }
  void setTasaInteres(double valor) { Pon(TasaInteres, valor); }
  void setCuentaOrdenAcredor(const char* valor) { Pon(CuentaOrdenAcredor, valor); }
  void setCuentaOrdenDeudor(const char* valor) { Pon(CuentaOrdenDeudor, valor); }
  /// "S" or "N", and no account: are memorandum accounts kept?
  void setCuentaOrden(const char* valor) { Pon(CuentaOrden, valor); }
  void setCuentaProvisionISR(const char* valor) { Pon(CuentaProvisionISR, valor); }
  /// In pesos; the two after it are percentages.
  void setComision(float valor) { Pon(Comision, valor); }
  void setPorComision(float valor) { Pon(PorComision, valor); }
  void setPorIvaComision(float valor) { Pon(PorIvaComision, valor); }
  void setCuentaComision(const char* valor) { Pon(CuentaComision, valor); }
  void setCuentaIvaComision(const char* valor) { Pon(CuentaIvaComision, valor); }
  /// 1 or 0.
  void setDesglosaIva(int valor) { Pon(DesglosaIva, valor); }

  const char* getTipoMovimientoID() const { return TipoMovimientoID; }
  const char* getDescTipoMovimiento() const { return DescTipoMovimiento; }
  const char* getAplicaSaldo() const { return AplicaSaldo; }
  const char* getCuentaDeposito() const { return CuentaDeposito; }
  const char* getCuentaRetiro() const { return CuentaRetiro; }
  const char* getCuentaIntPagado() const { return CuentaIntPagado; }
  const char* getCuentaIntCobrado() const { return CuentaIntCobrado; }
  const char* getCuentaIvaMovimiento() const { return CuentaIvaMovimiento; }
  const char* getCuentaISR() const { return CuentaISR; }
  const char* getTipoPoliza() const { return TipoPoliza; }
  const char* getAceptaDeposito() const { return AceptaDeposito; }
  const char* getAceptaRetiro() const { return AceptaRetiro; }
  double getTasaInteres() const { return TasaInteres; }
  const char* getCuentaOrdenAcredor() const { return CuentaOrdenAcredor; }
  const char* getCuentaOrdenDeudor() const { return CuentaOrdenDeudor; }
  const char* getCuentaOrden() const { return CuentaOrden; }
  const char* getCuentaProvisionISR() const { return CuentaProvisionISR; }
  float getComision() const { return Comision; }
  float getPorComision() const { return PorComision; }
  float getPorIvaComision() const { return PorIvaComision; }
  const char* getCuentaComision() const { return CuentaComision; }
  const char* getCuentaIvaComision() const { return CuentaIvaComision; }
  int getDesglosaIva() const { return DesglosaIva; }

  bool Check();
  const char* clase() const { return "Tipo de Movimiento"; }

 private:
  friend Registro<cTipoMovimiento, EngineVirtual>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate;

  auto Columnas() {
    return std::tie(TipoMovimientoID, CuentaDeposito, CuentaRetiro, CuentaIntPagado, CuentaIntCobrado,
                    CuentaIvaMovimiento, CuentaISR, DescTipoMovimiento, AplicaSaldo, TipoPoliza,
                    AceptaDeposito, AceptaRetiro, TasaInteres, CuentaOrdenAcredor, CuentaOrdenDeudor,
                    CuentaOrden, CuentaProvisionISR, Comision, PorComision, PorIvaComision, CuentaComision,
                    CuentaIvaComision, DesglosaIva);
  }
  /// The order of the stored functions' arguments too.
  auto Miembros() {
    return std::tie(TipoMovimientoID, DescTipoMovimiento, AplicaSaldo, CuentaDeposito, CuentaRetiro,
                    CuentaIntPagado, CuentaIntCobrado, CuentaIvaMovimiento, CuentaISR, TipoPoliza,
                    AceptaDeposito, AceptaRetiro, TasaInteres, CuentaOrdenAcredor, CuentaOrdenDeudor,
                    CuentaOrden, CuentaProvisionISR, Comision, PorComision, PorIvaComision, CuentaComision,
                    CuentaIvaComision, DesglosaIva);
  }
  const char* Clave() const { return TipoMovimientoID; }

  Sentencia SqlAddNew() { return SqlEscritura("spitipomovimiento"); }
  Sentencia SqlUpdate() { return SqlEscritura("sputipomovimiento"); }
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  Sentencia SqlEscritura(const char* funcion);

  char TipoMovimientoID[3];
  char DescTipoMovimiento[31];
  char AplicaSaldo[2];
  char CuentaDeposito[25];
  char CuentaRetiro[25];
  char CuentaIntPagado[25];
  char CuentaIntCobrado[25];
  char CuentaIvaMovimiento[25];
  char CuentaISR[25];
  char TipoPoliza[2];
  char AceptaDeposito[2];
  char AceptaRetiro[2];
  double TasaInteres;
  char CuentaOrdenAcredor[25];
  char CuentaOrdenDeudor[25];
  char CuentaOrden[2];
  char CuentaProvisionISR[25];
  float Comision;
  float PorComision;
  float PorIvaComision;
  char CuentaComision[25];
  char CuentaIvaComision[25];
  int DesglosaIva;
};
