#include "tests/support/Salida.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <iostream>
#include <sstream>

namespace pruebas {
namespace {

// std::cout and C share one buffer, which this empties.
void Descarga() { std::cout.flush(); }

}  // namespace

Salida::Salida() {
  Descarga();
  verdadera_ = dup(STDOUT_FILENO);
  dup2(captura_.fd(), STDOUT_FILENO);
}

Salida::~Salida() {
  Descarga();
  dup2(verdadera_, STDOUT_FILENO);
  close(verdadera_);
  if (testing::Test::HasFailure()) std::cout << captura_.Texto() << std::flush;
}

std::string Salida::Texto() const {
  Descarga();
  return captura_.Texto();
}

Textos Salida::Lineas() const {
  Textos lineas;
  std::istringstream texto(Texto());
  for (std::string linea; std::getline(texto, linea);) lineas.push_back(linea);
  return lineas;
}

}  // namespace pruebas
