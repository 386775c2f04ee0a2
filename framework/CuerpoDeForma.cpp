#include "framework/CuerpoDeForma.h"

#include <fxkeys.h>

#include <algorithm>

#include "framework/Letra.h"

namespace {

/// How many points a window lacks to show its pieces whole.
struct Falta {
  FXint ancho = 0;
  FXint alto = 0;

  void Crece(FXint masAncho, FXint masAlto) {
    ancho = std::max(ancho, masAncho);
    alto = std::max(alto, masAlto);
  }
};

/// A text field can be scrolled, and gives way to half of its columns.
void MidePieza(FXWindow* pieza, Falta& falta) {
  if (dynamic_cast<FXLabel*>(pieza) != nullptr) {
    falta.Crece(pieza->getDefaultWidth() - pieza->getWidth(), pieza->getDefaultHeight() - pieza->getHeight());
  } else if (dynamic_cast<FXTextField*>(pieza) != nullptr) {
    falta.Crece(pieza->getDefaultWidth() / 2 - pieza->getWidth(),
                pieza->getDefaultHeight() - pieza->getHeight());
  } else if (dynamic_cast<FXComboBox*>(pieza) != nullptr) {
    falta.Crece(0, pieza->getDefaultHeight() - pieza->getHeight());
  }
}

/// Pages that are not up count like the others.
void Mide(FXWindow* ventana, Falta& falta) {
  MidePieza(ventana, falta);
  if (dynamic_cast<FXScrollArea*>(ventana) != nullptr || dynamic_cast<FXComboBox*>(ventana) != nullptr)
    return;
  const bool libro = dynamic_cast<FXTabBook*>(ventana) != nullptr;
  for (FXWindow* pieza = ventana->getFirst(); pieza != nullptr; pieza = pieza->getNext()) {
    if (!pieza->shown() && !libro) continue;
    falta.Crece(pieza->getX() + pieza->getWidth() - ventana->getWidth(),
                pieza->getY() + pieza->getHeight() - ventana->getHeight());
    Mide(pieza, falta);
  }
}

constexpr FXint orillaDeVentana = 8;  // left and right of a window, what its manager puts around it

/// Grows a form by what its pieces lack.
void Completa(FXMDIChild* forma, FXWindow* cuerpo) {
  constexpr int vueltas = 8;  // what one box gets, another may still lack
  for (int vuelta = 0; vuelta < vueltas && !forma->isMaximized(); ++vuelta) {
    forma->layout();
    Falta falta;
    Mide(cuerpo, falta);
    if (falta.ancho == 0 && falta.alto == 0) break;
    forma->resize(forma->getWidth() + falta.ancho, forma->getHeight() + falta.alto);
  }
}

/// Grows a main window by what `hija` lacks in its area, but not beyond the screen.
void Ensancha(FXTopWindow* principal, FXint masAncho, FXint masAlto) {
  constexpr FXint titulo = 32;  // what a window manager puts above
  if (principal->isMaximized()) return;
  const FXWindow* const pantalla = principal->getRoot();
  const FXint maximoAncho = std::max(pantalla->getWidth() - orillaDeVentana, principal->getWidth());
  const FXint maximoAlto = std::max(pantalla->getHeight() - titulo - orillaDeVentana, principal->getHeight());
  const FXint ancho = std::min(principal->getWidth() + std::max(masAncho, 0), maximoAncho);
  const FXint alto = std::min(principal->getHeight() + std::max(masAlto, 0), maximoAlto);
  const FXint x =
      std::min(principal->getX(), std::max(0, pantalla->getWidth() - ancho - orillaDeVentana / 2));
  const FXint y =
      std::min(principal->getY(), std::max(0, pantalla->getHeight() - alto - orillaDeVentana / 2));
  principal->position(x, y, ancho, alto);
}

}  // namespace

void CuerpoDeForma::ArmaCuerpo() {
  // A child form keeps the keys of its buttons to itself: in the main window's table they would take those of
  // the menu away when the form closes.
  if (dynamic_cast<FXMDIChild*>(forma) != nullptr) forma->setAccelTable(new FXAccelTable);
  cuerpo = new MarcoDeForma(forma, LAYOUT_FILL_X | LAYOUT_FILL_Y);
}

