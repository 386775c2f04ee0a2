#include "tests/support/Salida.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "tests/support/Memoria.h"

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
  const Memoria errores;
  const int verdadera = dup(STDERR_FILENO);
  dup2(errores.fd(), STDERR_FILENO);
  const Salida salida;
  std::cerr << "uno";
  dup2(verdadera, STDERR_FILENO);
  close(verdadera);
  EXPECT_EQ(errores.Texto(), "uno");
  EXPECT_EQ(salida.Texto(), "");
}

TEST(SalidaDeathTest, DevuelveElTextoDeUnaPruebaQueFalla) {
  EXPECT_EXIT(
      {
        dup2(STDERR_FILENO, STDOUT_FILENO);  // a death test looks at standard error
        {
          const Salida salida;
          std::cout << "lo que se escribió";
          ADD_FAILURE();
        }
        std::exit(0);
      },
      testing::ExitedWithCode(0), "lo que se escribió");
}

TEST(Salida, TomaMuchoTexto) {
  const Salida salida;
  const std::string mucho(300'000, 'x');
  std::cout << mucho;
  EXPECT_TRUE(salida.Texto() == mucho);
}

}  // namespace
}  // namespace pruebas
