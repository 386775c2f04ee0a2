// The rows of a form: a label and a field, bound to a member of the form.
//
// A row is one call that reads like the screen:  campoTexto(matriz, "Descripción:", 30, descri);
// The number of columns is also the longest text, in characters.
#pragma once

#include <fx.h>

/// A member of a form and what binds it to its field: the two stay equal without further code. T is FXString,
/// FXint or FXdouble.
template <class T>
struct Dato {
  T valor{};
  FXDataTarget destino{valor};
};

using DatoTexto = Dato<FXString>;
using DatoReal = Dato<FXdouble>;

/// A field for real numbers. Shows as many digits as the number needs to be told from its neighbours, without
/// an exponent; a number that came out of a single-precision column is shown as that column holds it.
class CampoReal : public FXTextField {
  FXDECLARE(CampoReal)
 public:
  CampoReal(FXComposite* padre, FXint columnas, FXObject* destino, FXSelector mensaje, FXuint opciones);
  long onCmdSetRealValue(FXObject*, FXSelector, void* valor);

 protected:
  CampoReal() {}
};

/// The key: acts on Enter only.
FXTextField* campoClave(FXMatrix* matriz, const char* etiqueta, int columnas, DatoTexto& dato);
FXTextField* campoTexto(FXMatrix* matriz, const char* etiqueta, int columnas, DatoTexto& dato);
/// Takes real numbers only, right-justified.
CampoReal* campoReal(FXMatrix* matriz, const char* etiqueta, int columnas, DatoReal& dato);
