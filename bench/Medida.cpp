#include "bench/Medida.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>

namespace medida {

double MemoriaPropia(pid_t pid) {
  std::ifstream mapa("/proc/" + std::to_string(pid) + "/smaps_rollup");
  const std::string campo = "Anonymous:";
  for (std::string linea; std::getline(mapa, linea);) {
    if (linea.compare(0, campo.size(), campo) == 0) return std::stod(linea.substr(campo.size()));
  }
  throw std::runtime_error("el sistema no dice la memoria del programa");
}

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
