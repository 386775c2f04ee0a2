// The monthly pre-close of the loans, which runs on the server, and its result as a comma-separated file.
//
// The day chosen is the closing day; its year is the exercise and its month the period.
#pragma once

#include "framework/CampoFecha.h"
#include "reports/VentanaReporte.h"

class PreCierre_Window : public VentanaReporte<PreCierre_Window> {
  FXDECLARE(PreCierre_Window)
 public:
  explicit PreCierre_Window(FXWindow* duenio);

  /// &Pre-Cierre: asks, and runs the process, which is a transaction of its own. Only a success is told.
  long onCmdImprime(FXObject*, FXSelector, void*);
  long onCmdCalendario(FXObject*, FXSelector, void*) { return fecha.Elige(this); }

 protected:
  PreCierre_Window() {}

 private:
  friend VentanaReporte;
  static constexpr const char* archivo = "reporte.csv";
  /// Leaves the answer in `res`. A query that fails has no rows.
  void Genera();

  DatoFecha fecha;
};
