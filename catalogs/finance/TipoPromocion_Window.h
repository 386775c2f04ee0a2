// The form of the promotions.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/finance/cTipoPromocion.h"
#include "framework/CampoFecha.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cTipoPromocion tipopromocion;

class TipoPromocion_Window : public Forma<TipoPromocion_Window, FXMDIChild, SinBuscar> {
  FXDECLARE(TipoPromocion_Window)
 public:
  enum { ID_MOVIMIENTO = ID_LISTA + 1, ID_FECHAINICIAL, ID_FECHAFINAL, ID_SALIR, ID_LAST };

  TipoPromocion_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdTipoPromocion(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }
  long onCmdTipoMovimiento(FXObject*, FXSelector, void*) { return movimiento.Elige(); }
  /// Of either date.
  long onCmdCalendario(FXObject*, FXSelector sel, void*) {
    return (FXSELID(sel) == ID_FECHAINICIAL ? fechaInicial : fechaFinal).Elige(this);
  }

 protected:
  TipoPromocion_Window() {}

 private:
  friend Forma;
  cTipoPromocion& Actual() { return tipopromocion; }
  auto& Filas() { return catalogo.TipoPromociones; }
  void Relee() { catalogo.LoadTipoPromociones(); }
  const char* Renglon(const cTipoPromocion& fila) { return fila.getDescripcion(); }
  auto Datos() {
    using T = cTipoPromocion;
    return std::tuple(Liga(id, &T::getTipoPromocionID, &T::setTipoPromocionID),
                      Liga(movimiento, &T::getTipoMovimientoID, &T::setTipoMovimientoID),
                      Liga(descripcion, &T::getDescripcion, &T::setDescripcion),
                      Liga(fechaInicial, &T::getFechaInicial, &T::setFechaInicial),
                      Liga(fechaFinal, &T::getFechaFinal, &T::setFechaFinal),
                      Liga(condicion, &T::getCondicion, &T::setCondicion),
                      Liga(estatus, &T::getEstatus, &T::setEstatus));
  }

  DatoEntero id;
  DatoFila<Catalogo::TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, FindTipoMovimiento> movimiento;
  DatoTexto descripcion;
  DatoFecha fechaInicial;
  DatoFecha fechaFinal;
  DatoParrafo condicion;
  DatoOpcion estatus;
};
