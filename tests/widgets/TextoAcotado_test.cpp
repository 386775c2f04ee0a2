#include "widgets/TextoAcotado.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A column of six bytes with a neighbour that no copy may touch.
struct Registro {
  char columna[6] = "antes";
  char vecino = '!';
};

const struct {
  const char *fuente, *espera;
} kCortes[] = {
    {"", ""},
    {"abc", "abc"},
    {"abcde", "abcde"},
    {"abcdef", "abcde"},
    {"abcdé", "abcd"},  // two bytes, one of which fits
    {"abcéx", "abcé"},  // ends exactly at the cut
    {"abc€", "abc"},    // three bytes, two of which fit
    {"ab€x", "ab€"},
    {"ab😀", "ab"},  // four bytes, three of which fit
    {"abcd😀", "abcd"},
    {"a😀x", "a😀"},
    {"ñññ", "ññ"},
    {"abcde\xE9", "abcde"},  // Latin-1
    {"abc\xE9.xyz", "abc\xE9."},
    {"\xE9\xE9xyz", "\xE9\xE9xyz"},
    {"\x80\x80\x80\x80\x80\x80", "\x80\x80\x80\x80\x80"},
    {"\xFF\xFF\xFF\xFF\xFF\xFF", "\xFF\xFF\xFF\xFF\xFF"},
};

TEST(TextoAcotado, LaCopiaSeCortaEnUnaLetraEnteraYTermina) {
  for (const auto& c : kCortes) {
    SCOPED_TRACE(c.fuente);
    Registro registro;
    CopiaTexto(registro.columna, c.fuente);
    EXPECT_STREQ(registro.columna, c.espera);
    EXPECT_EQ(registro.vecino, '!');
  }
}

TEST(TextoAcotado, ElFormatoSeCortaEnUnaLetraEnteraYTermina) {
  for (const auto& c : kCortes) {
    SCOPED_TRACE(c.fuente);
    Registro registro;
    FormateaTexto(registro.columna, "%s", c.fuente);
    EXPECT_STREQ(registro.columna, c.espera);
    EXPECT_EQ(registro.vecino, '!');
  }
}

TEST(TextoAcotado, LaCopiaDeNadaEstaVacia) {
  Registro registro;
  CopiaTexto(registro.columna, nullptr);
  EXPECT_STREQ(registro.columna, "");
}

TEST(TextoAcotado, LoQueCabeSeCopiaExactoAunqueNoSeaUtf8) {
  char columna[6];
  CopiaTexto(columna, "Jos\xE9");
  EXPECT_STREQ(columna, "Jos\xE9");
}

TEST(TextoAcotado, LaCopiaPuedeEncimarseConSuOrigen) {
  char columna[6] = "abcde";
  CopiaTexto(columna, columna);
  EXPECT_STREQ(columna, "abcde");
  CopiaTexto(columna, columna + 2);
  EXPECT_STREQ(columna, "cde");
}

TEST(TextoAcotado, UnaColumnaDeUnByteTieneElTextoVacio) {
  char columna[1] = {'x'};
  CopiaTexto(columna, "ñ");
  EXPECT_STREQ(columna, "");
  FormateaTexto(columna, "%s", "ñ");
  EXPECT_STREQ(columna, "");
}

TEST(TextoAcotado, LaPrecisionQueParteUnaLetraLaQuita) {
  char columna[31];
  FormateaTexto(columna, "%.4s", "abcé");
  EXPECT_STREQ(columna, "abc");
  FormateaTexto(columna, "%.5s", "abcé");
  EXPECT_STREQ(columna, "abcé");
  FormateaTexto(columna, "%.5s", "ab😀");
  EXPECT_STREQ(columna, "ab");
}

TEST(TextoAcotado, ElFormatoRellenaYTomaTodosLosArgumentos) {
  char columna[16];
  FormateaTexto(columna, "%-5s|%03d|%.2f", "ab", 7, 1.5);
  EXPECT_STREQ(columna, "ab   |007|1.50");
  FormateaTexto(columna, "%s", std::string(5000, 'x').c_str());
  EXPECT_EQ(columna, std::string(15, 'x'));
}

TEST(TextoAcotado, LargoUtf8TerminaEnUnaLetraEntera) {
  const struct {
    const char* texto;
    size_t max, espera;
  } casos[] = {
      {"abc", 0, 0},
      {"abc", 2, 2},
      {"abc", 3, 3},
      {"abc", 99, 3},
      {"éa", 1, 0},
      {"éa", 2, 2},
      {"éa", 3, 3},
      {"€", 1, 0},
      {"€", 2, 0},
      {"€", 3, 3},
      {"😀", 1, 0},
      {"😀", 2, 0},
      {"😀", 3, 0},
      {"😀", 4, 4},
      {"a😀", 4, 1},
      {"", 5, 0},
      {"\x80\x80\x80\x80", 3, 3},
  };
  for (const auto& c : casos) EXPECT_EQ(LargoUtf8(c.texto, c.max), c.espera) << c.texto << " to " << c.max;
}

}  // namespace
