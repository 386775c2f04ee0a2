#include "tests/support/Salida.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <sstream>

namespace pruebas {
namespace {

void Descarga() {
  std::cout.flush();
  std::fflush(stdout);
}

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
