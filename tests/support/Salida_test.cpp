#include "tests/support/Salida.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>

namespace pruebas {
namespace {

TEST(Salida, TomaLosTresCaminosEnOrden) {
  const Salida salida;
  std::cout << "uno ";
  std::printf("dos ");
  std::cout << "tres" << std::endl;
  std::fflush(stdout);
  EXPECT_EQ(write(STDOUT_FILENO, "cuatro", 6), 6);
  EXPECT_EQ(salida.Texto(), "uno dos tres\ncuatro");
  EXPECT_EQ(salida.Lineas(), (Textos{"uno dos tres", "cuatro"}));
}

TEST(Salida, GuardaRenglonesVacios) {
  const Salida salida;
  std::cout << "\na\n\n";
  EXPECT_EQ(salida.Lineas(), (Textos{"", "a", ""}));
}

TEST(Salida, NoTomaLoDeAntesNiLoDeDespues) {
  const Salida fuera;
  std::cout << "antes ";
  {
    const Salida dentro;
    EXPECT_EQ(dentro.Texto(), "");
    std::cout << "dentro";
    EXPECT_EQ(dentro.Texto(), "dentro");
  }
  std::cout << "después";
  EXPECT_EQ(fuera.Texto(), "antes después");
}

TEST(Salida, DejaEnPazLaSalidaDeErrores) {
  const Salida salida;
  std::cerr << "";
  std::fputs("", stderr);
  EXPECT_EQ(write(STDERR_FILENO, "", 0), 0);
  EXPECT_EQ(salida.Texto(), "");
}

TEST(Salida, TomaMuchoTexto) {
  const Salida salida;
  const std::string mucho(300'000, 'x');
  std::cout << mucho;
  EXPECT_TRUE(salida.Texto() == mucho);
}

}  // namespace
}  // namespace pruebas
