// A list of texts, the shape in which the tests compare nearly everything.
#pragma once

#include <string>
#include <vector>

namespace pruebas {

using Textos = std::vector<std::string>;

inline Textos operator+(Textos unos, const Textos& otros) {
  unos.insert(unos.end(), otros.begin(), otros.end());
  return unos;
}

inline std::string Repetida(const std::string& letra, size_t veces) {
  std::string texto;
  while (veces-- > 0) texto += letra;
  return texto;
}

}  // namespace pruebas
