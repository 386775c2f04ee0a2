// A table on the screen: a row of the list is drawn from the table when it is in sight, so that a catalogue
// of any size opens at once.
#pragma once

#include <fx.h>

#include <vector>

#include "operaciones/Tabla.h"

/// Tells its target of a row that the user opens, by Enter or a double click: SEL_DOUBLECLICKED.
class ListaDeTabla : public FXIconList {
  FXDECLARE(ListaDeTabla)
 public:
  enum { ID_IZQUIERDA = FXIconList::ID_LAST, ID_DERECHA, ID_ORDENDELSERVIDOR, ID_COPIA, ID_LAST };

  ListaDeTabla(FXComposite* padre, FXObject* destino, FXSelector mensaje, FXuint opciones);
  ~ListaDeTabla() override;

  /// Shows another table, its columns as `disposicion` says, a text that Disposicion gave.
  void Pon(Tabla nueva, const FXString& disposicion);
  /// Shows other rows of the same columns.
  void Renueva(Tabla nueva);
  const Tabla& Datos() const { return tabla; }

  void Filtra(const FXString& texto);
  /// Sorts by a column of the table; by the same one again the other way round.
  void Ordena(int columna);

  /// The columns of the table in the order of the screen.
  std::vector<int> Columnas() const;
  /// Moves the column at a place of the screen one place to the right, or to the left.
  void Mueve(FXint lugar, bool aLaDerecha);
  /// Columns and widths as a text, "column:width" each.
  FXString Disposicion() const;
  /// The row of the table at the current line; -1 for none.
  int FilaActual() const;
  /// Copies the chosen rows.
  long onCmdCopia(FXObject*, FXSelector, void*);

  /// A click on a heading sorts.
  long onEncabezado(FXObject*, FXSelector, void* cual);
  /// The right button on a heading: its column's menu.
  long onMenuDeColumna(FXObject*, FXSelector, void* evento);
  /// Moves the column of that menu.
  long onCmdMueve(FXObject*, FXSelector sel, void*);
  long onCmdOrdenDelServidor(FXObject*, FXSelector, void*);
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);
  long onClipboardRequest(FXObject* emisor, FXSelector sel, void* evento);

  /// What a cell shows, cut to `ancho` points.
  FXString Recortado(const char* celda, FXint ancho) const;

 protected:
  ListaDeTabla() {}

 private:
  void PonLineas(FXint lineas);
  void Muestra(int filaActual);
  void PonEncabezados(const FXString& disposicion);
  void MuestraOrden();
  FXint AnchoDeColumna(int columna) const;

  Tabla tabla;
  FXMenuPane* menu = nullptr;
  FXint columnaDelMenu = -1;  // its place on the screen
  FXString copiado;
};
