#include "framework/Campos.h"

#include <charconv>

namespace {

constexpr FXuint opcionesDeCampo =
    FRAME_SUNKEN | FRAME_THICK | TEXTFIELD_LIMITED | LAYOUT_CENTER_Y | LAYOUT_FILL_X | LAYOUT_FILL_COLUMN;

void Etiqueta(FXMatrix* matriz, const char* texto) {
  new FXLabel(matriz, texto, nullptr, LABEL_NORMAL | JUSTIFY_LEFT | LAYOUT_CENTER_Y);
}

template <class Clase, class T>
void Renglon(FXMatrix* matriz, const char* etiqueta, int columnas, Dato<T>& dato, FXuint opciones) {
  Etiqueta(matriz, etiqueta);
  dato.campo = new Clase(matriz, columnas, &dato.destino, FXDataTarget::ID_VALUE, opcionesDeCampo | opciones);
}

template <class Numero>
FXString Digitos(Numero valor) {
  char texto[400];  // the longest fixed notation of a double has some 330 characters
  const auto fin = std::to_chars(texto, texto + sizeof texto, valor, std::chars_format::fixed).ptr;
  return FXString(texto, static_cast<FXint>(fin - texto));
}

}  // namespace

FXDEFMAP(CampoReal)
CampoRealMap[] = {
    FXMAPFUNC(SEL_COMMAND, CampoReal::ID_SETREALVALUE, CampoReal::onCmdSetRealValue),
};

FXIMPLEMENT(CampoReal, Campo, CampoRealMap, ARRAYNUMBER(CampoRealMap))

long CampoReal::onCmdSetRealValue(FXObject*, FXSelector, void* valor) {
  const double numero = *static_cast<FXdouble*>(valor);
  const float sencillo = static_cast<float>(numero);
  setText(sencillo == numero ? Digitos(sencillo) : Digitos(numero));
  return 1;
}

void campoClave(FXMatrix* matriz, const char* etiqueta, int columnas, DatoTexto& dato) {
  Renglon<CampoClave>(matriz, etiqueta, columnas, dato, JUSTIFY_LEFT | TEXTFIELD_ENTER_ONLY);
}

void campoClave(FXMatrix* matriz, const char* etiqueta, int columnas, DatoEntero& dato, FXuint lado) {
  Renglon<Campo>(matriz, etiqueta, columnas, dato, lado | TEXTFIELD_ENTER_ONLY | TEXTFIELD_INTEGER);
}

void campoTexto(FXMatrix* matriz, const char* etiqueta, int columnas, DatoTexto& dato) {
  Renglon<Campo>(matriz, etiqueta, columnas, dato, JUSTIFY_LEFT);
}

void campoReal(FXMatrix* matriz, const char* etiqueta, int columnas, DatoReal& dato) {
  Renglon<CampoReal>(matriz, etiqueta, columnas, dato, JUSTIFY_RIGHT | TEXTFIELD_REAL);
}

void campoParrafo(FXMatrix* matriz, const char* etiqueta, int filas, int columnas, DatoParrafo& dato) {
  Etiqueta(matriz, etiqueta);
  auto* marco = new FXHorizontalFrame(
      matriz, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL | LAYOUT_FILL_COLUMN | LAYOUT_FILL_ROW, 0, 0, 0, 0, 0,
      0, 0, 0);
  dato.campo = new FXText(marco, nullptr, 0, TEXT_WORDWRAP | LAYOUT_FILL);
  dato.campo->setVisibleRows(filas);
  dato.campo->setVisibleColumns(columnas);
}

FXCheckButton* campoCasilla(FXMatrix* matriz, const char* etiqueta, FXObject* destino, FXSelector mensaje) {
  Etiqueta(matriz, etiqueta);
  return new FXCheckButton(matriz, "", destino, mensaje,
                           CHECKBUTTON_NORMAL | LAYOUT_CENTER_Y | LAYOUT_FILL_COLUMN);
}
