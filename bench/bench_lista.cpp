// Filling the sorted list in key order, as the server answers, against the standard list without any order.
#include <list>
#include <vector>

#include "bench/Medida.h"
#include "bench/cRenglon.h"
#include "widgets/lista.h"

namespace {

constexpr int Colonias = 145000;  // a national table of neighbourhoods
constexpr int Vueltas = 15;

std::vector<cRenglon> EnOrden(int cuantas) {
  std::vector<cRenglon> filas;
  for (int clave = 1; clave <= cuantas; ++clave) filas.emplace_back(clave);
  return filas;
}

/// Seconds to put the rows into an empty container; it is emptied outside the measure.
template <class Contenedor, class Pone>
double Llenado(const std::vector<cRenglon>& filas, Pone pone) {
  Contenedor contenedor;
  return medida::Segundos([&] {
    for (const cRenglon& fila : filas) pone(contenedor, fila);
  });
}

double Insertar(const std::vector<cRenglon>& filas) {
  return Llenado<lista<cRenglon>>(filas, [](auto& l, const cRenglon& fila) { l.Insertar(fila); });
}

double PushBack(const std::vector<cRenglon>& filas) {
  return Llenado<std::list<cRenglon>>(filas, [](auto& l, const cRenglon& fila) { l.push_back(fila); });
}

/// The mean of several fills: a short one alone is at the mercy of the clock.
double InsertarVarias(int veces, const std::vector<cRenglon>& filas) {
  double total = 0;
  for (int vez = 0; vez < veces; ++vez) total += Insertar(filas);
  return total / veces;
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  const std::vector<cRenglon> muchas = EnOrden(Colonias);
  const std::vector<cRenglon> pocas = EnOrden(Colonias / 10);
  const auto inserta = [&] { return Insertar(muchas); };
  informe.Escribe("lista::Insertar en orden",
                  medida::Compara(Vueltas, inserta, [&] { return PushBack(muchas); }), 3);
  informe.Escribe("lista::Insertar de diez veces las filas",
                  medida::Compara(Vueltas, inserta, [&] { return InsertarVarias(10, pocas); }), 12);
  return informe.Codigo();
}
