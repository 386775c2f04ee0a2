// The form of the names of the series of variable rates. One stored function lists, inserts, changes and
// deletes, and every call answers with the whole catalogue, so that all of them go through the load of the
// cache. A load that cannot be begun is not caught here: it ends the program.
#pragma once

#include "catalogs/finance/cTipoTasaInteres.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cTipoTasaInteres tasas;  // the row shown
extern char Buffers[200];       // the statement last sent, or its beginning
extern char* tasa;              // name, description and old name as the last command took them
extern char* des;
extern char* neww;
extern bool flag;  // &Nuevo was pressed, and &Aceptar not since; outlives the form
// Nothing uses these.
extern char sDescripciones[100];
extern char* cup;
extern char* date1;
extern char* date2;
extern int no1;
extern int no2;
extern bool nuevo;

class TasaInteres_Window : public Forma<TasaInteres_Window, FXDialogBox> {
  FXDECLARE(TasaInteres_Window)
 public:
  explicit TasaInteres_Window(FXWindow* duenio);

  /// Inserts after &Nuevo, otherwise asks and changes. Throws what the load throws.
  long onCmdAgregar(FXObject*, FXSelector, void*);
  long onCmdFind(FXObject*, FXSelector, void*) { return 1; }
  long onCmdClear(FXObject*, FXSelector, void*);
  /// Asks and deletes. Throws what the load throws.
  long onCmdBorrar(FXObject*, FXSelector, void*);
  long onCmdTasaInteres(FXObject*, FXSelector, void*);

  /// Row of the list to window.
  void Read(int fila);
  /// Window to the three values of a statement.
  void Update();
  void Clear();

 protected:
  TasaInteres_Window() {}

 private:
  friend Forma;
  void EnfocaClave() { DaTeclado(nombre.campo); }
  void Falla(const char* texto) { cajaError(this, "Error en Validación", texto); }
  bool EstaVacia(const char* aviso);
  void Manda(const Sentencia& sql);

  auto& Filas() { return Catalogo::TipoTasaInteres; }
  void Relee() { catalogo.LoadTipoTasa("SELECT * FROM subtipotasa('a','null','null','null');"); }
  const char* Renglon(const cTipoTasaInteres& fila) { return fila.getTipotasa(); }

  DatoTexto nombre;
  DatoParrafo descripcion;
  FXString anterior;  // the name as it was when it was read
};
