#include "widgets/cajas.h"

#include "widgets/TextoAcotado.h"

namespace {

constexpr int anchoDeLinea = 110;    // characters
constexpr int largoDelTexto = 2000;  // bytes: a box must fit on the screen

/// Breaks the lines that are too wide for a box, at a blank where there is one.
FXString EnLineas(const FXString& texto) {
  FXString lineas;
  FXint inicio = 0, blanco = -1, ancho = 0;
  for (FXint i = 0; i < texto.length(); i = texto.inc(i)) {
    if (texto[i] == '\n') {
      lineas += texto.mid(inicio, i + 1 - inicio);
      inicio = texto.inc(i);
      blanco = -1;
      ancho = 0;
      continue;
    }
    if (texto[i] == ' ') blanco = i;
    if (++ancho <= anchoDeLinea) continue;
    const FXint corte = blanco > inicio ? blanco + 1 : i;
    lineas += texto.mid(inicio, corte - inicio) + "\n";
    inicio = corte;
    blanco = -1;
    ancho = texto.mid(inicio, texto.inc(i) - inicio).count();
  }
  return lineas + texto.mid(inicio, texto.length() - inicio);
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
