// An amount of money between a text field, "1,234.50", and a double. A value, not a widget.
#pragma once

#include <fx.h>

class CurrencyField {
 public:
  explicit CurrencyField(const FXString& texto) { set(texto); }
  explicit CurrencyField(double valor) : valor(valor) {}

  /// Reads a number with or without thousands commas; a text that is no number is 0.
  void set(const FXString& texto);

  /// The amount rounded to two decimals, halves towards positive infinity, with thousands commas.
  FXString get() const;
  operator FXString() const { return get(); }

  double asDouble() const { return valor; }

 private:
  double valor;
};
