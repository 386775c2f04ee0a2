// Which viewer opens what, and that no letter of a name reaches the shell as anything but itself.
#include "reports/fxexecute.h"

#include <gtest/gtest.h>

#include "tests/support/Mandatos.h"

namespace pruebas {
namespace {

const Textos paraWeb = {"mozilla-firefox", "mozilla", "netscape", "konqueror", "dillo", "lynx", "firefox"};
const Textos paraPaginas = {"gsview", "acroread", "kghostview", "gpdf", "xpdf"};
const Textos paraHojas = {"oocalc", "oocalc2"};

Textos Todos() {
  Textos todos = paraWeb;
  todos.insert(todos.end(), paraPaginas.begin(), paraPaginas.end());
  todos.insert(todos.end(), paraHojas.begin(), paraHojas.end());
  return todos;
}

TEST(fxexecute, CadaClaseTieneSuLista) {
  const struct {
    const char* target;
    const Textos& lista;
  } casos[] = {
      {"http://servidor:3000/crea?usuarioid=7&x=1", paraWeb},
      {"HTTP://SERVIDOR", paraWeb},
      {"ftp://servidor/x.pdf", paraWeb},
      {"Ftp:x", paraWeb},
      {"pagina.htm", paraWeb},
      {"pagina.HTML", paraWeb},
      {"a.b/pagina.php", paraWeb},
      {"pagina.Asp", paraWeb},
      {"hoja.pdf", paraPaginas},
      {"HOJA.PDF", paraPaginas},
      {"hoja.ps", paraPaginas},
      {"reporte.csv", paraHojas},
      {"reporte.txt", paraHojas},
      {"reporte", paraHojas},
      {"https://servidor", paraHojas},
      {"mailto:alguien", paraHojas},
      {"pdf", paraHojas},
      {"x.htmlx", paraHojas},
      {"", paraHojas},
  };
  for (const auto& [target, lista] : casos) {
    SCOPED_TRACE(target);
    Mandatos mandatos;
    for (const std::string& programa : Todos()) mandatos.Pon(programa);
    // The first of the list that is there; with each that goes, the next.
    for (const std::string& programa : lista) {
      EXPECT_EQ(fxexecute(target), 0);
      EXPECT_EQ(mandatos.Llamada(), (Textos{programa, target}));
      EXPECT_EQ(mandatos.Dichos().back(),
                (mandatos.Carpeta() / programa).string() + " \"" + target + "\" >/dev/null 2>&1 & ");
      mandatos.Quita(programa);
    }
    EXPECT_EQ(fxexecute(target), 0);  // the others do not count
    EXPECT_EQ(mandatos.Dichos().size(), lista.size());
  }
}

const Textos hostiles = {
    "a\"; touch mal; \"b.csv",
    "a$(touch mal).csv",
    "a`touch mal`.csv",
    "a\\",
    "a\\\"; touch mal; \\\"",
    "\\$(touch mal)",
    "\\`touch mal\\`",
    "$HOME",
    "${PATH}.pdf",
    "a'; touch mal; '",
    "a; touch mal",
    "a & touch mal &",
    "a | touch mal",
    "a > mal",
    "a\ntouch mal\n",
    "a\" >mal \"",
    "http://x/?a=$(touch mal)&b=`touch mal`\";touch mal;\"",
    "* ? [a-z] ~ ! # {a,b}",
    "mi reporte de año.csv",
    "\xff\xfe\x80",
};

TEST(fxexecute, UnNombreHostilLlegaEnteroYNoMandaNada) {
  for (const std::string& nombre : hostiles) {
    SCOPED_TRACE(nombre);
    Mandatos mandatos;
    for (const std::string& programa : Todos()) mandatos.Pon(programa);
    std::filesystem::create_symlink("/usr/bin/touch", mandatos.Carpeta() / "touch");
    EXPECT_EQ(fxexecute(nombre.c_str()), 0);
    const Textos llamada = mandatos.Llamada();
    ASSERT_EQ(llamada.size(), 2u);
    EXPECT_EQ(llamada[1], nombre);
    EXPECT_TRUE(std::filesystem::is_empty("."));
  }
}

TEST(fxexecute, UnNombreConGuionNoEsUnaOpcion) {
  Mandatos mandatos;
  for (const std::string& programa : Todos()) mandatos.Pon(programa);
  fxexecute("-rm.csv");
  EXPECT_EQ(mandatos.Llamada(), (Textos{"oocalc", "./-rm.csv"}));
}

TEST(fxexecute, UnaCarpetaHostilEnElCaminoTampoco) {
  for (const char* const carpeta : {"mis programas", "a;touch mal", "a\"b", "a`touch mal`", "á"}) {
    SCOPED_TRACE(carpeta);
    Mandatos mandatos(carpeta);
    mandatos.Pon("oocalc");
    std::filesystem::create_symlink("/usr/bin/touch", mandatos.Carpeta() / "touch");
    EXPECT_EQ(fxexecute("reporte.csv"), 0);
    EXPECT_EQ(mandatos.Llamada(), (Textos{"oocalc", "reporte.csv"}));
    EXPECT_TRUE(std::filesystem::is_empty("."));
  }
}

TEST(fxexecute, SinVisorNoPasaNada) {
  Mandatos mandatos;
  mandatos.Pon("lpr");
  for (const char* const target : {"http://x", "x.pdf", "x.csv", ""}) EXPECT_EQ(fxexecute(target), 0);
  EXPECT_EQ(mandatos.Dichos(), Textos{});
}

TEST(fxexecute, LoQueElShellNoPuedeCorrerEsMasQueCero) {
  Mandatos mandatos;
  mandatos.Pon("oocalc");
  EXPECT_GT(fxexecute(FXString('x', 1000000)), 0);
  EXPECT_FALSE(mandatos.HayLlamada());
}

TEST(fxexecute, SinListaElProgramaMismo) {
  Mandatos mandatos;
  mandatos.Pon("propio");
  const std::string propio = mandatos.Carpeta() / "propio";
  EXPECT_EQ(fxexecute(propio.c_str(), ""), 0);
  EXPECT_EQ(mandatos.Llamada(), Textos{"propio"});
  EXPECT_EQ(mandatos.Dichos(), Textos{propio + " >/dev/null 2>&1 & "});
  EXPECT_EQ(fxexecute("no existe; touch mal", ""), 0);
  EXPECT_EQ(mandatos.Dichos().size(), 1u);
}

}  // namespace
}  // namespace pruebas
