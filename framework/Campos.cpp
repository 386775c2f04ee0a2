#include "framework/Campos.h"

#include <fxkeys.h>

#include <charconv>

#include "framework/Foco.h"

namespace {

constexpr FXuint opcionesDeCampo =
    FRAME_SUNKEN | FRAME_THICK | TEXTFIELD_LIMITED | LAYOUT_CENTER_Y | LAYOUT_FILL_X | LAYOUT_FILL_COLUMN;

void Etiqueta(FXComposite* padre, const char* texto) {
  if (texto != nullptr) new FXLabel(padre, texto, nullptr, LABEL_NORMAL | JUSTIFY_LEFT | LAYOUT_CENTER_Y);
}

template <class Clase, class T>
void Renglon(FXComposite* padre, const char* etiqueta, int columnas, Dato<T>& dato, FXuint opciones) {
  Etiqueta(padre, etiqueta);
  dato.campo = new Clase(padre, columnas, &dato.destino, FXDataTarget::ID_VALUE, opcionesDeCampo | opciones);
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

FXDEFMAP(CampoOpciones)
CampoOpcionesMap[] = {
    FXMAPFUNC(SEL_KEYPRESS, 0, CampoOpciones::onKeyPress),
    FXMAPFUNC(SEL_KEYRELEASE, 0, CampoOpciones::onKeyRelease),
    FXMAPFUNC(SEL_UPDATE, 0, CampoOpciones::onUpdate),
};
FXIMPLEMENT(CampoOpciones, FXComboBox, CampoOpcionesMap, ARRAYNUMBER(CampoOpcionesMap))

long CampoOpciones::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  const auto* const tecla = static_cast<FXEvent*>(evento);
  const FXuint con = tecla->state & (CONTROLMASK | ALTMASK);
  const bool letra = con == 0 && static_cast<FXuchar>(tecla->text[0]) > ' ';
  const bool abajo = tecla->code == KEY_Down || tecla->code == KEY_KP_Down;
  if (!isPaneShown()) {
    const bool abre = letra || tecla->code == KEY_F4 || tecla->code == KEY_space || (abajo && con == ALTMASK);
    if (!abre || !isEnabled() || getNumItems() == 0) return FXComboBox::onKeyPress(emisor, sel, evento);
    Abre();
    if (letra) Mira(evento);
    return 1;
  }
  switch (tecla->code) {
    case KEY_Return:
    case KEY_KP_Enter:
      Toma();
      break;
    case KEY_Escape:
    case KEY_F4:
      Cierra();
      break;
    default:
      if (con == 0) Mira(evento);
  }
  return 1;
}

long CampoOpciones::onKeyRelease(FXObject* emisor, FXSelector sel, void* evento) {
  return isPaneShown() ? 1 : FXComboBox::onKeyRelease(emisor, sel, evento);
}

/// The list may have been closed by the mouse.
long CampoOpciones::onUpdate(FXObject* emisor, FXSelector sel, void* datos) {
  if (!isPaneShown()) Cierra();
  return FXComboBox::onUpdate(emisor, sel, datos);
}

void CampoOpciones::killFocus() {
  Cierra();
  FXComboBox::killFocus();
}

void CampoOpciones::Abre() { button->handle(this, FXSEL(SEL_COMMAND, ID_POST), nullptr); }

/// Leaves what was chosen before.
void CampoOpciones::Cierra() {
  if (isPaneShown()) button->handle(this, FXSEL(SEL_COMMAND, ID_UNPOST), nullptr);
  if (elegida != nada) list->setCurrentItem(elegida);
  elegida = nada;
}

/// A key that moves in the list, which chooses nothing yet.
void CampoOpciones::Mira(void* evento) {
  if (elegida == nada) elegida = list->getCurrentItem();
  list->setTarget(nullptr);
  list->handle(this, FXSEL(SEL_KEYPRESS, 0), evento);
  list->setTarget(this);
}

void CampoOpciones::Toma() {
  const FXint mirada = list->getCurrentItem();
  elegida = nada;
  if (mirada < 0) return Cierra();
  list->handle(this, FXSEL(SEL_COMMAND, 0), reinterpret_cast<void*>(static_cast<FXival>(mirada)));
}

void DatoOpcion::Pon(int nuevo) {
  combo->setCurrentItem(nuevo >= 0 && nuevo < combo->getNumItems() ? nuevo : -1);
}

FXComposite* campoRenglon(FXMatrix* matriz, const char* etiqueta) {
  Etiqueta(matriz, etiqueta);
  return new FXHorizontalFrame(matriz, LAYOUT_CENTER_Y | LAYOUT_FILL_COLUMN, 0, 0, 0, 0, 0, 0, 0, 0);
}

FXMatrix* campoMatriz(FXMatrix* matriz, int columnas) {
  matriz->setLayoutHints(LAYOUT_FILL_X);
  return new FXMatrix(static_cast<FXComposite*>(matriz->getParent()), columnas,
                      MATRIX_BY_COLUMNS | LAYOUT_FILL_X, 0, 0, 0, 0, 4, 4, 2, 2);
}

void campoClave(FXComposite* padre, const char* etiqueta, int columnas, DatoTexto& dato) {
  Renglon<CampoCodigo>(padre, etiqueta, columnas, dato, JUSTIFY_LEFT | TEXTFIELD_ENTER_ONLY);
}

void campoClave(FXComposite* padre, const char* etiqueta, int columnas, DatoEntero& dato, FXuint lado) {
  Renglon<Campo>(padre, etiqueta, columnas, dato, lado | TEXTFIELD_ENTER_ONLY | TEXTFIELD_INTEGER);
}

void campoTexto(FXComposite* padre, const char* etiqueta, int columnas, DatoTexto& dato, FXuint opciones) {
  Renglon<Campo>(padre, etiqueta, columnas, dato, opciones);
}

void campoCodigo(FXComposite* padre, const char* etiqueta, int columnas, DatoTexto& dato) {
  Renglon<CampoCodigo>(padre, etiqueta, columnas, dato, JUSTIFY_LEFT);
}

void campoReal(FXComposite* padre, const char* etiqueta, int columnas, DatoReal& dato, FXuint opciones) {
  Renglon<CampoReal>(padre, etiqueta, columnas, dato, JUSTIFY_RIGHT | TEXTFIELD_REAL | opciones);
}

void campoEntero(FXComposite* padre, const char* etiqueta, int columnas, DatoEntero& dato, FXuint filtro) {
  Renglon<Campo>(padre, etiqueta, columnas, dato, JUSTIFY_RIGHT | filtro);
}

void campoEntero(FXComposite* padre, const char* etiqueta, int columnas, DatoLargo& dato) {
  Renglon<Campo>(padre, etiqueta, columnas, dato, JUSTIFY_RIGHT | TEXTFIELD_INTEGER);
}

void campoParrafo(FXMatrix* matriz, const char* etiqueta, int filas, int columnas, DatoParrafo& dato) {
  Etiqueta(matriz, etiqueta);
  auto* marco = new FXHorizontalFrame(
      matriz, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL | LAYOUT_FILL_COLUMN | LAYOUT_FILL_ROW, 0, 0, 0, 0, 0,
      0, 0, 0);
  dato.campo = new CampoParrafo(marco, nullptr, 0, TEXT_WORDWRAP | LAYOUT_FILL);
  dato.campo->setVisibleRows(filas);
  dato.campo->setVisibleColumns(columnas);
}

FXCheckButton* campoCasilla(FXComposite* padre, const char* etiqueta, FXObject* destino, FXSelector mensaje) {
  Etiqueta(padre, etiqueta);
  return new FXCheckButton(padre, "", destino, mensaje,
                           CHECKBUTTON_NORMAL | LAYOUT_CENTER_Y | LAYOUT_FILL_COLUMN);
}

FXComboBox* campoCombo(FXComposite* padre, const char* etiqueta, int visibles, FXObject* destino,
                       FXSelector mensaje) {
  Etiqueta(padre, etiqueta);
  auto* combo = new CampoOpciones(
      padre, 2, destino, mensaje,
      COMBOBOX_STATIC | FRAME_SUNKEN | FRAME_THICK | LAYOUT_CENTER_Y | LAYOUT_FILL_X | LAYOUT_FILL_COLUMN);
  combo->setNumVisible(visibles);
  return combo;
}

std::unique_ptr<FXFont> LetraChica(FXComboBox* combo) {
  auto letra = std::make_unique<FXFont>(combo->getApp(), "helvica", 8);
  combo->setFont(letra.get());
  return letra;
}
