// The real program, from outside: what main does with a text that nobody catches.
#include <gtest/gtest.h>

#include "tests/support/Pantalla.h"
#include "tests/support/Proceso.h"

namespace pruebas {
namespace {

TEST(main, UnTextoQueNadieAtrapaSeEscribeEnUnaLineaYTerminaBien) {
  App();  // the screen
  const CarpetaTemporal casa;
  const Resultado fin = Corre({{TOLVARA_PROGRAMA},
                               "",
                               {"HOME=" + casa.Ruta().string(), "LD_PRELOAD=" TOLVARA_RELOJ_ROTO,
                                // the sanitizer's library comes second here
                                "ASAN_OPTIONS=verify_asan_link_order=0"}});
  EXPECT_EQ(fin.codigo, 0);
  EXPECT_EQ(fin.salida, "El reloj se paró\n");
}

}  // namespace
}  // namespace pruebas
