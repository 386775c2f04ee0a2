#include "widgets/rtrim.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace {

TEST(Rtrim, QuitaLosBlancosDelFinalPeroNuncaLaPrimeraLetra) {
  const struct {
    const char *texto, *espera;
  } casos[] = {
      {"abc  \t", "abc"},
      {"abc", "abc"},
      {"a b  ", "a b"},
      {"  abc ", "  abc"},
      {"abc \t\n\v\f\r", "abc"},
      {"", ""},
      {"   ", " "},
      {" ", " "},
      {"\t ", "\t"},
      {"a ", "a"},
      {"a", "a"},
      {"año  ", "año"},
      {"ñ ", "ñ"},
      {"\xC3\x85 ", "\xC3\x85"},
      {nullptr, ""},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto == nullptr ? "null" : c.texto);
    const std::unique_ptr<char[]> copia(rtrim(c.texto));
    EXPECT_STREQ(copia.get(), c.espera);
  }
}

TEST(Rtrim, DejaElOrigenYDaUnArregloPropio) {
  char texto[] = "abc  ";
  const std::unique_ptr<char[]> copia(rtrim(texto));
  EXPECT_STREQ(texto, "abc  ");
  strcpy(copia.get(), "xyz");
  EXPECT_STREQ(texto, "abc  ");
}

}  // namespace
