// The rows of a form: a label and a field, bound to a member of the form.
//
// A row is one call that reads like the screen:  campoTexto(matriz, "Descripción:", 30, descri);
// The number of columns is also the longest text, in characters. A null label makes the field alone, for a
// row of several fields.
#pragma once

#include <fx.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <type_traits>

#include "widgets/CampoDeTexto.h"

/// A member of a form and what binds it to its field: what the user types is in `valor` at once, and Pon
/// shows in the field what the program stores. T is FXString, FXint or FXdouble. As every `Dato` it has Pon,
/// Vacia, which leaves it as in a form that was just opened, and Valor.
template <class T>
struct Dato {
  T valor{};
  FXDataTarget destino{valor};
  FXTextField* campo = nullptr;

  /// Stores a value and shows it, also in a field that is being edited.
  void Pon(const T& nuevo) {
    valor = nuevo;
    if (campo == nullptr) return;
    destino.handle(campo, FXSEL(SEL_UPDATE, FXDataTarget::ID_VALUE), nullptr);
    CampoDeTexto::Olvida(campo);
  }
  /// Nothing: no text, or 0.
  void Vacia() { Pon(T{}); }
  /// What the field holds.
  const T& Valor() const { return valor; }
};

using DatoTexto = Dato<FXString>;
using DatoEntero = Dato<FXint>;
using DatoReal = Dato<FXdouble>;

/// The same for a text of several lines, whose widget nothing binds: Pon and Valor carry the text across.
struct DatoParrafo {
  FXString valor;
  FXText* campo = nullptr;

  void Pon(const FXString& nuevo) {
    valor = nuevo;
    campo->setText(valor);
  }
  void Vacia() { Pon({}); }
  const FXString& Valor() { return valor = campo->getText(); }
};

/// A whole number with more digits than an FXint has; nothing in the field is 0.
struct DatoLargo : DatoTexto {
  void Pon(long nuevo) { DatoTexto::Pon(FXString(std::to_string(nuevo).c_str())); }
  void Vacia() { Pon(0); }
  long Valor() const { return strtol(valor.text(), nullptr, 10); }
};

/// A check button whose state is the value, one of two. A text that is read and is neither unchecks it; a
/// number is the state itself, so that one beyond both shows as the toolkit's third state.
template <class T>
class DatoCasilla {
 public:
  DatoCasilla(const T& si, const T& no) : si(si), no(no) {}
  void Pon(const T& nuevo) {
    if constexpr (std::is_same_v<T, FXString>) {
      boton->setCheck(nuevo == si);
    } else {
      boton->setCheck(static_cast<FXbool>(nuevo));
    }
  }
  void Vacia() { Pon(T{}); }
  T Valor() const { return boton->getCheck() ? si : no; }

  FXCheckButton* boton = nullptr;

 private:
  T si;
  T no;
};

/// A check button that says "S" or "N" from the moment it is pressed; until then what was read stays as it
/// is.
class DatoSN {
 public:
  void Pon(const char* nuevo) {
    valor = nuevo;
    boton->setCheck(valor == "S");
  }
  void Vacia() { Pon("N"); }
  const FXString& Valor() const { return valor; }
  /// What the handler of the button does.
  long Elige() {
    valor = boton->getCheck() ? "S" : "N";
    return 1;
  }

  FXCheckButton* boton = nullptr;

 private:
  FXString valor;
};

/// A combo box of which the number of the current item is the value, -1 for none. A number that it does not
/// have leaves it without one.
struct DatoOpcion {
  void Pon(int nuevo);
  void Vacia() { Pon(-1); }
  FXint Valor() const { return combo->getCurrentItem(); }

  FXComboBox* combo = nullptr;
};

/// A text field as wide as its columns, and narrower where its row has no room for them.
class Campo : public CampoDeTexto {
 public:
  using CampoDeTexto::CampoDeTexto;
  void position(FXint x, FXint y, FXint ancho, FXint alto) override {
    FXTextField::position(x, y, FXMIN(ancho, getDefaultWidth()), alto);
  }

