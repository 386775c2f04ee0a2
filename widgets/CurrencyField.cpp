#include "widgets/CurrencyField.h"

#include <cmath>

void CurrencyField::set(const FXString& texto) {
  if (texto.contains(',') == 0) {
    valor = FXDoubleVal(texto);
    return;
  }
  FXString sinComas = texto;
  sinComas.substitute(",", "");
  valor = FXDoubleVal(sinComas);
}

FXString CurrencyField::get() const {
  const double factor = std::pow(10, 2);
  FXString texto;
  texto.format("%.2f", std::floor(valor * factor + 0.5) / factor);

  // A text without a point ("inf", "nan") is too short to get a comma.
  const FXint signo = texto[0] == '-' ? 1 : 0;
  for (FXint i = texto.length() - 3 - 3; i > signo; i -= 3) texto.insert(i, ",");
  return texto;
}
