// A nameless file in memory, to take what is written to a descriptor or to give a program its input.
#pragma once

#include <string>

namespace pruebas {

class Memoria {
 public:
  /// Holds `contenido`, with the read and write position at its start. Throws std::system_error.
  explicit Memoria(const std::string& contenido = "");
  ~Memoria();
  Memoria(const Memoria&) = delete;
  Memoria& operator=(const Memoria&) = delete;

  int fd() const { return fd_; }
  /// All of it; positions stay where they are.
  std::string Texto() const;

 private:
  int fd_;
};

}  // namespace pruebas
