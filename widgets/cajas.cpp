#include "widgets/cajas.h"

#include <fxkeys.h>

#include <optional>

namespace FX {
// The pictures of the toolkit's own boxes: in its library, though in none of its headers.
extern const unsigned char erroricon[];
extern const unsigned char infoicon[];
extern const unsigned char questionicon[];
}  // namespace FX

namespace {

// A box must fit on the screen.
constexpr int anchoDeLinea = 90;  // characters
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

/// The lines of a box; nothing when `texto` has more of them than a box holds.
std::optional<FXString> EnLineas(const FXString& texto) {
  FXString lineas;
  FXint inicio = 0;
  for (int i = 0; i < lineasDeCaja; ++i) {
    const FXint fin = FinDeLinea(texto, inicio);
    if (i > 0) lineas += '\n';
    lineas += texto.mid(inicio, fin - inicio);
    if (fin == texto.length()) return lineas;
    inicio = texto[fin] == '\n' ? fin + 1 : fin;
  }
  return std::nullopt;
}

/// A box as the toolkit's, but for its text, which is scrolled.
class CajaLarga : public FXMessageBox {
  FXDECLARE(CajaLarga)
 public:
  CajaLarga(FXWindow* duenio, const FXString& titulo, const FXString& todo, FXIcon* dibujo, FXuint opciones);

  /// The keys that move in a text scroll it, wherever the focus is; Enter and Tab stay those of the box.
  long onKeyPress(FXObject*, FXSelector, void* evento);

 protected:
  CajaLarga() {}

