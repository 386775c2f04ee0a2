// What the search dialogs share: the two fields, the list of rows and the handlers, written once.
//
// A dialog `class X_Window : public Buscador<X_Window>` is bound to one map of the cache and hands the key of
// the row that the user picked back in a global text. It states (open to `friend Buscador`):
//
//   static constexpr size_t corte           bytes of the key at the start of a row
//   static auto& Resultado()                the global text
//   static auto& Filas()                    the cached map, keyed by row
//   static const char* Buscada(const Fila&) what the "Buscar: " field is compared with
//   void Filtra()                           fills the empty list as `filtro` says
//
// and its message map is mapaDeBuscador. The key that counts is that of a row that was picked; what is only
// typed gives an empty one.
#pragma once

#include <fx.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "framework/Campos.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "widgets/Boton.h"
#include "widgets/CampoDeTexto.h"
#include "widgets/TextoAcotado.h"

template <class Ventana>
class Buscador : public FXDialogBox {
 public:
  enum {
    ID_ACEPTAR = FXDialogBox::ID_LAST,
    ID_LISTA,
    ID_BUSCAR,
    ID_FILTRO,
    ID_SALIR,
    ID_LAST,
  };

  /// &Aceptar: hands the key over, an empty one when no row was picked.
  long onCmdAceptar(FXObject*, FXSelector, void*);
  /// A row picked in the list gives the key, which the "Buscar: " field shows.
  long onCmdLista(FXObject*, FXSelector, void*);
  /// At each key in the "Buscar: " field: shows the first row that begins so, or takes the key back.
  long onCmdBuscar(FXObject*, FXSelector, void*);
  /// Lists what fits the filter. The rows are then no longer those of the map, by whose row numbers the
  /// "Buscar: " field finds, so that field is disabled for good.
  long onCmdFiltro(FXObject*, FXSelector, void*);
  /// Refuses a close request from outside.
  long onCmdQuit(FXObject*, FXSelector, void*) { return 1; }

  /// The user can type at once.
  void create() override {
    FXDialogBox::create();
    txtBuscar->setFocus();
  }

 protected:
  Buscador() {}
  /// An empty list `ancho` points wide, written in 8 points of the face `letra`.
  Buscador(FXWindow* owner, FXint ancho, const char* letra);

  void Agrega(const FXString& renglon) { lstFilas->appendItem(renglon); }
  /// Makes a row the current one, if the list has it.
  void Muestra(int fila);

  FXList* lstFilas = nullptr;
  FXTextField* txtBuscar = nullptr;
  FXTextField* txtFiltro = nullptr;
  DatoTexto clave;  // of the row picked; no field is bound to it
  DatoTexto filtro;

 private:
  void ArmaCampos(FXMatrix* matriz);
  FXButton* Boton(FXComposite* padre, const char* texto, const unsigned char* dibujo, FXSelector mensaje,
                  FXuint opciones);

  std::unique_ptr<FXFont> letraLista;
};

/// The message map of a search dialog.
template <class Ventana>
constexpr typename Ventana::FXMapEntry mapaDeBuscador[] = {
    FXMAPFUNC(SEL_COMMAND, Ventana::ID_ACEPTAR, Ventana::onCmdAceptar),
    FXMAPFUNC(SEL_COMMAND, Ventana::ID_LISTA, Ventana::onCmdLista),
    FXMAPFUNC(SEL_COMMAND, Ventana::ID_FILTRO, Ventana::onCmdFiltro),
    FXMAPFUNC(SEL_CHANGED, Ventana::ID_BUSCAR, Ventana::onCmdBuscar),
    FXMAPFUNC(SEL_CLOSE, 0, Ventana::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, Ventana::ID_SALIR, Ventana::onCmdQuit),
};

