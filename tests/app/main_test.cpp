// The real program, from outside: what main does with a text that nobody catches.
#include <gtest/gtest.h>

#include "tests/support/Pantalla.h"
#include "tests/support/Proceso.h"

namespace pruebas {
namespace {

TEST(main, UnTextoQueNadieAtrapaSeEscribeEnUnaLineaYTerminaBien) {
  App();  // the screen
  const CarpetaTemporal casa;
  // Standard output alone. The sanitizer's library comes second here, and the toolkit leaves behind what it
  // held as the text passed.
  const std::string sanitario = "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0";
  const Resultado fin =
      Corre({{"sh", "-c", "exec \"$0\" 2>/dev/null", TOLVARA_PROGRAMA},
             "",
             {"HOME=" + casa.Ruta().string(), "LD_PRELOAD=" TOLVARA_RELOJ_ROTO, sanitario}});
  EXPECT_EQ(fin.codigo, 0);
  EXPECT_EQ(fin.salida, "El reloj se paró\n");
}

TEST(main, SinPantallaLoDiceYTerminaConUno) {
  const CarpetaTemporal casa;
  for (const char* const pantalla : {"", ":4567", "no es una pantalla", "%s%n"}) {
    const Resultado fin = Corre({{TOLVARA_PROGRAMA},
                                 "",
                                 {"HOME=" + casa.Ruta().string(), "DISPLAY=" + std::string(pantalla),
                                  "ASAN_OPTIONS=detect_leaks=0"}});
    EXPECT_EQ(fin.codigo, 1) << pantalla;
    EXPECT_EQ(fin.salida, "No hay pantalla: abra el programa desde una sesión gráfica.\n") << pantalla;
  }
}

}  // namespace
}  // namespace pruebas