 protected:
  Campo() {}
};

/// The field of a short code, wide enough for capitals of any kind; a column is otherwise one digit wide.
class CampoCodigo : public Campo {
 public:
  using Campo::Campo;
  FXint getDefaultWidth() override {
    return padleft + padright + 2 * border + columns * font->getTextWidth("W", 1);
  }
};

/// A field for real numbers. Shows as many digits as the number needs to be told from its neighbours, without
/// an exponent; a number that came out of a single-precision column is shown as that column holds it.
class CampoReal : public Campo {
  FXDECLARE(CampoReal)
 public:
  using Campo::Campo;
  long onCmdSetRealValue(FXObject*, FXSelector, void* valor);

 protected:
  CampoReal() {}
};

/// A combo box for the keyboard too: a letter, F4 and Alt with the down arrow open its list; there the keys
/// that move in a list only look, Enter takes the item, Escape keeps the one before, and no other key reaches
/// what lies behind.
class CampoOpciones : public FXComboBox {
  FXDECLARE(CampoOpciones)
 public:
  using FXComboBox::FXComboBox;
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);
  long onKeyRelease(FXObject* emisor, FXSelector sel, void* evento);
  long onUpdate(FXObject* emisor, FXSelector sel, void* datos);
  void killFocus() override;

 protected:
  CampoOpciones() {}

 private:
  void Abre();
  void Cierra();
  void Mira(void* evento);
  void Toma();

  static constexpr FXint nada = -2;
  FXint elegida = nada;  // the item before the user began to look around
};

/// A row of several fields: its label, if any, and the frame that they go into.
FXComposite* campoRenglon(FXMatrix* matriz, const char* etiqueta);

/// A further matrix in the box of `matriz`, which leaves it what its own rows do not need.
FXMatrix* campoMatriz(FXMatrix* matriz, int columnas);

/// The key: acts on Enter only. `lado` is JUSTIFY_LEFT or JUSTIFY_RIGHT; one that is a number takes nothing
/// else.
void campoClave(FXComposite* padre, const char* etiqueta, int columnas, DatoTexto& dato);
void campoClave(FXComposite* padre, const char* etiqueta, int columnas, DatoEntero& dato,
                FXuint lado = JUSTIFY_LEFT);
void campoTexto(FXComposite* padre, const char* etiqueta, int columnas, DatoTexto& dato,
                FXuint opciones = JUSTIFY_LEFT);
/// The same for a code of few letters.
void campoCodigo(FXComposite* padre, const char* etiqueta, int columnas, DatoTexto& dato);
/// Takes real numbers only, right-justified.
void campoReal(FXComposite* padre, const char* etiqueta, int columnas, DatoReal& dato, FXuint opciones = 0);
/// Takes what `filtro` lets through, right-justified; the whole number at its start counts.
void campoEntero(FXComposite* padre, const char* etiqueta, int columnas, DatoEntero& dato,
                 FXuint filtro = TEXTFIELD_INTEGER);
void campoEntero(FXComposite* padre, const char* etiqueta, int columnas, DatoLargo& dato);
/// Shows that many rows and columns, and takes a text of any length; lines are wrapped between words.
void campoParrafo(FXMatrix* matriz, const char* etiqueta, int filas, int columnas, DatoParrafo& dato);
/// A box to check, which sends `mensaje` to `destino`.
FXCheckButton* campoCasilla(FXComposite* padre, const char* etiqueta, FXObject* destino = nullptr,
                            FXSelector mensaje = 0);
/// A combo box to choose from, as wide as its column, which shows that many items and sends `mensaje` to
/// `destino`.
FXComboBox* campoCombo(FXComposite* padre, const char* etiqueta, int visibles, FXObject* destino = nullptr,
                       FXSelector mensaje = 0);

/// Gives a combo box the small letters of the accounts, in a font of its own, which has to outlive its use.
std::unique_ptr<FXFont> LetraChica(FXComboBox* combo);
