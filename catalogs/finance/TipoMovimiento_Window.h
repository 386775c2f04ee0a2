// The form of the movement types.
#pragma once

#include "catalogs/finance/CampoCuenta.h"
#include "catalogs/finance/cTipoMovimiento.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cTipoMovimiento tipomovimiento;
extern char sTipoMovimiento[31];

// clang-format off
#define CUENTAS_MOVIMIENTO(CUENTA)                                                    \
  CUENTA("Cta. Deposito:", CuentaDeposito, onCmdCuentaDeposito)                       \
  CUENTA("Cta. Retiro:", CuentaRetiro, onCmdCuentaRetiro)                             \
  CUENTA("Cta. Int. Pagado:", CuentaIntPagado, onCmdCuentaIntPagado)                  \
  CUENTA("Cta. Int. Cobrado:", CuentaIntCobrado, onCmdCuentaIntCobrado)               \
  CUENTA("Cta. IDE:", CuentaIvaMovimiento, onCmdCuentaIvaMovimiento)                  \
  CUENTA("Cta. ISR:", CuentaISR, onCmdCuentaISR)                                      \
  CUENTA("Provision ISR:", CuentaProvisionISR, onCmdCuentaProvisionISR)               \
  CUENTA("Cta. Orden Acredor:", CuentaOrdenAcredor, onCmdCuentaOrdenAcredor)          \
  CUENTA("Cta. Orden Deudor:", CuentaOrdenDeudor, onCmdCuentaOrdenDeudor)             \
  CUENTA("Cta. Comision:", CuentaComision, onCmdCuentaComision)                       \
  CUENTA("Cta. IVA Comision:", CuentaIvaComision, onCmdCuentaIvaComision)
// clang-format on

class TipoMovimiento_Window : public Forma<TipoMovimiento_Window, FXMDIChild> {
  FXDECLARE(TipoMovimiento_Window)
 public:
  enum { CUENTAS_MOVIMIENTO(CUENTA_NUMERO) NumCuentas };
  enum {
    ID_CUENTA = Forma::ID_LISTA + 1,
    ID_APLICASALDO = ID_CUENTA + NumCuentas,
    ID_BUSCAR,
    ID_SALIR = ID_BUSCAR + NumCuentas,
    ID_LAST,
  };

  TipoMovimiento_Window(FXMDIClient* area, FXMDIMenu* menu);

  CUENTAS_MOVIMIENTO(CUENTA_MANEJADOR)
  long onCmdBuscar(FXObject*, FXSelector sel, void*) { return cuentas.Busca(FXSELID(sel) - ID_BUSCAR); }
  long onCmdAplicaSaldo(FXObject*, FXSelector, void*) { return aplicaSaldo.Elige(); }

 protected:
  TipoMovimiento_Window() {}

 private:
  friend Forma;
  using cRegistro = cTipoMovimiento;

  cTipoMovimiento& Actual() { return tipomovimiento; }
  auto& Filas() { return Catalogo::TipoMovimiento; }
  void Relee() { catalogo.LoadTipoMovimiento(); }
  const char* Renglon(const cTipoMovimiento& fila) {
    return EnBorrador(sTipoMovimiento, fila.getDescTipoMovimiento());
  }
  auto Datos() {
    using T = cTipoMovimiento;
    return std::tuple(Liga(id, &T::getTipoMovimientoID, &T::setTipoMovimientoID),
                      Liga(descripcion, &T::getDescTipoMovimiento, &T::setDescTipoMovimiento),
                      Liga(aplicaSaldo, &T::getAplicaSaldo, &T::setAplicaSaldo),
                      Liga(aceptaDeposito, &T::getAceptaDeposito, &T::setAceptaDeposito),
                      Liga(aceptaRetiro, &T::getAceptaRetiro, &T::setAceptaRetiro),
                      Liga(desglosaIva, &T::getDesglosaIva, &T::setDesglosaIva),
                      Liga(tipoPoliza, &T::getTipoPoliza, &T::setTipoPoliza),
                      Liga(tasaInteres, &T::getTasaInteres, &T::setTasaInteres),
                      Liga(cuentaOrden, &T::getCuentaOrden, &T::setCuentaOrden),
                      Liga(comision, &T::getComision, &T::setComision),
                      Liga(porComision, &T::getPorComision, &T::setPorComision),
                      Liga(porIvaComision, &T::getPorIvaComision, &T::setPorIvaComision)
                          CUENTAS_MOVIMIENTO(CUENTA_LIGA));
  }

  DatoTexto id;
  DatoTexto descripcion;
  DatoSN aplicaSaldo;
  DatoCasilla<FXString> aceptaDeposito{"S", "N"};
  DatoCasilla<FXString> aceptaRetiro{"S", "N"};
  DatoCasilla<FXint> desglosaIva{1, 0};
  Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_MOVIMIENTO(CUENTA_FILA)}};
  DatoTexto tipoPoliza;
  DatoReal tasaInteres;
  DatoCasilla<FXString> cuentaOrden{"S", "N"};  // are memorandum accounts kept?
  DatoReal comision;
  DatoReal porComision;
  DatoReal porIvaComision;
};
