// The form of the fixed assets: three pages, one of them with the depreciation in the books and one with that
// for taxes. Only the second program opens it.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/assets/cActivo.h"
#include "framework/CampoFecha.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cActivo activo;
extern char sActivo[281];  // a row: code and description

class Activo_Window : public Forma<Activo_Window, FXDialogBox> {
  FXDECLARE(Activo_Window)
 public:
  enum {
    ID_DEPRECIACION = Forma::ID_LISTA + 1,
    ID_PANEL,
    ID_CALENDARIO,  // of the books; that for taxes follows
    ID_CALENDARIO_FISCAL,
    ID_DEDUCCION,
    ID_MONEDA,
    ID_METODO,  // what these three combo boxes send; no entry of the map takes it
    ID_METODO_FISCAL,
    ID_DEPARTAMENTO,
    ID_SALIR,
    ID_LAST,
  };

  explicit Activo_Window(FXWindow* duenio);

  /// As in every form, and traces the key.
  long onCmdActivo(FXObject* emisor, FXSelector sel, void* datos);
  long onCmdDepreciacion(FXObject*, FXSelector, void*) { return depreciacion.Elige(); }
  /// A page that comes up is nothing to act on.
  long onCmdPanel(FXObject*, FXSelector, void*) { return 1; }
  /// The calendar button of a date.
  long onCmdCalendario(FXObject*, FXSelector sel, void*) {
    return (FXSELID(sel) == ID_CALENDARIO ? inicioConta : inicioFiscal).Elige(this);
  }
  long onCmdDeduccionInmediata(FXObject*, FXSelector, void*) { return deduccion.Elige(); }
  long onCmdMoneda(FXObject*, FXSelector, void*) { return moneda.Elige(); }

  /// Window to record, but for the key, which only &Buscar and &Borrar take over.
  void Update();

 protected:
  Activo_Window() {}

 private:
  friend Forma;

  void ArmaGenerales(FXMatrix* matriz);
  void ArmaContable(FXMatrix* matriz);
  void ArmaFiscal(FXMatrix* matriz);

  cActivo& Actual() { return activo; }
  auto& Filas() { return Catalogo::Activos; }
  void Prepara();
  void Relee() { catalogo.LoadActivos(); }
  const char* Renglon(const cActivo& fila);
  /// The fields but the key, in the order of the record.
  auto Propios() {
    using A = cActivo;
    return std::tuple(Liga(depreciacion, &A::getDepreciacionID, &A::setDepreciacionID),
                      Liga(clave, &A::getActivoClave, &A::setActivoClave),
                      Liga(descripcion, &A::getActivoDescripcion, &A::setActivoDescripcion),
                      Liga(valor, &A::getActivo_Valor, &A::setActivo_Valor),
                      Liga(vidaUtil, &A::getPorcenVidaUtil, &A::setPorcenVidaUtil),
                      Liga(valorMercado, &A::getValorMercado, &A::setValorMercado),
                      Liga(localizacion, &A::getLocalizacion, &A::setLocalizacion),
                      Liga(serie, &A::getActivoNoSerie, &A::setActivoNoSerie),
                      Liga(inicioConta, &A::getFecInicioDepConta, &A::setFecInicioDepConta),
                      Liga(tasaConta, &A::getActivoTasaConta, &A::setActivoTasaConta),
                      Liga(acumuladaConta, &A::getActDepreAcumConta, &A::setActDepreAcumConta),
                      Liga(metodoConta, &A::getActMetodoDepreConta, &A::setActMetodoDepreConta),
                      Liga(inicioFiscal, &A::getFecInicioDepFiscal, &A::setFecInicioDepFiscal),
                      Liga(deduccion, &A::getActDeduccionInme, &A::setActDeduccionInme),
                      Liga(tasaFiscal, &A::getActivoTasaFiscal, &A::setActivoTasaFiscal),
                      Liga(acumuladaFiscal, &A::getActDepreAcumFiscal, &A::setActDepreAcumFiscal),
                      Liga(metodoFiscal, &A::getActMetodoDepreFiscal, &A::setActMetodoDepreFiscal),
                      Liga(maximoFiscal, &A::getActMonMaxDeduFiscal, &A::setActMonMaxDeduFiscal),
                      Liga(montoOriginal, &A::getMontoOriginal, &A::setMontoOriginal),
                      Liga(moneda, &A::getMonedaID, &A::setMonedaID),
                      Liga(departamento, &A::getDepartamento, &A::setDepartamento));
  }
  auto Datos() {
    return std::tuple_cat(std::tuple(Liga(id, &cActivo::getActivoID, &cActivo::setActivoID)), Propios());
  }

  /// The currency. Blanking the form leaves that of the record in it, with a combo box that shows none.
  struct DatoMoneda : DatoFila<Catalogo::Monedas, &cMonedas::getMonedaID, FindMoneda> {
    void Vacia() {
      DatoFila::Vacia();
      valor = activo.getMonedaID();
    }
  };

  DatoEntero id;  // the server numbers new ones
  DatoTexto clave;
  DatoParrafo descripcion;
  DatoFila<Catalogo::TipoDepreciacion, &cTipoDepreciacion::getDepreciacionID, FindDepreciacion> depreciacion;
  DatoReal valor;
  DatoReal vidaUtil;
  DatoReal valorMercado;
  DatoTexto localizacion;
  DatoTexto serie;
  DatoReal montoOriginal;
  DatoMoneda moneda;
  DatoOpcion departamento;
  DatoFechaCorta inicioConta;
  DatoReal tasaConta;
  DatoReal acumuladaConta;
  DatoOpcion metodoConta;
  DatoFechaCorta inicioFiscal;
  DatoSN deduccion;
  DatoReal tasaFiscal;
  DatoReal acumuladaFiscal;
  DatoOpcion metodoFiscal;
  DatoReal maximoFiscal;
};
