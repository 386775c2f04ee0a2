// The form of the depreciation types. Only the second program opens it.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/assets/cTipoDepreciacion.h"
#include "catalogs/finance/CampoCuenta.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cTipoDepreciacion depreciacion;

// clang-format off
#define CUENTAS_DEPRECIACION(CUENTA)                                         \
  CUENTA("Cta. Activo:", Depre_Activo, onCmdDepre_Activo)                    \
  CUENTA("Cta. Depreciación:", Depre_CtaDepre, onCmdDepre_CtaDepre)          \
  CUENTA("Cta. Gasto:", Depre_CtaGasto, onCmdDepre_CtaGasto)                 \
  CUENTA("Cta. Baja:", Depre_CtaBaja, onCmdDepre_CtaBaja)
// clang-format on

class TipoDepreciaciones_Window : public Forma<TipoDepreciaciones_Window, FXDialogBox> {
  FXDECLARE(TipoDepreciaciones_Window)
 public:
  enum { CUENTAS_DEPRECIACION(CUENTA_NUMERO) NumCuentas };
  enum {
    ID_MONEDA = Forma::ID_LISTA + 1,
    ID_CUENTA,
    ID_BUSCAR = ID_CUENTA + NumCuentas,
    ID_SALIR = ID_BUSCAR + NumCuentas,
    ID_LAST,
  };

  explicit TipoDepreciaciones_Window(FXWindow* duenio);

  long onCmdDepreciacion(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }
  long onCmdMoneda(FXObject*, FXSelector, void*) { return moneda.Elige(); }
  CUENTAS_DEPRECIACION(CUENTA_MANEJADOR)
  /// The search button of an account.
  long onCmdBuscar(FXObject*, FXSelector sel, void*) { return cuentas.Busca(FXSELID(sel) - ID_BUSCAR); }

 protected:
  TipoDepreciaciones_Window() {}

 private:
  friend Forma;
  using cRegistro = cTipoDepreciacion;

  cTipoDepreciacion& Actual() { return depreciacion; }
  auto& Filas() { return Catalogo::TipoDepreciacion; }
  void Prepara();
  void Relee() { catalogo.LoadTipoDepreciacion(); }
  const char* Renglon(const cTipoDepreciacion& fila);
  auto Datos() {
    using T = cTipoDepreciacion;
    return std::tuple(Liga(id, &T::getDepreciacionID, &T::setDepreciacionID),
                      Liga(descripcion, &T::getDepreDescripcion, &T::setDepreDescripcion),
                      Liga(tasaContable, &T::getDepreTasaContable, &T::setDepreTasaContable),
                      Liga(tasaFiscal, &T::getDepreTasaFiscal, &T::setDepreTasaFiscal),
                      Liga(maximoDeducible, &T::getMaximoDeducible, &T::setMaximoDeducible),
                      Liga(moneda, &T::getDepreMoneda, &T::setDepreMoneda),
                      Liga(porcentaje, &T::getDeprePorcentaje, &T::setDeprePorcentaje)
                          CUENTAS_DEPRECIACION(CUENTA_LIGA));
  }

  DatoEntero id;  // the server numbers new ones
  DatoTexto descripcion;
  DatoReal tasaContable;
  DatoReal tasaFiscal;
  DatoReal maximoDeducible;
  DatoFila<Catalogo::Monedas, &cMonedas::getMonedaID, FindMoneda> moneda;
  DatoReal porcentaje;
  Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_DEPRECIACION(CUENTA_FILA)}};
};
