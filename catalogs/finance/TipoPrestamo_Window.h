// The form of the types of loan: six pages, with the 28 accounts that loans of the type post to.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/finance/CampoCuenta.h"
#include "catalogs/finance/cTipoPrestamo.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cTipoPrestamo tipoprestamo;
extern char sDescripcion[31];

// The accounts in the order of the pages: on the screen, in the record, the handler of the combo box.
// Labels and fields do not always read alike.
// clang-format off
#define CUENTAS_ACTIVO(CUENTA)                                                                            \
  CUENTA("Activo:", CuentaActivo, onCmdCuentaActivo)                                                      \
  CUENTA("Activo Vencida:", CuentaActivoVencida, onCmdCuentaActivoVencida)                                \
  CUENTA("Normal Venc.:", CuentaIntNormalVencida, onCmdCuentaIntNormalVencida)                            \
  CUENTA("Cuenta ISR:", CuentaRiesgoCred, onCmdCuentaRiesgoCred)                                          \
  CUENTA("Int. Devengado:", CuentaIntDevNoCobres, onCmdCuentaIntDevNoCobres)
#define CUENTAS_PASIVO(CUENTA)                                                                            \
  CUENTA("Cta. de IVA:", CuentaIva, onCmdCuentaIva)                                                       \
  CUENTA("Gastos de Cobranza:", CuentaFondoRecuperacion, onCmdCuentaFondoRecuperacion)                    \
  CUENTA("Gtos. de Otorgamiento.:", CuentaGtosAdm, onCmdCuentaGtosAdm, BusquedaMuerta)                    \
  CUENTA("Provision IVA:", CuentaProvisionIVA, onCmdCuentaProvisionIVA)                                   \
  CUENTA("Aval Acredor:", CuentaOrdenAvalAcredor, onCmdCuentaOrdenAvalAcredor)                            \
  CUENTA("Garantia Deudor:", CuentaGarantiaDeudor, onCmdCuentaGarantiaDeudor)                             \
  CUENTA("Garantia Acredor:", CuentaGarantiaAcredor, onCmdCuentaGarantiaAcredor)                          \
  CUENTA("Comision:", CuentaComision, onCmdCuentaComision)                                                \
  CUENTA("IVA Comision:", CuentaIvaComision, onCmdCuentaIvaComision)
#define CUENTAS_RESULTADOS(CUENTA)                                                                        \
  CUENTA("Int. Normal:", CuentaIntNormal, onCmdCuentaIntNormal)                                           \
  CUENTA("Norm. No Cob.:", CuentaIntNormalNocob, onCmdCuentaIntNormalNocob)                               \
  CUENTA("Int. Moratorio:", CuentaIntMora, onCmdCuentaIntMora)                                            \
  CUENTA("Moratorio Venc.:", CuentaIntMoraVencida, onCmdCuentaIntMoraVencida)                             \
  CUENTA("Riesgo Cred.:", CuentaRiesgoCredRes, onCmdCuentaRiesgoCredRes)                                  \
  CUENTA("Int. Norm. Venc.:", CuentaIntNormalResVencida, onCmdCuentaIntNormalResVencida, BusquedaMuerta)  \
  CUENTA("Int. Norm. Vig.:", CuentaIntNormalResVigente, onCmdCuentaIntNormalResVigente)
#define CUENTAS_ORDEN(CUENTA)                                                                             \
  CUENTA("Aval Deudor:", CuentaOrdenAval, onCmdCuentaOrdenAval)                                           \
  CUENTA("Orden Interes:", CuentaOrdenInteres, onCmdCuentaOrdenInteres)                                   \
  CUENTA("Orden Deudor Moratorio Bonificado", CuentaIntMoraNoCobAct, onCmdCuentaIntMoraNoCobAct)          \
  CUENTA("Orden Acredor Moratorio Bonificado", CuentaIntMoraDevNoCobRes,                                  \
         onCmdCuentaIntMoraDevNoCobRes)                                                                   \
  CUENTA("Orden Deudor Normal Bonificado", OrdenDeudorNormalBonificado,                                   \
         onCmdOrdenDeudorNormalBonificado)                                                                \
  CUENTA("Orden Acredor Normal Bonificado", OrdenAcredorNormalBonificado,                                 \
         onCmdOrdenAcredorNormalBonificado)                                                               \
  CUENTA("Orden Interes Acreedor", OrdenInteresAcreedor, onCmdOrdenInteresAcreedor, BusquedaMuerta)
#define CUENTAS_PRESTAMO(CUENTA) \
  CUENTAS_ACTIVO(CUENTA) CUENTAS_PASIVO(CUENTA) CUENTAS_RESULTADOS(CUENTA) CUENTAS_ORDEN(CUENTA)
// clang-format on

class TipoPrestamo_Window : public Forma<TipoPrestamo_Window, FXMDIChild> {
  FXDECLARE(TipoPrestamo_Window)
 public:
  enum { CUENTAS_PRESTAMO(CUENTA_NUMERO) NumCuentas };
  enum {
    ID_CUENTA = Forma::ID_LISTA + 1,
    ID_BUSCAR = ID_CUENTA + NumCuentas,
    ID_PANEL = ID_BUSCAR + NumCuentas,
    ID_TIPOMOVIMIENTO,
    ID_APLICAIVA,
    ID_PRESTAMOGRUPAL,
    ID_GRUPAL,  // what the check button of the group loans sends; no entry of the map takes it
    ID_SALIR,
    ID_LAST,
  };