void CuerpoDeForma::ArmaMedio() {
  grupos = new FXVerticalFrame(cuerpo, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
}

void CuerpoDeForma::ArmaSinLista() {
  ArmaCuerpo();
  ArmaMedio();
}

FXVerticalFrame* CuerpoDeForma::ArmaConMarco(FXint ancho) {
  ArmaCuerpo();
  auto* marco = new FXVerticalFrame(cuerpo, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FIX_WIDTH | LAYOUT_FILL_Y, 0,
                                    0, ancho, 0, 0, 0, 0, 0);
  ArmaMedio();
  return marco;
}

void CuerpoDeForma::ArmaLista(const char* titulo, FXint ancho) {
  ArmaCuerpo();
  // List and buttons keep their width; the fields have what is left.
  auto* grupo = new FXGroupBox(cuerpo, titulo, FRAME_GROOVE | LAYOUT_FILL_Y);
  auto* marco = new FXVerticalFrame(grupo, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0,
                                    0, 0, 0, 0, 0, 0);
  lstFilas =
      new ListaDeForma(marco, forma, mensajes.lista,
                       LIST_BROWSESELECT | HSCROLLER_NEVER | LAYOUT_FIX_WIDTH | LAYOUT_FILL_Y, 0, 0, ancho);
  ArmaMedio();
}

FXMatrix* CuerpoDeForma::ArmaGrupo(const char* titulo) {
  return ArmaMatriz(new FXGroupBox(grupos, titulo, FRAME_GROOVE | LAYOUT_FILL_X | LAYOUT_FILL_Y));
}

FXTabBook* CuerpoDeForma::ArmaLibro(FXSelector mensaje) {
  auto* libro =
      new LibroDeForma(grupos, forma, mensaje, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  cuerpo->Lleva(libro);
  return libro;
}

FXVerticalFrame* CuerpoDeForma::ArmaPagina(FXTabBook* libro, const char* titulo) {
  new FXTabItem(libro, titulo);
  return new FXVerticalFrame(libro, FRAME_RAISED | FRAME_THICK, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}

FXMatrix* CuerpoDeForma::ArmaMatriz(FXComposite* padre, FXint columnas, FXuint opciones) {
  return new FXMatrix(padre, columnas, MATRIX_BY_COLUMNS | opciones, 0, 0, 0, 0, 4, 4, 2, 2);
}

FXGroupBox* CuerpoDeForma::ArmaColumna() {
  return new FXGroupBox(cuerpo, "", LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 0, 0);
}

FXButton* CuerpoDeForma::ArmaCerrar(FXComposite* columna) {
  return Boton<FXButton>(columna, "&Cerrar", iconos::cerrar_icon, mensajes.cierre, LAYOUT_SIDE_BOTTOM);
}

FXGroupBox* CuerpoDeForma::ArmaBotones() {
  FXGroupBox* columna = ArmaColumna();
  Boton(columna, "&Nuevo", iconos::nuevo_icon, mensajes.nuevo, BUTTON_DEFAULT);
  FXButton* buscar = nullptr;
  if (mensajes.buscar != 0)
    buscar = Boton(columna, "&Buscar", iconos::find_icon, mensajes.buscar, BUTTON_DEFAULT);
  FXButton* const borrar = Boton(columna, "&Borrar", iconos::borrar_icon, mensajes.borrar, BUTTON_DEFAULT);
  borrar->addHotKey(MKUINT(KEY_r, ALTMASK));
  // Both labels underline the same letter: it finds, and what deletes has a key of its own.
  if (buscar != nullptr) buscar->addHotKey(MKUINT(KEY_b, ALTMASK));
  ArmaCerrar(columna);
  Boton(columna, "&Aceptar", iconos::ok_icon, mensajes.aceptar, BUTTON_DEFAULT | LAYOUT_SIDE_BOTTOM);
  return columna;
}

void CuerpoDeForma::Acomoda() {
  auto* const hija = static_cast<FXMDIChild*>(forma);
  FXWindow* const area = hija->getParent();
  if (TieneLetraGrande(forma->getApp())) Completa(hija, cuerpo);
  const auto sobra = [&](Falta& falta) {
    falta = {hija->getX() + hija->getWidth() - area->getWidth(),
             hija->getY() + hija->getHeight() - area->getHeight()};
    return falta.ancho > 0 || falta.alto > 0;
  };
  Falta falta;
  if (!sobra(falta)) return;
  Ensancha(static_cast<FXTopWindow*>(area->getShell()), falta.ancho, falta.alto);
  if (!sobra(falta)) return;
  hija->move(std::max(0, hija->getX() - std::max(falta.ancho, 0)),
             std::max(0, hija->getY() - std::max(falta.alto, 0)));
  if (sobra(falta)) hija->maximize();
}

void CuerpoDeForma::Estrecha() {
  if (!TieneLetraGrande(forma->getApp())) return;
  const FXint ancho = forma->getRoot()->getWidth() - orillaDeVentana;
  if (forma->getDefaultWidth() > ancho) forma->resize(ancho, forma->getDefaultHeight());
}
