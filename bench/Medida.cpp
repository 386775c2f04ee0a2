#include "bench/Medida.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace medida {

double Razones::Cuantil(double parte) const {
  std::vector<double> orden = razones;
  std::sort(orden.begin(), orden.end());
  return orden[static_cast<size_t>(parte * static_cast<double>(orden.size() - 1) + 0.5)];
}

Informe::Informe(int argc, char* argv[]) {
  exige = std::any_of(argv, argv + argc, [](const char* opcion) { return strcmp(opcion, "--exige") == 0; });
}

void Informe::Escribe(const char* que, const Razones& razones, double limite) {
  const double mediana = razones.Cuantil(0.5);
  printf("%s: %.2f (límite %g; cuartiles %.2f y %.2f)\n", que, mediana, limite, razones.Cuantil(0.25),
         razones.Cuantil(0.75));
  fflush(stdout);
  excedido = excedido || mediana > limite;
}

}  // namespace medida