  TipoPrestamo_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdTipoPrestamo(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }
  CUENTAS_PRESTAMO(CUENTA_MANEJADOR)
  /// A page that comes up is nothing to act on.
  long onCmdPanel(FXObject*, FXSelector, void*) { return 1; }
  long onCmdTipoMovimiento(FXObject*, FXSelector, void*) { return movimiento.Elige(); }
  long onCmdAplicaIva(FXObject*, FXSelector, void*) { return aplicaIva.Elige(); }
  /// Takes the check button of the group loans; its message is one that no widget sends.
  long onCmdPrestamoGrupal(FXObject*, FXSelector, void*) { return grupal.Elige(); }
  /// The search button of an account.
  long onCmdBuscar(FXObject*, FXSelector sel, void*) { return cuentas.Busca(FXSELID(sel) - ID_BUSCAR); }

 protected:
  TipoPrestamo_Window() {}

 private:
  friend Forma;
  using cRegistro = cTipoPrestamo;
  static constexpr bool eligeHallado = false;

  void ArmaGenerales(FXComposite* pagina);
  void ArmaParametros(FXMatrix* matriz);
  void ArmaOrden(FXMatrix* matriz);
  void LlenaCombos();

  cTipoPrestamo& Actual() { return tipoprestamo; }
  auto& Filas() { return Catalogo::TipoPrestamo; }
  void Relee() { catalogo.LoadTipoPrestamo(); }
  const char* Renglon(const cTipoPrestamo& fila) {
    return EnBorrador(sDescripcion, fila.getDescTipoPrestamo());
  }
  auto Datos() {
    using T = cTipoPrestamo;
    return std::tuple(
        Liga(id, &T::getTipoPrestamoID, &T::setTipoPrestamoID),
        Liga(descripcion, &T::getDescTipoPrestamo, &T::setDescTipoPrestamo),
        Liga(tantos, &T::getTantos, &T::setTantos), Liga(tasaNormal, &T::getTasa_Normal, &T::setTasa_Normal),
        Liga(tasaMora, &T::getTasa_Mora, &T::setTasa_Mora),
        Liga(movimiento, &T::getClaveMoviGarantia, &T::setClaveMoviGarantia),
        Liga(calculoNormal, &T::getCalculoNormalID, &T::setCalculoNormalID),
        Liga(calculoMora, &T::getCalculoMoraID, &T::setCalculoMoraID),
        Liga(finalidad, &T::getClaveFinalidad, &T::setClaveFinalidad),
        Liga(aplicaIva, &T::getAplicaIvaPrestamo, &T::setAplicaIvaPrestamo),
        Liga(diasTraspaso, &T::getDiasTraspasoAVencida, &T::setDiasTraspasoAVencida),
        Liga(montoMaximo, &T::getMontoMaximo, &T::setMontoMaximo),
        Liga(plazoMaximo, &T::getPlazoMaximo, &T::setPlazoMaximo),
        Liga(montoMinimo, &T::getMontoMinimo, &T::setMontoMinimo),
        Liga(avalesMinimos, &T::getAvalesMinimos, &T::setAvalesMinimos),
        Liga(periodo, &T::getPeriodoDiasDefault, &T::setPeriodoDiasDefault),
        Liga(estatus, &T::getEstatus, &T::setEstatus),
        Liga(grupal, &T::getPrestamoGrupal, &T::setPrestamoGrupal),
        Liga(comision, &T::getComision, &T::setComision),
        Liga(ivaComision, &T::getIvaComision, &T::setIvaComision),
        Liga(reciprocidad, &T::getReciprocidad, &T::setReciprocidad),
        Liga(clasificacion, &T::getClasificacionContable, &T::setClasificacionContable),
        Liga(nivel, &T::getNivelAutorizacion, &T::setNivelAutorizacion) CUENTAS_PRESTAMO(CUENTA_LIGA));
  }

  /// The flag of the group loans. The check button shows it; a tick of the user does not reach it.
  struct DatoGrupal {
    void Pon(FXint nuevo) {
      valor = nuevo;
      boton->setCheck(valor != 0);
    }
    void Vacia() { Pon(0); }
    FXint Valor() const { return valor; }
    long Elige() {
      valor = boton->getCheck();
      return 1;
    }

    FXint valor = 0;
    FXCheckButton* boton = nullptr;
  };
  using DatoCalculo = DatoFilaActual<Catalogo::Calculos, &cCalculo::getCalculoID, FindCalculo>;

  DatoTexto id;
  DatoTexto descripcion;
  DatoEntero tantos;
  DatoReal tasaNormal;
  DatoReal tasaMora;
  DatoFila<Catalogo::TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, FindTipoMovimiento> movimiento;
  std::unique_ptr<FXFont> letraMovimiento;
  DatoCalculo calculoNormal;
  DatoCalculo calculoMora;
  DatoFilaActual<Catalogo::Finalidades, &cFinalidades::getClaveFinalidad, FindFinalidad> finalidad;
  DatoSN aplicaIva;
  DatoEntero diasTraspaso;
  DatoReal montoMaximo;
  DatoEntero plazoMaximo;
  DatoReal montoMinimo;
  DatoEntero avalesMinimos;
  DatoEntero periodo;
  DatoCasilla<FXint> estatus{1, 0};
  DatoGrupal grupal;
  DatoReal comision;
  DatoReal ivaComision;
  DatoReal reciprocidad;
  DatoTexto clasificacion;
  DatoReal nivel;  // what is typed in its field does not reach it
  Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_PRESTAMO(CUENTA_FILA)}};
};
