// A text that its record keeps with blanks behind it and the screen shows without.
#pragma once

#include "framework/Campos.h"

/// `ancho` bytes in the record; an empty one has no blanks.
template <int ancho>
struct DatoRellenado : DatoTexto {
  void Pon(const char* nuevo) { DatoTexto::Pon(FXString(nuevo).trimEnd()); }
  FXString Valor() const { return valor.empty() ? valor : FXStringFormat("%-*s", ancho, valor.text()); }
};
