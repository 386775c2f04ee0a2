// A catalogue as rows and columns of text: sorted, filtered, and written out for a spreadsheet. Has no
// window.
//
//   Tabla tabla({{"Clave", Tabla::Texto}, {"Valor", Tabla::Numero}});
//   tabla.Agrega("MX"); tabla.Agrega(1.0);         // one cell after the other, row by row
//   tabla.Ordena(1, false);
//   tabla.Filtra("peso");
//   for (int i = 0; i < tabla.Visibles(); ++i) puts(tabla.Celda(tabla.Fila(i), 0));
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/date.h"

class Tabla {
 public:
  enum Tipo : char { Texto, Numero, Fecha };
  struct Columna {
    std::string titulo;
    Tipo tipo;
  };

  Tabla() = default;
  explicit Tabla(std::vector<Columna> columnas) : columnas(std::move(columnas)) {}

  const std::vector<Columna>& Columnas() const { return columnas; }
  int NumColumnas() const { return static_cast<int>(columnas.size()); }
  int Filas() const { return columnas.empty() ? 0 : static_cast<int>(inicios.size() / columnas.size()); }

  /// Forgets the rows; order and filter are for those that come.
  void Vacia();
  /// The next cell. A text loses the blanks at its end, a number has as many digits as tell it from its
  /// neighbours, a date is dd/mm/yyyy and one that was never given is empty.
  void Agrega(std::string_view texto);
  void Agrega(const char* texto) { Agrega(std::string_view(texto)); }
  void Agrega(long valor);
  void Agrega(int valor) { Agrega(static_cast<long>(valor)); }
  void Agrega(float valor);
  void Agrega(double valor);
  void Agrega(const date& valor);

  const char* Celda(int fila, int columna) const {
    return &textos[inicios[fila * columnas.size() + columna]];
  }

  /// What is shown: the rows that pass the filter, in order.
  int Visibles() const { return static_cast<int>(visibles.size()); }
  int Fila(int visible) const { return visibles[visible]; }

  /// Sorts by a column, as numbers, as dates or in the order of the Spanish alphabet; what is no number or no
  /// date stands first. Rows that are equal keep the order of the server. -1 is that order.
  void Ordena(int columna, bool descendente);
  int Orden() const { return orden; }
  bool Descendente() const { return descendente; }
  /// Shows the rows in which every word of `texto` is found, accents and case aside; an empty one shows all.
  void Filtra(std::string_view texto);
  /// Filters as `otra` does, once the rows are sorted.
  void TomaFiltro(const Tabla& otra) { palabras = otra.palabras; }
  /// Sorts and filters again, for rows that were added since.
  void Rehace();

  /// The shown rows, the columns in the order given, behind their titles, for a spreadsheet: UTF-8 with its
  /// mark. A cell that a spreadsheet would run as a formula gets an apostrophe ahead of it.
  std::string Csv(const std::vector<int>& orden) const;
  /// Some of the shown rows, without titles, as text between tabs.
  std::string Tabulado(const std::vector<int>& visibles, const std::vector<int>& orden) const;

 private:
  void Selecciona();

  std::vector<Columna> columnas;
  std::string textos;             // all cells, each with a zero behind it
  std::vector<uint32_t> inicios;  // where each begins
  std::vector<int> ordenadas;     // every row, in order
  std::vector<int> visibles;
  std::vector<std::string> plegadas;  // each row, folded; made when a filter first needs it
  std::vector<std::string> palabras;  // of the filter, folded
  int orden = -1;
  bool descendente = false;
};

/// `valor` as a spreadsheet may have it: one that begins as a formula (=, +, -, @, behind any blanks, or a
/// tab or line end) and is no plain number gets an apostrophe ahead of it.
std::string SinFormula(std::string_view valor);

/// Puts `texto` into the file `nombre`, whole or not at all: what was there before stays until all of it is
/// on disk. Answers what went wrong, in Spanish; empty if nothing did.
std::string EscribeArchivo(const std::string& nombre, const std::string& texto);
