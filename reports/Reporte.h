// Pages of text for a line printer: each begins with the institution's header and holds 60 lines.
//
//   Reporte reporte("", "CARTERA", "CLAVE", titulos, "", guiones, "", "", 1, 0);
//   reporte.Begin(archivo);
//   reporte.Imprime(archivo, renglon);  // as often as there are lines
//   reporte.End(archivo);
//
// The file is the caller's. Nothing is checked; without a file nothing is written.
#pragma once

#include <cstdio>

class Reporte {
 public:
  Reporte() {}
  /// The first text is kept and not printed. The three `encabezado` are lines of every header, the two
  /// `subtitulo` only where they are not empty. Texts are cut at the width of their member.
  Reporte(const char* nombre, const char* titulo, const char* orden, const char* encabezado1,
          const char* encabezado2, const char* encabezado3, const char* subtitulo1, const char* subtitulo2,
          int pagina, int linea);

  /// The header of page 1.
  void Begin(FILE* f);
  /// The header of the next page.
  void Encabezado(FILE* f);
  /// A line, on a new page when this one is full.
  void Imprime(FILE* f, const char* texto);
  /// The end of the last page.
  void End(FILE* f);

  /// Sends reporte.txt of the working directory to the printer; without one nothing happens.
  static void Imprimir();

 private:
  char nombre[80] = "";
  char titulo[80] = "";
  char orden[50] = "";
  char encabezados[3][135] = {};  // the width of condensed print, terminator included
  char subtitulos[2][135] = {};
  int pagina = 0;  // number of the next page
  int linea = 0;   // lines used on this one
};
