// The rows of a form: a label and a field, bound to a member of the form.
//
// A row is one call that reads like the screen:  campoTexto(matriz, "Descripción:", 30, descri);
// The number of columns is also the longest text, in characters.
#pragma once

#include <fx.h>

/// A member of a form and what binds it to its field: what the user types is in `valor` at once, and Pon
/// shows in the field what the program stores. T is FXString, FXint or FXdouble.
template <class T>
struct Dato {
  T valor{};
  FXDataTarget destino{valor};
  FXTextField* campo = nullptr;

  /// Stores a value and shows it, also in a field that is being edited.
  void Pon(const T& nuevo) {
    valor = nuevo;
    if (campo != nullptr) destino.handle(campo, FXSEL(SEL_UPDATE, FXDataTarget::ID_VALUE), nullptr);
  }
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
  const FXString& Valor() { return valor = campo->getText(); }
};

/// A text field as wide as its columns, and narrower where its row has no room for them.
class Campo : public FXTextField {
 public:
  using FXTextField::FXTextField;
  void position(FXint x, FXint y, FXint ancho, FXint alto) override {
    FXTextField::position(x, y, FXMIN(ancho, getDefaultWidth()), alto);
  }

 protected:
  Campo() {}
};

/// The field of a text key, wide enough for capitals of any kind; a column is otherwise one digit wide.
class CampoClave : public Campo {
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

/// The key: acts on Enter only. `lado` is JUSTIFY_LEFT or JUSTIFY_RIGHT; one that is a number takes nothing
/// else.
void campoClave(FXMatrix* matriz, const char* etiqueta, int columnas, DatoTexto& dato);
void campoClave(FXMatrix* matriz, const char* etiqueta, int columnas, DatoEntero& dato,
                FXuint lado = JUSTIFY_LEFT);
void campoTexto(FXMatrix* matriz, const char* etiqueta, int columnas, DatoTexto& dato);
/// Takes real numbers only, right-justified.
void campoReal(FXMatrix* matriz, const char* etiqueta, int columnas, DatoReal& dato);
/// Shows that many rows and columns, and takes a text of any length; lines are wrapped between words.
void campoParrafo(FXMatrix* matriz, const char* etiqueta, int filas, int columnas, DatoParrafo& dato);
/// A box to check, which sends `mensaje` to `destino`.
FXCheckButton* campoCasilla(FXMatrix* matriz, const char* etiqueta, FXObject* destino, FXSelector mensaje);
