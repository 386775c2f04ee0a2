#include "reports/Reporte.h"

#include <fx.h>

#include "app/sesion.h"
#include "reports/Mandato.h"
#include "widgets/TextoAcotado.h"

namespace {

constexpr int ultimaLinea = 59;
constexpr int lineasDelEncabezado = 7;

// What the printer understands.
constexpr char finDeCondensado = 18;
constexpr char condensado = 15;
constexpr char saltoDePagina[] = "\f\r";

}  // namespace

Reporte::Reporte(const char* nombre, const char* titulo, const char* orden, const char* encabezado1,
                 const char* encabezado2, const char* encabezado3, const char* subtitulo1,
                 const char* subtitulo2, int pagina, int linea)
    : pagina(pagina), linea(linea) {
  CopiaTexto(this->nombre, nombre);
  CopiaTexto(this->titulo, titulo);
  CopiaTexto(this->orden, orden);
  CopiaTexto(encabezados[0], encabezado1);
  CopiaTexto(encabezados[1], encabezado2);
  CopiaTexto(encabezados[2], encabezado3);
  CopiaTexto(subtitulos[0], subtitulo1);
  CopiaTexto(subtitulos[1], subtitulo2);
}

void Reporte::Begin(FILE* f) {
  pagina = 1;
  Encabezado(f);
}

void Reporte::Encabezado(FILE* f) {
  if (f == nullptr) return;
  fprintf(f, "%c%s    Suc.%s%s\r\n\r\n", finDeCondensado, gnombrecaja, gsucid, gsucursal);
  fprintf(f, "%cREPORTE  : %s\r\n", condensado, titulo);
  const FXString fecha = FXSystem::time("%d/%m/%Y  %I:%M:%S %p", FXSystem::now());
  fprintf(f, "Ordenado por : %-50s  Fecha de Impresion: %s      Num. de Pag.: %3d\r\n", orden, fecha.text(),
          pagina);
  for (const auto& encabezado : encabezados) fprintf(f, "%s\r\n", encabezado);
  linea = lineasDelEncabezado;
  for (const auto& subtitulo : subtitulos) {
    if (subtitulo[0] == '\0') continue;
    fprintf(f, "%s\r\n", subtitulo);
    ++linea;
  }
  fputs("\r\n", f);
  ++linea;
  ++pagina;
}

void Reporte::Imprime(FILE* f, const char* texto) {
  if (f == nullptr) return;
  if (linea > ultimaLinea) {
    fputs(saltoDePagina, f);
    Encabezado(f);
  }
  fprintf(f, "%s\r\n", texto != nullptr ? texto : "");
  ++linea;
}

void Reporte::End(FILE* f) {
  if (f != nullptr) fputs(saltoDePagina, f);
}

void Reporte::Imprimir() { Manda("lpr -l reporte.txt"); }
