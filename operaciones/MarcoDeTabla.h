// A list that can be sorted, filtered, copied, written as CSV and printed: the field of the filter, the list
// and its buttons. A window puts tables into it.
#pragma once

#include "operaciones/ListaDeTabla.h"

/// Tells `destino` of a row that the user opens: SEL_DOUBLECLICKED; of another one that is current:
/// SEL_CHANGED; and of F5 or &Releer: SEL_COMMAND.
class MarcoDeTabla : public FXVerticalFrame {
  FXDECLARE(MarcoDeTabla)
 public:
  enum {
    ID_FILTRO = FXVerticalFrame::ID_LAST,
    ID_LISTA,
    ID_RELEE,
    ID_COPIA,
    ID_CSV,
    ID_VER,
    ID_IMPRIME,
    ID_LAST,
  };

  MarcoDeTabla(FXComposite* padre, FXObject* destino, FXSelector mensaje);
  ~MarcoDeTabla() override;

  /// Shows a table; that of the same title as before keeps its order and filter, another one begins anew,
  /// with its columns as they were when it was last shown.
  void Pon(const FXString& titulo, Tabla tabla);
  ListaDeTabla* Lista() const { return lista; }
  FXTextField* Filtro() const { return filtro; }

  long onFiltro(FXObject*, FXSelector, void*);
  long onRenglon(FXObject*, FXSelector sel, void*);
  long onRelee(FXObject*, FXSelector, void*);
  long onCopia(FXObject*, FXSelector, void*);
  long onCsv(FXObject*, FXSelector, void*);
  long onVer(FXObject*, FXSelector, void*);
  long onImprime(FXObject*, FXSelector, void*);

  /// Writes the shown rows as a report for the printer; false, and says so, when it cannot.
  bool EscribeReporte();

 protected:
  MarcoDeTabla() {}

 private:
  void Guarda();
  void Cuenta();
  FXString NombreDeArchivo() const;

  FXString titulo;
  FXTextField* filtro = nullptr;
  FXLabel* cuenta = nullptr;
  ListaDeTabla* lista = nullptr;
};
