// The history of rates: a table for each kind of type, and the way into the entry form of a rate.
//
// The tables stay empty: the server has no statement that would fill them.
#pragma once

#include "catalogs/finance/cTasa.h"
#include "framework/Forma.h"

class Tasa_Window : public Forma<Tasa_Window, FXMDIChild> {
  FXDECLARE(Tasa_Window)
 public:
  enum { ID_NUEVO = ID_CLEAR + 1, ID_EDIT, ID_SALIR, ID_LAST };

  Tasa_Window(FXMDIClient* area, FXMDIMenu* menu);

  // No widget sends these three.
  long onCmdAgregar(FXObject*, FXSelector, void*) { return 1; }
  long onCmdFind(FXObject*, FXSelector, void*) { return 1; }
  long onCmdClear(FXObject*, FXSelector, void*) { return 1; }
  /// &Nuevo: the entry form for a new rate of the kind whose page is up.
  long onCmdNuevo(FXObject*, FXSelector, void*);
  /// A row clicked twice: the entry form of its rate.
  long onCmdEdit(FXObject*, FXSelector, void* lugar);

  long Load() { return 1; }
  void Read() {}
  void Update() {}
  void Clear() {}

 protected:
  Tasa_Window() {}

 private:
  friend Forma;
  void EnfocaClave() {}
  struct Columna {
    const char* titulo;
    FXint ancho;
  };
  void ArmaTabla(const char* titulo, std::initializer_list<Columna> columnas);
  long AbreTasa(long clave);

  cTasa& Actual() { return tasa; }

  cTasa tasa;  // holds nothing
  FXMDIClient* area = nullptr;
  FXMDIMenu* menu = nullptr;
  FXTabBook* libro = nullptr;
  FXTable* tabla = nullptr;  // of the three, the last one
};
