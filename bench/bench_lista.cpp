// Filling the sorted list in key order, as the server answers, against the standard list without any order.
#include <malloc.h>

#include <list>
#include <vector>

#include "bench/Medida.h"
#include "bench/cRenglon.h"
#include "widgets/lista.h"

namespace {

constexpr int Colonias = 145000;  // a national table of neighbourhoods
constexpr int Vueltas = 31;

std::vector<cRenglon> EnOrden(int cuantas) {
  std::vector<cRenglon> filas;
  for (int clave = 1; clave <= cuantas; ++clave) filas.emplace_back(clave);
  return filas;
}

/// Seconds to put the rows into an empty container; it is emptied outside the measure.
template <class Contenedor, class Pone>
double Llenado(const std::vector<cRenglon>& filas, Pone pone) {
  Contenedor contenedor;
  return medida::SegundosDeProcesador([&] {
    for (const cRenglon& fila : filas) pone(contenedor, fila);
  });
}

double Insertar(const std::vector<cRenglon>& filas) {
  return Llenado<lista<cRenglon>>(filas, [](auto& l, const cRenglon& fila) { l.Insertar(fila); });
}

double PushBack(const std::vector<cRenglon>& filas) {
  return Llenado<std::list<cRenglon>>(filas, [](auto& l, const cRenglon& fila) { l.push_back(fila); });
}

/// With memory fresh from the system, as at the first load of a program: otherwise a short list would get the
/// nodes of the one before it, warm in the processor's cache, and a long one could not.
double InsertarEnFrio(const std::vector<cRenglon>& filas) {
  malloc_trim(0);
  return Insertar(filas);
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  const std::vector<cRenglon> muchas = EnOrden(Colonias);
  const std::vector<cRenglon> pocas = EnOrden(Colonias / 10);
  informe.Escribe("lista::Insertar en orden",
                  medida::Compara(
                      Vueltas, [&] { return Insertar(muchas); }, [&] { return PushBack(muchas); }),
                  3);
  informe.Escribe("lista::Insertar de diez veces las filas",
                  medida::Compara(
                      Vueltas, [&] { return InsertarEnFrio(muchas); }, [&] { return InsertarEnFrio(pocas); }),
                  12);
  return informe.Codigo();
}
