// Standard output as a part of the behaviour: catches what a scope writes to it.
#pragma once

#include <string>

#include "tests/support/Memoria.h"
#include "tests/support/Textos.h"

namespace pruebas {

/// From its construction to its destruction all that goes to standard output, through std::cout or C, is kept
/// here instead. Other descriptors, standard error among them, are left alone. When the test has failed by
/// then, the destructor passes the text on, so that no failure message is lost. May be nested.
class Salida {
 public:
  Salida();
  ~Salida();
  Salida(const Salida&) = delete;
  Salida& operator=(const Salida&) = delete;

  /// All that was written so far.
  std::string Texto() const;
  /// The same, line by line, without line ends. A last line without its end counts as a line.
  Textos Lineas() const;

 private:
  Memoria captura_;
  int verdadera_;
};

}  // namespace pruebas
