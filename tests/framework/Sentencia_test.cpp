#include "framework/Sentencia.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Texto(const Sentencia& sentencia) { return static_cast<const char*>(sentencia); }

TEST(Sentencia, ConvierteComoPrintf) {
  const std::pair<Sentencia, const char*> tabla[] = {
      {Sentencia("COMMIT;"), "COMMIT;"},
      {Sentencia("select f('%s','%s');", "a", "b"), "select f('a','b');"},
      {Sentencia("f(%i,%li)", -7, 70'000'000'000), "f(-7,70000000000)"},
      {Sentencia("f(%f)", 2.5), "f(2.500000)"},
      {Sentencia("f(%f)", 1234.56f), "f(1234.560059)"},
      {Sentencia("f('%.10s')", "2006-03-15 10:00"), "f('2006-03-15')"},
      {Sentencia("f('%-3s')", "a"), "f('a  ')"},
      {Sentencia("like '%%%s%%'", "x"), "like '%x%'"},
      {Sentencia("%s", ""), ""},
  };
  for (const auto& [sentencia, texto] : tabla) EXPECT_STREQ(sentencia, texto);
}

TEST(Sentencia, LosValoresEntranTalCual) {
  for (const char* valor : {"d'oro", "100%", "%s%n%d", "\\", "ñandú", "a\nb", "$1"})
    EXPECT_EQ(Texto(Sentencia("f('%s')", valor)), std::string("f('") + valor + "')");
}

TEST(Sentencia, NingunLargoSeCorta) {
  for (const size_t largo : {255u, 256u, 257u, 1023u, 1024u, 100'000u}) {
    const std::string valor(largo, 'x');
    EXPECT_EQ(Texto(Sentencia("f('%s',%i)", valor.c_str(), 1)), "f('" + valor + "',1)") << largo;
  }
}

TEST(Sentencia, UnTextoComoFormatoSinArgumentosNoLeeNinguno) {
  const std::pair<std::string, std::string> tabla[] = {
      {"", ""},
      {"COMMIT;", "COMMIT;"},
      {"100%%", "100%"},
      {"%%%%", "%%"},
      {"%%%", "%%"},
      {"%%s", "%s"},
      {"5% de", "5% de"},
      {"%s%n%d%99999d%*d%", "%s%n%d%99999d%*d%"},
      {"%1$s %lc ñ%ñ", "%1$s %lc ñ%ñ"},
      {std::string(100'000, '%'), std::string(50'000, '%')},
      {std::string(99'999, '%'), std::string(50'000, '%')},
  };
  for (const auto& [texto, queda] : tabla) EXPECT_EQ(Texto(Sentencia::SinArgumentos(texto.c_str())), queda);
}

TEST(Sentencia, SeCopiaConSuTexto) {
  const Sentencia original("f(%i)", 1);
  const Sentencia copia = original;
  EXPECT_STREQ(copia, "f(1)");
  EXPECT_NE(static_cast<const char*>(copia), static_cast<const char*>(original));
}

}  // namespace
