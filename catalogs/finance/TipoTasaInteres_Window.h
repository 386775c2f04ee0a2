// The form of the periods of the variable rates. Its key has no field: a row is read by choosing it in the
// list.
#pragma once

#include "catalogs/finance/cTasaInteres.h"
#include "db/Catalogo.h"
#include "framework/CampoFecha.h"
#include "framework/Forma.h"

extern cTasaInteres tasainteres;
extern int iTasainteresId;  // key of the row last chosen in the list

class TipoTasaInteres_Window : public Forma<TipoTasaInteres_Window, FXDialogBox> {
  FXDECLARE(TipoTasaInteres_Window)
 public:
  enum { ID_FECHAINICIAL = ID_LISTA + 1, ID_FECHAFINAL, ID_SALIR, ID_LAST };

  explicit TipoTasaInteres_Window(FXWindow* duenio);

  long onCmdFind(FXObject*, FXSelector, void*) { return 1; }
  /// Deletes the row last chosen.
  long onCmdBorrar(FXObject*, FXSelector, void*);
  /// A row chosen in the list is read from the server.
  long onCmdLista(FXObject*, FXSelector, void*);
  long onCmdCalendario(FXObject*, FXSelector sel, void*) {
    return (FXSELID(sel) == ID_FECHAINICIAL ? fechaInicial : fechaFinal).Elige(this);
  }
  /// No message runs it.
  long onCmdTasas(FXObject*, FXSelector, void*) { return 0; }

 protected:
  TipoTasaInteres_Window() {}

 private:
  friend Forma;
  cTasaInteres& Actual() { return tasainteres; }
  auto& Filas() { return Catalogo::TasaInteres; }
  void Relee() { catalogo.LoadTasas(Sentencia("SELECT * FROM spstasavariable(%i);", 0)); }
  const char* Renglon(const cTasaInteres& fila);
  static bool MismaFila(const cTasaInteres& una, const cTasaInteres& otra) {
    return una.getTasainteresId() == otra.getTasainteresId();
  }
  auto Datos() {
    return std::tuple(Liga(tipo, &cTasaInteres::getTipotasa, &cTasaInteres::setTipotasa),
                      Liga(fechaInicial, &cTasaInteres::getFechainicial, &cTasaInteres::setFechainicial),
                      Liga(fechaFinal, &cTasaInteres::getFechafinal, &cTasaInteres::setFechafinal),
                      Liga(valor1, &cTasaInteres::getValor1, &cTasaInteres::setValor1),
                      Liga(valor2, &cTasaInteres::getValor2, &cTasaInteres::setValor2));
  }

  char renglon[80] = "";  // a row of the list
  DatoTexto tipo;
  DatoFecha fechaInicial;
  DatoFecha fechaFinal;
  DatoReal valor1;
  DatoReal valor2;
};
