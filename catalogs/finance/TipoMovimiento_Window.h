// The form of the movement types.
#pragma once

#include "catalogs/finance/cTipoMovimiento.h"
#include "db/Catalogo.h"
#include "framework/CampoCuenta.h"
#include "framework/Forma.h"

extern cTipoMovimiento tipomovimiento;  // the record on which the form works; outlives it
extern char sTipoMovimiento[31];        // a row of the list

// clang-format off
#define CUENTAS_MOVIMIENTO(CUENTA)                                                    \
  CUENTA("Cta. Deposito:", CuentaDeposito, onCmdCuentaDeposito, true)                 \
  CUENTA("Cta. Retiro:", CuentaRetiro, onCmdCuentaRetiro, true)                       \
  CUENTA("Cta. Int. Pagado:", CuentaIntPagado, onCmdCuentaIntPagado, true)            \
  CUENTA("Cta. Int. Cobrado:", CuentaIntCobrado, onCmdCuentaIntCobrado, true)         \
  CUENTA("Cta. IDE:", CuentaIvaMovimiento, onCmdCuentaIvaMovimiento, true)            \
  CUENTA("Cta. ISR:", CuentaISR, onCmdCuentaISR, true)                                \
  CUENTA("Provision ISR:", CuentaProvisionISR, onCmdCuentaProvisionISR, true)         \
  CUENTA("Cta. Orden Acredor:", CuentaOrdenAcredor, onCmdCuentaOrdenAcredor, true)    \
  CUENTA("Cta. Orden Deudor:", CuentaOrdenDeudor, onCmdCuentaOrdenDeudor, true)       \
  CUENTA("Cta. Comision:", CuentaComision, onCmdCuentaComision, true)                 \
  CUENTA("Cta. IVA Comision:", CuentaIvaComision, onCmdCuentaIvaComision, true)
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
