// Speed and size as ratios of two sides that are measured in one run, so that they mean the same on every
// machine.
//
// The sides take turns and each turn gives one ratio; what counts is the median of these, so a machine that
// is busy for a while disturbs both sides alike, and a single hiccup none.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <ctime>
#include <vector>

namespace medida {

/// Seconds that `obra` takes, waiting included.
template <class Obra>
double Segundos(Obra obra) {
  using Reloj = std::chrono::steady_clock;
  const Reloj::time_point inicio = Reloj::now();
  obra();
  return std::chrono::duration<double>(Reloj::now() - inicio).count();
}

/// Seconds of the processor that `obra` takes from this process. For work that never waits: what else the
/// machine does meanwhile does not count.
template <class Obra>
double SegundosDeProcesador(Obra obra) {
  const clock_t inicio = clock();
  obra();
  return static_cast<double>(clock() - inicio) / CLOCKS_PER_SEC;
}

/// Kilobytes of memory that belong to a process alone: what it has written. Pages as they stand in a file are
/// shared with whoever else runs the same library, so they tell more about the machine than about the
/// program. Throws std::runtime_error when the system does not tell.
double MemoriaPropia(pid_t pid);

/// The ratios of two sides, ours to the bare one, turn by turn.
class Razones {
 public:
  void Anota(double nuestra, double llana) { razones.push_back(nuestra / llana); }

  /// The ratio at `parte` (0 to 1) of all, sorted: 0.5 is the median. There must be one.
  double Cuantil(double parte) const;

 private:
  std::vector<double> razones;
};

/// Runs the sides in turn; each answers what it cost. The first turn warms the caches and does not count.
template <class Nuestra, class Llana>
Razones Compara(int vueltas, Nuestra nuestra, Llana llana) {
  Razones razones;
  for (int vuelta = 0; vuelta <= vueltas; ++vuelta) {
    const double nuestro = nuestra();
    const double llano = llana();
    if (vuelta > 0) razones.Anota(nuestro, llano);
  }
  return razones;
}

/// What a benchmark says, and how it ends.
class Informe {
 public:
  /// With "--exige" among the arguments, a ratio beyond its limit fails the program.
  Informe(int argc, char* argv[]);

  /// Writes a line such as "carga en map: 1.23 (límite 1.5; cuartiles 1.21 y 1.26)".
  void Escribe(const char* que, const Razones& razones, double limite);

  /// Exit code of the program.
  int Codigo() const { return exige && excedido ? 1 : 0; }

 private:
  bool exige = false;
  bool excedido = false;
};

}  // namespace medida
