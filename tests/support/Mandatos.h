// The commands that the program hands to the shell, and the programs that it then finds.
//
//   Mandatos mandatos;
//   mandatos.Pon("lpr");                 // stands in for it, and keeps what it is called with
//   Reporte::Imprimir();
//   EXPECT_EQ(mandatos.Dichos(), Textos{"lpr -l reporte.txt"});
//   EXPECT_EQ(mandatos.Llamada(), (Textos{"lpr", "-l", "reporte.txt"}));
#pragma once

#include <filesystem>
#include <string>

#include "tests/support/Proceso.h"
#include "tests/support/Textos.h"

namespace pruebas {

/// While it lives, every command given to system() is recorded and still run, the path has one folder of its
/// own, with nothing in it but what the test puts there, and the working directory is a new one. One at a
/// time.
class Mandatos {
 public:
  /// `carpeta` is the name of the folder of the path.
  explicit Mandatos(const std::string& carpeta = "bin");
  ~Mandatos();
  Mandatos(const Mandatos&) = delete;
  Mandatos& operator=(const Mandatos&) = delete;

  /// A program of that name, which records its arguments.
  void Pon(const std::string& programa);
  void Quita(const std::string& programa);

  /// The commands so far.
  const Textos& Dichos() const { return dichos_; }
  /// Waits for the program that was started and gives its name and arguments, once.
  Textos Llamada();
  /// Has any program been called and not been asked for with Llamada?
  bool HayLlamada() const;

  /// The folder of the programs.
  const std::filesystem::path& Carpeta() const { return programas_; }

  /// The hook behind system(); not for tests.
  void Anota(const char* mandato) { dichos_.emplace_back(mandato); }

 private:
  CarpetaTemporal lugar_;
  std::filesystem::path programas_;
  std::filesystem::path registro_;
  std::filesystem::path anterior_;
  std::string camino_;
  Textos dichos_;
};

/// All bytes of a file; throws std::runtime_error when there is none.
std::string Contenido(const std::filesystem::path& archivo);

}  // namespace pruebas
