// The form of the investment types.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/finance/CampoCuenta.h"
#include "catalogs/finance/cTipoInversion.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cTipoInversion tipoinversion;
extern char sTipoInversion[32];

// Labels and columns do not always say the same of an account.
// clang-format off
#define CUENTAS_INVERSION(CUENTA)                                                       \
  CUENTA("Pasivo:", CuentaPasivo, onCmdCuentaPasivo)                                    \
  CUENTA("Interes devengado:", CuentaPasivoVencida, onCmdCuentaPasivoVencido)           \
  CUENTA("Interes:", CuentaIntInver, onCmdCuentaIntInver)                               \
  CUENTA("Interes No Cobrado:", CuentaIntInverNoCob, onCmdCuentaIntInverNoCob)          \
  CUENTA("Cta. IDE:", CuentaIvaInver, onCmdCuentaIvaInver)                              \
  CUENTA("Cuenta ISR:", CuentaRiesgoCred, onCmdCuentaRiesgoCred)                        \
  CUENTA("Provision ISR:", CuentaProvisionISR, onCmdCuentaProvisionISR)
// clang-format on

class TipoInversion_Window : public Forma<TipoInversion_Window, FXMDIChild> {
  FXDECLARE(TipoInversion_Window)
 public:
  enum { CUENTAS_INVERSION(CUENTA_NUMERO) NumCuentas };
  enum {
    ID_CALCULO = Forma::ID_LISTA + 1,
    ID_CUENTA,
    ID_APLICAIVA = ID_CUENTA + NumCuentas,
    ID_TEST,
    ID_BUSCAR,
    ID_MOVIMIENTO = ID_BUSCAR + NumCuentas,
    ID_SALIR,
    ID_LAST,
  };

  TipoInversion_Window(FXMDIClient* area, FXMDIMenu* menu);

  CUENTAS_INVERSION(CUENTA_MANEJADOR)
  long onCmdBusca(FXObject*, FXSelector sel, void*) { return cuentas.Busca(FXSELID(sel) - ID_BUSCAR); }
  long onCmdCalculo(FXObject*, FXSelector, void*) { return calculo.Elige(); }
  long onCmdTipoMovimiento(FXObject*, FXSelector, void*) { return movimiento.Elige(); }
  long onCmdAplicaIvaInversion(FXObject*, FXSelector, void*) { return aplicaIva.Elige(); }
  /// Blanks the form and greets. No widget sends its message.
  long onCmdTest(FXObject*, FXSelector, void*);

 protected:
  TipoInversion_Window() {}

 private:
  friend Forma;
  using cRegistro = cTipoInversion;

  void ArmaLimites(FXMatrix* matriz);
  void ArmaOpciones(FXMatrix* matriz);
  void LlenaOpciones();

  cTipoInversion& Actual() { return tipoinversion; }
  auto& Filas() { return Catalogo::TipoInversiones; }
  void Relee() { catalogo.LoadTipoInversiones(); }
  const char* Renglon(const cTipoInversion& fila) {
    return EnBorrador(sTipoInversion, fila.getDescTipoInversion());
  }
  auto Datos() {
    using T = cTipoInversion;
    return std::tuple(
        Liga(id, &T::getTipoInversionID, &T::setTipoInversionID),
        Liga(descripcion, &T::getDescTipoInversion, &T::setDescTipoInversion),
        Liga(tasaNormal, &T::getTasa_Normal, &T::setTasa_Normal),
        Liga(montoMin, &T::getMontoMin, &T::setMontoMin), Liga(montoMax, &T::getMontoMax, &T::setMontoMax),
        Liga(plazo, &T::getPlazo, &T::setPlazo), Liga(plazoMax, &T::getPlazoMax, &T::setPlazoMax),
        Liga(calculo, &T::getCalculoID, &T::setCalculoID),
        Liga(aplicaIva, &T::getAplicaIvaInversion, &T::setAplicaIvaInversion),
        Liga(movimiento, &T::getTipoMovimientoID, &T::setTipoMovimientoID),
        Liga(aplicaISR, &T::getAplicaISR, &T::setAplicaISR),
        Liga(clasificacion, &T::getClasificacionID, &T::setClasificacionID),
        Liga(reinvierteInteres, &T::getReinvierteInteres, &T::setReinvierteInteres)
            CUENTAS_INVERSION(CUENTA_LIGA));
  }

  DatoTexto id;
  DatoTexto descripcion;
  DatoReal tasaNormal;
  DatoReal montoMin;
  DatoReal montoMax;
  DatoEntero plazo;  // the shortest term, in days as the longest one
  DatoEntero plazoMax;
  Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_INVERSION(CUENTA_FILA)}};
  DatoFila<Catalogo::Calculos, &cCalculo::getCalculoID, FindCalculo> calculo;
  DatoSN aplicaIva;
  DatoFila<Catalogo::TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, FindTipoMovimiento> movimiento;
  DatoCasilla<FXint> aplicaISR{1, 0};
  DatoOpcion clasificacion;
  DatoCasilla<FXint> reinvierteInteres{1, 0};
  std::unique_ptr<FXFont> letraCalculo;
  std::unique_ptr<FXFont> letraMovimiento;
};