template <class Ventana>
Buscador<Ventana>::Buscador(FXWindow* owner, FXint ancho, const char* letra)
    : FXDialogBox(owner, FXString::null, DECOR_BORDER, 0, 0, 0, 0, 0, 0, 0, 0, 2, 2),
      letraLista(std::make_unique<FXFont>(getApp(), letra, 8)) {
  auto* columna = new FXVerticalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 4, 4, 4, 4);
  auto* grupo = new FXGroupBox(columna, FXString::null, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* cuerpo = new FXHorizontalFrame(grupo, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  ArmaCampos(new FXMatrix(cuerpo, 3, MATRIX_BY_COLUMNS | LAYOUT_FILL_X | LAYOUT_FILL_Y));
  auto* marco = new FXVerticalFrame(cuerpo, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0,
                                    0, 0, 0, 0, 0, 0);
  lstFilas = new FXList(marco, this, ID_LISTA,
                        LIST_BROWSESELECT | HSCROLLER_NEVER | LAYOUT_FIX_WIDTH | LAYOUT_FILL_Y, 0, 0, ancho);
  lstFilas->setNumVisible(10);
  lstFilas->setFont(letraLista.get());
}

template <class Ventana>
void Buscador<Ventana>::ArmaCampos(FXMatrix* matriz) {
  constexpr FXuint campo = FRAME_SUNKEN | FRAME_THICK | TEXTFIELD_LIMITED | LAYOUT_CENTER_Y;
  constexpr FXuint etiqueta = LABEL_NORMAL | LAYOUT_CENTER_Y;
  new FXLabel(matriz, "Buscar: ", nullptr, etiqueta | JUSTIFY_RIGHT);
  txtBuscar = new CampoDeTexto(matriz, 20, this, ID_BUSCAR, campo);
  Boton(matriz, "&Aceptar", iconos::ok_icon, ID_ACEPTAR, BUTTON_INITIAL | BUTTON_DEFAULT | LAYOUT_FILL_X);
  new FXLabel(matriz, "Filtro:", nullptr, etiqueta);
  auto* marco = new FXHorizontalFrame(matriz, LAYOUT_CENTER_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  txtFiltro = new CampoDeTexto(marco, 20, &filtro.destino, FXDataTarget::ID_VALUE, campo);
  Boton(marco, " ", iconos::find_icon, ID_FILTRO, LAYOUT_CENTER_Y);
  Boton(matriz, "&Cerrar", iconos::cerrar_icon, ID_CANCEL, LAYOUT_FILL_X);
}

template <class Ventana>
FXButton* Buscador<Ventana>::Boton(FXComposite* padre, const char* texto, const unsigned char* dibujo,
                                   FXSelector mensaje, FXuint opciones) {
  return NuevoBoton(padre, texto, icono(getApp(), dibujo), this, mensaje, opciones);
}

template <class Ventana>
void Buscador<Ventana>::Muestra(int fila) {
  if (fila >= lstFilas->getNumItems()) return;
  lstFilas->setCurrentItem(fila);
  lstFilas->makeItemVisible(fila);
}

template <class Ventana>
long Buscador<Ventana>::onCmdAceptar(FXObject*, FXSelector, void*) {
  CopiaTexto(Ventana::Resultado(), clave.valor.text());
  return handle(this, FXSEL(SEL_COMMAND, ID_ACCEPT), nullptr);
}

template <class Ventana>
long Buscador<Ventana>::onCmdLista(FXObject*, FXSelector, void*) {
  const FXint fila = lstFilas->getCurrentItem();
  if (fila < 0) return 1;
  const FXString renglon = lstFilas->getItemText(fila);
  clave.valor = renglon.left(static_cast<FXint>(LargoUtf8(renglon.text(), Ventana::corte)));
  txtBuscar->setText(clave.valor);
  return 1;
}

template <class Ventana>
long Buscador<Ventana>::onCmdBuscar(FXObject*, FXSelector, void*) {
  const FXString escrito = txtBuscar->getText();
  FXString inicio = escrito;
  inicio.trim();
  int posicion = 0;
  for (const auto& [fila, registro] : Ventana::Filas()) {
    if (strncmp(Ventana::Buscada(registro), inicio.text(), inicio.length()) == 0) {
      Muestra(posicion);
      return 1;
    }
    ++posicion;
  }
  const FXint queda = std::max(inicio.length() - 1, 0);
  txtBuscar->setText(escrito.left(static_cast<FXint>(LargoUtf8(escrito.text(), queda))));
  return 1;
}

template <class Ventana>
long Buscador<Ventana>::onCmdFiltro(FXObject*, FXSelector, void*) {
  txtBuscar->disable();
  lstFilas->clearItems();
  static_cast<Ventana*>(this)->Filtra();
  return 1;
}
