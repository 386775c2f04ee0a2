#include "tests/support/Mandatos.h"

#include <dlfcn.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace pruebas {
namespace {

Mandatos* presente = nullptr;

}  // namespace

Mandatos::Mandatos(const std::string& carpeta)
    : programas_(lugar_.Ruta() / carpeta),
      registro_(lugar_.Ruta() / "registro"),
      anterior_(std::filesystem::current_path()),
      camino_(getenv("PATH")) {
  if (presente) throw std::logic_error("ya hay unos Mandatos");
  std::filesystem::create_directory(programas_);
  std::filesystem::create_directory(lugar_.Ruta() / "trabajo");
  std::filesystem::current_path(lugar_.Ruta() / "trabajo");
  setenv("PATH", programas_.c_str(), 1);
  presente = this;
}

Mandatos::~Mandatos() {
  presente = nullptr;
  setenv("PATH", camino_.c_str(), 1);
  std::filesystem::current_path(anterior_);
}

void Mandatos::Pon(const std::string& programa) {
  const std::filesystem::path archivo = programas_ / programa;
  // Each text ends with a zero byte; the file takes its name once it is whole.
  std::ofstream(archivo) << "#!/bin/sh\n"
                         << "printf '%s\\0' \"${0##*/}\" \"$@\" >" << registro_ << ".$$\n"
                         << "exec /bin/mv " << registro_ << ".$$ " << registro_ << "\n";
  std::filesystem::permissions(archivo, std::filesystem::perms::owner_all);
}

void Mandatos::Quita(const std::string& programa) { std::filesystem::remove(programas_ / programa); }

bool Mandatos::HayLlamada() const { return std::filesystem::exists(registro_); }

Textos Mandatos::Llamada() {
  for (int i = 0; i < 1000 && !HayLlamada(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  const std::string todo = Contenido(registro_);
  std::filesystem::remove(registro_);
  Textos textos;
  for (size_t desde = 0, fin; (fin = todo.find('\0', desde)) != std::string::npos; desde = fin + 1)
    textos.push_back(todo.substr(desde, fin - desde));
  return textos;
}

std::string Contenido(const std::filesystem::path& archivo) {
  std::ifstream entrada(archivo, std::ios::binary);
  if (!entrada) throw std::runtime_error("no hay " + archivo.string());
  return {std::istreambuf_iterator<char>(entrada), {}};
}

}  // namespace pruebas

/// In the place of the library's own.
extern "C" int system(const char* mandato) {
  static const auto verdadera = reinterpret_cast<int (*)(const char*)>(dlsym(RTLD_NEXT, "system"));
  if (pruebas::presente) pruebas::presente->Anota(mandato);
  return verdadera(mandato);
}
