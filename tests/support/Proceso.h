// Other programs: the one place where the tests start them.
//
// Programs are started with fork and exec from an argument list; no shell ever sees a text of ours. A program
// in the background dies with the test program, however that ends, and so does a temporary folder.
#pragma once

#include <sys/types.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "tests/support/Textos.h"

namespace pruebas {

/// What to run, and as whom.
struct Orden {
  Textos argumentos;          ///< the program (looked up on the path) and its arguments
  std::string entrada = {};   ///< its standard input
  Textos entorno = {};        ///< "NOMBRE=valor", on top of our own environment
  bool comoPostgres = false;  ///< when we are root: as the packaged user `postgres`
};

/// How a program ended.
struct Resultado {
  int codigo;          ///< exit code; 127 when it could not be started, 128 + signal when a signal ended it
  std::string salida;  ///< standard output and standard error, as they came
};

/// Runs a program to its end. Throws std::system_error when no process can be made.
Resultado Corre(const Orden& orden);

/// Like Corre, and throws std::runtime_error with all that the program wrote when its exit code is not 0.
std::string CorreBien(const Orden& orden);

/// A program in the background. The kernel sends it `alMorir` when the test program dies without a farewell.
class Hijo {
 public:
  /// Starts it with both outputs going to the descriptor `salida`, which the caller keeps.
  Hijo(const Orden& orden, int salida, int alMorir);
  /// Ends it with the same signal, unless it has ended.
  ~Hijo();
  Hijo(const Hijo&) = delete;
  Hijo& operator=(const Hijo&) = delete;

  pid_t pid() const { return pid_; }
  /// Sends it a signal that ends it and waits until it is gone.
  void Termina(int senal);
  /// Has it ended by itself?
  bool Acabo();

 private:
  pid_t pid_;
  int alMorir_;
};

/// A new temporary folder under $TMPDIR, removed with all its content once this program has ended, in
/// whatever way. A root-run test program leaves it open to the user `postgres`.
class CarpetaTemporal {
 public:
  CarpetaTemporal();
  const std::filesystem::path& Ruta() const { return ruta_; }

 private:
  std::filesystem::path ruta_;
};

/// The root of the repository that these tests belong to.
std::filesystem::path Raiz();

}  // namespace pruebas
