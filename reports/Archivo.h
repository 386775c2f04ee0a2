// A report as a file of the working directory, which it replaces.
#pragma once

#include <cstdio>
#include <memory>
#include <string_view>

/// One that cannot be opened takes all that is written and keeps nothing, in silence.
class Archivo {
 public:
  explicit Archivo(const char* nombre) : salida(fopen(nombre, "w"), fclose) {}
  void Escribe(std::string_view texto) {
    if (salida != nullptr) fwrite(texto.data(), 1, texto.size(), salida.get());
  }

 private:
  std::unique_ptr<FILE, int (*)(FILE*)> salida;
};
