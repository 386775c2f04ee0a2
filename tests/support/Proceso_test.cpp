#include "tests/support/Proceso.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

namespace pruebas {
namespace {

bool Existe(pid_t pid) { return kill(pid, 0) == 0; }

// Waits up to five seconds.
bool Pasa(const std::function<bool()>& condicion) {
  for (int i = 0; i < 500 && !condicion(); ++i) usleep(10'000);
  return condicion();
}

TEST(Corre, DaCodigoYAmbasSalidas) {
  const Resultado resultado = Corre({{"sh", "-c", "echo uno; echo dos >&2; exit 3"}});
  EXPECT_EQ(resultado.codigo, 3);
  EXPECT_EQ(resultado.salida, "uno\ndos\n");
}

TEST(Corre, PasaArgumentosSinInterpretarlos) {
  EXPECT_EQ(CorreBien({{"printf", "%s|", "$HOME", "a b", "`ls`; 'x'"}}), "$HOME|a b|`ls`; 'x'|");
}

TEST(Corre, DaLaEntrada) { EXPECT_EQ(CorreBien({{"cat"}, "línea\nsin fin"}), "línea\nsin fin"); }

TEST(Corre, PoneElEntornoEnLugarDelNuestro) {
  setenv("PRUEBA", "nuestra", 1);
  EXPECT_EQ(CorreBien({{"printenv", "PRUEBA", "PRUEBAS", "HOME"}, "", {"PRUEBA=dada", "PRUEBAS=otra"}}),
            "dada\notra\n" + std::string(getenv("HOME")) + "\n");
  unsetenv("PRUEBA");
}

TEST(Corre, UnProgramaQueNoExisteEs127) { EXPECT_EQ(Corre({{"no-hay-tal-programa"}}).codigo, 127); }

TEST(Corre, UnaSenalEs128YSuNumero) {
  EXPECT_EQ(Corre({{"sh", "-c", "kill -TERM $$"}}).codigo, 128 + SIGTERM);
}

TEST(CorreBien, LanzaLoQueElProgramaDijo) {
  try {
    CorreBien({{"sh", "-c", "echo la causa; exit 1"}});
    FAIL() << "no lanzó";
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string(error.what()).find("la causa"), std::string::npos) << error.what();
  }
}

TEST(Hijo, TerminaConElObjeto) {
  pid_t pid;
  {
    const Hijo hijo({{"sleep", "1000"}}, STDERR_FILENO, SIGTERM);
    pid = hijo.pid();
    EXPECT_TRUE(Existe(pid));
  }
  EXPECT_FALSE(Existe(pid));
}

TEST(Hijo, SabeQueAcaboPorSiMismo) {
  Hijo hijo({{"true"}}, STDERR_FILENO, SIGTERM);
  EXPECT_TRUE(Pasa([&] { return hijo.Acabo(); }));
}

// What stands in the way of a crash: the program is killed, and neither its child nor its folder stay.
TEST(Muerte, NoDejaHijosNiCarpetas) {
  int tubo[2];
  ASSERT_EQ(pipe(tubo), 0);
  const pid_t victima = fork();
  if (victima == 0) {
    const CarpetaTemporal carpeta;
    std::ofstream(carpeta.Ruta() / "resto") << "algo";
    const Hijo hijo({{"sleep", "1000"}}, STDERR_FILENO, SIGTERM);
    const std::string senas = std::to_string(hijo.pid()) + " " + carpeta.Ruta().string() + "\n";
    if (write(tubo[1], senas.data(), senas.size()) < 0) _exit(1);
    for (;;) pause();
  }
  close(tubo[1]);
  FILE* const lector = fdopen(tubo[0], "r");
  int hijo = 0;
  char ruta[512] = "";
  ASSERT_EQ(fscanf(lector, "%d %511s", &hijo, ruta), 2);
  fclose(lector);
  const std::filesystem::path carpeta = ruta;
  EXPECT_TRUE(Existe(hijo));
  EXPECT_TRUE(std::filesystem::exists(carpeta / "resto"));
  kill(victima, SIGKILL);
  waitpid(victima, nullptr, 0);
  EXPECT_TRUE(Pasa([&] { return !Existe(hijo); }));
  EXPECT_TRUE(Pasa([&] { return !std::filesystem::exists(carpeta); }));
}

TEST(Raiz, EsLaDelRepositorio) {
  EXPECT_TRUE(std::filesystem::exists(Raiz() / "tests" / "support" / "Proceso.h"));
}

}  // namespace
}  // namespace pruebas
