// The entry form of one rate. It is not joined up with its record yet: each command works on a record of its
// own, which it drops, so that &Aceptar saves nothing; &Borrar does delete the form's rate.
#pragma once

#include "catalogs/finance/cTasa.h"
#include "framework/CampoFecha.h"
#include "framework/Forma.h"

class NuevoTasa_Window : public Forma<NuevoTasa_Window, FXMDIChild, SinBuscar> {
  FXDECLARE(NuevoTasa_Window)
 public:
  enum { ID_FECHAINICIAL = ID_LISTA + 1, ID_FECHAFINAL, ID_SALIR, ID_LAST };

  /// `clave`: number of the rate, not above 0 for a new one. `tipo`: 0 of a loan, 1 of a movement, 2 of an
  /// investment.
  NuevoTasa_Window(FXMDIClient* area, FXMDIMenu* menu, long clave, int tipo);

  long onCmdAgregar(FXObject*, FXSelector, void*);
  long onCmdBorrar(FXObject*, FXSelector, void*);
  /// A choice of a type, which nothing takes.
  long onCmdTipo(FXObject*, FXSelector, void*) { return 1; }
  long onCmdCalendario(FXObject*, FXSelector sel, void*) {
    return (FXSELID(sel) == ID_FECHAINICIAL ? fechaInicial : fechaFinal).Elige(this);
  }

  /// Shows a blank record.
  void Read() { Muestra(cTasa()); }
  /// The fields into a record of its own.
  void Update();

 protected:
  NuevoTasa_Window() {}

 private:
  friend Forma;
  void LlenaTipos(int tipo);

  cTasa& Actual() { return tasa; }
  auto Datos() {
    return std::tuple(Liga(fechaInicial, &cTasa::getFechaInicial, &cTasa::setFechaInicial),
                      Liga(fechaFinal, &cTasa::getFechaFinal, &cTasa::setFechaFinal),
                      Liga(tasaNormal, &cTasa::getTasaNormal, &cTasa::setTasaNormal),
                      Liga(tasaMoratorio, &cTasa::getTasaMoratorio, &cTasa::setTasaMoratorio));
  }

  cTasa tasa;
  long clave = 0;
  DatoFecha fechaInicial;
  DatoFecha fechaFinal;
  DatoReal tasaNormal;
  DatoReal tasaMoratorio;
  FXComboBox* cmbTipo = nullptr;
};
