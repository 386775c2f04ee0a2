// The report on the persons of a name, which the server composes whole.
#pragma once

#include "reports/VentanaReporte.h"

class Sujeto_Window : public VentanaReporte<Sujeto_Window> {
  FXDECLARE(Sujeto_Window)
 public:
  explicit Sujeto_Window(FXWindow* duenio);

  /// &Imprime: writes the report anew and sends it to the printer.
  long onCmdImprime(FXObject*, FXSelector, void*);
  /// The lens: takes the name of a person who is searched for, an empty one when none was picked.
  long onCmdBusquedaSujeto(FXObject*, FXSelector, void*);

 protected:
  Sujeto_Window() {}

 private:
  friend VentanaReporte;
  static constexpr const char* archivo = "reporte.txt";
  /// A query that fails leaves the file empty.
  void Genera();

  DatoTexto paterno;
  DatoTexto materno;
  DatoTexto nombre;
  DatoTexto clave;  // nothing sets it
};
