// Windows under test: finding a widget by what the screen shows, and acting on it as a user does.
//
// Widgets are found by their labels. A label given with "&" has to match its shortcut too; without, only the
// text counts. What is not found, or cannot be used by a user (hidden, disabled, not created), is a
// std::runtime_error whose text lists what there is. Actions send the toolkit the events of mouse and
// keyboard, so that limits, filters, focus and notifications work as on a desktop, and then bring the screen
// up to date.
#pragma once

#include <fx.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/Textos.h"

namespace pruebas {

/// All widgets of a kind inside `raiz`, in the order of their creation; one inside another follows it.
template <class T>
std::vector<T*> Todos(FXWindow* raiz) {
  std::vector<T*> hallados;
  for (FXWindow* hijo = raiz->getFirst(); hijo; hijo = hijo->getNext()) {
    if (T* hallado = dynamic_cast<T*>(hijo)) hallados.push_back(hallado);
    const std::vector<T*> dentro = Todos<T>(hijo);
    hallados.insert(hallados.end(), dentro.begin(), dentro.end());
  }
  return hallados;
}

/// The text of a label, button or menu entry as it was given, with its "&".
std::string Rotulo(const FXLabel* pieza);
std::string Rotulo(const FXMenuCaption* pieza);

/// The plain labels of a window (no buttons), in order, with their "&".
Textos Etiquetas(FXWindow* raiz);
/// The labels of its buttons.
Textos Botones(FXWindow* raiz);

/// The button with that label.
FXButton* Boton(FXWindow* raiz, const std::string& rotulo);
/// The group box with that title.
FXGroupBox* Grupo(FXWindow* raiz, const std::string& titulo);
/// The first list, or number `cual`.
FXList* Lista(FXWindow* raiz, size_t cual = 0);
/// The entry of a menu pane that belongs to `duena`, cascades included.
FXMenuCommand* Opcion(FXWindow* duena, const std::string& rotulo);

/// Brings up a page of a book by its number; the pieces of the others are out of a user's reach.
void Hojea(FXWindow* raiz, FXint pagina);

/// The widget right after the label "etiqueta" in its matrix, or inside that widget. Number `cual` of those
/// whose label reads so.
FXWindow* PiezaJuntoA(FXWindow* raiz, const std::string& etiqueta, size_t cual = 0);
[[noreturn]] void NoHallado(FXWindow* raiz, const std::string& que);
template <class T>
T* JuntoA(FXWindow* raiz, const std::string& etiqueta, size_t cual = 0) {
  FXWindow* const pieza = PiezaJuntoA(raiz, etiqueta, cual);
  if (T* hallado = dynamic_cast<T*>(pieza)) return hallado;
  const std::vector<T*> dentro = Todos<T>(pieza);
  if (dentro.empty()) NoHallado(raiz, "una pieza de ese tipo junto a " + etiqueta);
  return dentro.front();
}
/// The text field right after a label.
inline FXTextField* CampoJuntoA(FXWindow* raiz, const std::string& etiqueta, size_t cual = 0) {
  return JuntoA<FXTextField>(raiz, etiqueta, cual);
}
/// The text that the field right after a label shows.
std::string Leido(FXWindow* raiz, const std::string& etiqueta, size_t cual = 0);

/// Is it created, enabled, and visible with all that it is in?
bool Usable(FXWindow* pieza);

/// A click of the left button in the middle of a button, check box or the like; a menu entry is chosen.
void Pulsa(FXWindow* pieza);
/// Focus, everything selected, and `texto` (UTF-8) typed over it, key by key, in a text field or an FXText. A
/// line end is the Enter key.
void Escribe(FXWindow* campo, const std::string& texto);
/// The same in the field right after a label.
void Escribe(FXWindow* raiz, const std::string& etiqueta, const std::string& texto);
/// One key (KEY_Return, KEY_Escape, KEY_Tab...) for the window in which `pieza` is, after giving it the
/// focus.
void Tecla(FXWindow* pieza, FXuint codigo, FXuint estado = 0, const std::string& texto = "");
/// A click on a row of a list.
void EligeRenglon(FXList* lista, FXint renglon);
/// A click on an item of a folding list that is unfolded.
void EligeRenglon(FXFoldingList* lista, FXFoldingItem* renglon);
/// A double click on a cell of a table.
void PulsaDosVeces(FXTable* tabla, FXint renglon, FXint columna);
/// A choice in a combo box; tells its target.
void EligeOpcion(FXComboBox* combo, FXint opcion);

/// Lets the event loop run for a while, then brings every widget up to date with its target.
void Bombea(FXuint milisegundos = 1);
/// Lets the event loop run until the condition holds; false when it does not within the time.
bool BombeaHasta(const std::function<bool()>& condicion, FXuint milisegundos = 20000);

/// A main window with nothing but an area for child forms, closed with the object together with all its forms
/// and dialogs:
///
///   Area area;
///   auto* const forma = area.Abre<Monedas_Window>();
class Area {
 public:
  Area();
  ~Area();
  Area(const Area&) = delete;
  Area& operator=(const Area&) = delete;

  /// A new form of that class, shown and ready for the user. A dialog stands on the screen without being run.
  template <class Forma>
  Forma* Abre() {
    Forma* forma;
    if constexpr (std::is_base_of_v<FXDialogBox, Forma>) {
      forma = new Forma(ventana_);
      dialogos_.emplace_back(forma);
    } else {
      forma = new Forma(cliente_, menu_);
    }
    forma->create();
    forma->show();
    Bombea();
    return forma;
  }

 private:
  FXMainWindow* ventana_;
  FXMDIClient* cliente_;
  FXMDIMenu* menu_;
  std::vector<std::unique_ptr<FXDialogBox>> dialogos_;
};

}  // namespace pruebas