 private:
  FXText* texto = nullptr;
};

FXDEFMAP(CajaLarga)
CajaLargaMap[] = {
    FXMAPFUNC(SEL_KEYPRESS, 0, CajaLarga::onKeyPress),
};

FXIMPLEMENT(CajaLarga, FXMessageBox, CajaLargaMap, ARRAYNUMBER(CajaLargaMap))

CajaLarga::CajaLarga(FXWindow* duenio, const FXString& titulo, const FXString& todo, FXIcon* dibujo,
                     FXuint opciones)
    : FXMessageBox(duenio, titulo, FXString::null, dibujo, opciones) {
  FXWindow* const renglon = getFirst()->getFirst();  // the picture, and the label of the text
  delete renglon->getLast();
  auto* const marco = new FXHorizontalFrame(static_cast<FXComposite*>(renglon),
                                            FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0,
                                            0, 0, 0, 0, 0, 0);
  texto = new FXText(marco, nullptr, 0, TEXT_READONLY | TEXT_WORDWRAP | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  texto->setVisibleColumns(anchoDeLinea);
  texto->setVisibleRows(lineasDeCaja);
  texto->setText(todo);
}

long CajaLarga::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  constexpr struct {
    FXint tecla, delTeclado;
    FXSelector mensaje;
  } pasos[] = {
      {KEY_Up, KEY_KP_Up, FXText::ID_SCROLL_UP},
      {KEY_Down, KEY_KP_Down, FXText::ID_SCROLL_DOWN},
      {KEY_Page_Up, KEY_KP_Page_Up, FXText::ID_CURSOR_PAGEUP},
      {KEY_Page_Down, KEY_KP_Page_Down, FXText::ID_CURSOR_PAGEDOWN},
      {KEY_Home, KEY_KP_Home, FXText::ID_CURSOR_TOP},
      {KEY_End, KEY_KP_End, FXText::ID_CURSOR_BOTTOM},
  };
  const auto* const pulsada = static_cast<FXEvent*>(evento);
  for (const auto& [tecla, delTeclado, mensaje] : pasos)
    if (pulsada->code == tecla || pulsada->code == delTeclado)
      return texto->handle(this, FXSEL(SEL_COMMAND, mensaje), nullptr);
  if (texto->getParent()->getFocus() == texto) {
    for (const FXint tecla : {KEY_Tab, KEY_KP_Tab, KEY_ISO_Left_Tab})
      if (pulsada->code == tecla) return getFirst()->handle(this, FXSEL(SEL_FOCUS_NEXT, 0), evento);
    for (const FXint tecla : {KEY_Return, KEY_KP_Enter})
      if (pulsada->code == tecla) texto->killFocus();
  }
  return FXMessageBox::onKeyPress(emisor, sel, evento);
}

/// A title is cut off by a window manager with wide buttons: the box gets room for both.
void EnsanchaParaTitulo(FXMessageBox& caja) {
  constexpr FXint adornos = 130;
  auto* const contenido = static_cast<FXComposite*>(caja.getFirst());
  const FXString titulo = caja.getTitle();
  const FXint ancho = caja.getApp()->getNormalFont()->getTextWidth(titulo) * 5 / 4 + adornos;
  new FXFrame(contenido, LAYOUT_FIX_WIDTH | LAYOUT_FIX_HEIGHT, 0, 0, ancho, 1);
}

/// Below its owner, or above it where the screen ends before.
void PonDebajo(FXMessageBox& caja, FXWindow* duenio) {
  constexpr FXint marco = 30;  // what a window manager puts around
  FXint x = 0, y = 0;
  duenio->translateCoordinatesTo(x, y, duenio->getRoot(), 0, 0);
  const FXint ancho = caja.getDefaultWidth(), alto = caja.getDefaultHeight();
  FXint arriba = y + duenio->getHeight() + marco;
  if (arriba + alto > duenio->getRoot()->getHeight()) arriba = FXMAX(0, y - alto - marco);
  caja.position(FXMAX(0, x + (duenio->getWidth() - ancho) / 2), arriba, ancho, alto);
}

/// Leaves out the two lines with which a server points into a statement of ours, "LINE 1: ..." and blanks up
/// to a "^": no setting of its library does without losing the hint.
void QuitaSentencia(FXString& texto) {
  for (FXint marca = texto.find('^'); marca >= 0; marca = texto.find('^', marca + 1)) {
    const FXint renglon = texto.rfind('\n', marca);
    const FXint antes = renglon > 0 ? texto.rfind('\n', renglon - 1) : -1;
    if (antes < 0 || !texto.mid(renglon + 1, marca - renglon - 1).trim().empty()) continue;
    const FXString senalada = texto.mid(antes + 1, renglon - antes - 1);
    if (!senalada.contains("LINE ") && !senalada.contains("LÍNEA ")) continue;
    texto.erase(antes, marca + 1 - antes);
    return;
  }
}

/// Shows a box and answers what was clicked in it.
FXuint Muestra(FXWindow* duenio, const unsigned char* dibujo, FXuint botones, const FXString& titulo,
               const char* texto) {
  FXString visible = *texto == '\0' ? "No hay conexión con el servidor." : texto;
  visible.substitute("%%", "%");
  QuitaSentencia(visible);
  FXGIFIcon icono(duenio->getApp(), dibujo);
  const FXuint opciones = botones | DECOR_TITLE | DECOR_BORDER;
  if (std::optional<FXString> lineas = EnLineas(visible)) {
    // A label takes the one for the sign of a key, and the other for its own end.
    lineas->substitute("&", "&&").substitute("\t", "    ");
    FXMessageBox caja(duenio, titulo, *lineas, &icono, opciones);
    EnsanchaParaTitulo(caja);
    return caja.execute(PLACEMENT_OWNER);
  }
  return CajaLarga(duenio, titulo, visible, &icono, opciones).execute(PLACEMENT_OWNER);
}

/// The button of a box that sends this message.
FXButton* BotonDe(FXWindow* ventana, FXSelector mensaje) {
  if (auto* boton = dynamic_cast<FXButton*>(ventana); boton != nullptr && boton->getSelector() == mensaje)
    return boton;
  for (FXWindow* hija = ventana->getFirst(); hija != nullptr; hija = hija->getNext())
    if (FXButton* boton = BotonDe(hija, mensaje)) return boton;
  return nullptr;
}

}  // namespace

void cajaError(FXWindow* duenio, const FXString& titulo, const char* texto) {
  Muestra(duenio, FX::erroricon, MBOX_OK, titulo, texto);
}

void cajaInformacion(FXWindow* duenio, const FXString& titulo, const char* texto) {
  Muestra(duenio, FX::infoicon, MBOX_OK, titulo, texto);
}

bool cajaPregunta(FXWindow* duenio, const FXString& titulo, const char* texto) {
  return Muestra(duenio, FX::questionicon, MBOX_YES_NO, titulo, texto) == MBOX_CLICKED_YES;
}

bool cajaPreguntaBorrar(FXWindow* duenio, const FXString& titulo) {
  FXGIFIcon icono(duenio->getApp(), FX::questionicon);
  FXMessageBox caja(duenio, titulo, "Borrar el registro ?", &icono, MBOX_YES_NO | DECOR_TITLE | DECOR_BORDER);
  EnsanchaParaTitulo(caja);
  caja.create();
  BotonDe(&caja, FXMessageBox::ID_CLICKED_NO)->setFocus();
  PonDebajo(caja, duenio);
  return caja.execute(PLACEMENT_DEFAULT) == MBOX_CLICKED_YES;
}
