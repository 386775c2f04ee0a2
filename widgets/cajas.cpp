#include "widgets/cajas.h"

#include "widgets/TextoAcotado.h"

namespace {

// A box must fit on the screen.
constexpr int largoDelTexto = 2000;  // bytes
constexpr int anchoDeLinea = 90;     // characters
constexpr int lineasDeCaja = 30;

/// Where the line that begins at `inicio` ends: at its line end, or behind the last blank that still fits, or
/// where the width is used up.
FXint FinDeLinea(const FXString& texto, FXint inicio) {
  FXint blanco = -1, ancho = 0;
  for (FXint i = inicio; i < texto.length(); i = texto.inc(i)) {
    if (texto[i] == '\n') return i;
    if (ancho++ == anchoDeLinea) return blanco > inicio ? blanco + 1 : i;
    if (texto[i] == ' ') blanco = i;
  }
  return texto.length();
}

FXString EnLineas(const FXString& texto) {
  FXString lineas;
  FXint inicio = 0;
  for (int i = 0; i < lineasDeCaja; ++i) {
    const FXint fin = FinDeLinea(texto, inicio);
    if (i > 0) lineas += '\n';
    lineas += texto.mid(inicio, fin - inicio);
    if (fin == texto.length()) break;
    inicio = texto[fin] == '\n' ? fin + 1 : fin;
  }
  return lineas;
}

/// `texto` as the box shows it.
FXString Visible(const char* texto) {
  if (*texto == '\0') return "No hay conexión con el servidor.";
  FXString visible(texto, static_cast<FXint>(LargoUtf8(texto, largoDelTexto)));
  return EnLineas(visible.substitute("%%", "%"));
}

}  // namespace

void cajaError(FXWindow* duenio, const FXString& titulo, const char* texto) {
  FXMessageBox::error(duenio, MBOX_OK, titulo.text(), "%s", Visible(texto).text());
}

void cajaInformacion(FXWindow* duenio, const FXString& titulo, const char* texto) {
  FXMessageBox::information(duenio, MBOX_OK, titulo.text(), "%s", Visible(texto).text());
}

bool cajaPregunta(FXWindow* duenio, const FXString& titulo, const char* texto) {
  return FXMessageBox::question(duenio, MBOX_YES_NO, titulo.text(), "%s", Visible(texto).text()) ==
         MBOX_CLICKED_YES;
}
