#include "widgets/CurrencyField.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

TEST(CurrencyField, EscribeMilesConComasYDosDecimales) {
  const struct {
    double valor;
    const char* texto;
  } casos[] = {
      {0, "0.00"},
      {-0.0, "0.00"},
      {0.5, "0.50"},
      {1, "1.00"},
      {12, "12.00"},
      {999.994, "999.99"},
      {1000, "1,000.00"},
      {12345.67, "12,345.67"},
      {100000, "100,000.00"},
      {999999.99, "999,999.99"},
      {1000000, "1,000,000.00"},
      {1234567.891, "1,234,567.89"},
      {1234567890.12, "1,234,567,890.12"},
      {-1, "-1.00"},
      {-999, "-999.00"},
      {-1234.5, "-1,234.50"},
      {-123456, "-123,456.00"},
      {-1234567, "-1,234,567.00"},
      {999.996, "1,000.00"},
      {-999.996, "-1,000.00"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    EXPECT_STREQ(CurrencyField(c.valor).get().text(), c.texto);
    const FXString convertido = CurrencyField(c.valor);
    EXPECT_STREQ(convertido.text(), c.texto);
  }
}

// 0.125 and 2.5 cents are exact in binary, so these are true halves.
TEST(CurrencyField, RedondeaLasMitadesHaciaArriba) {
  EXPECT_STREQ(CurrencyField(0.125).get().text(), "0.13");
  EXPECT_STREQ(CurrencyField(-0.125).get().text(), "-0.12");
  EXPECT_STREQ(CurrencyField(0.375).get().text(), "0.38");
  EXPECT_STREQ(CurrencyField(-0.375).get().text(), "-0.37");
  EXPECT_STREQ(CurrencyField(-0.004).get().text(), "0.00");
}

TEST(CurrencyField, AgrupaElTextoYaRedondeado) {
  const std::string texto = CurrencyField(999.995).get().text();
  EXPECT_TRUE(texto == "999.99" || texto == "1,000.00") << texto;
}

TEST(CurrencyField, LeeNumerosConComasYSinEllas) {
  const struct {
    const char* texto;
    double valor;
  } casos[] = {
      {"1,234.50", 1234.5},
      {"1234.5", 1234.5},
      {"1,234,567.89", 1234567.89},
      {"-1,234.50", -1234.5},
      {",1,2,3,", 123},
      {"", 0},
      {"abc", 0},
      {"0.00", 0},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    EXPECT_EQ(CurrencyField(FXString(c.texto)).asDouble(), c.valor);
  }
}

TEST(CurrencyField, PonerCambiaElValorYDejaElTexto) {
  const FXString texto = "2,500.75";
  CurrencyField campo(7.0);
  EXPECT_EQ(campo.asDouble(), 7.0);
  campo.set(texto);
  EXPECT_EQ(campo.asDouble(), 2500.75);
  EXPECT_STREQ(texto.text(), "2,500.75");
}

TEST(CurrencyField, SuTextoSeLeeComoElMismoMonto) {
  for (const double valor : {0.0, 0.01, -0.99, 1000.0, -98765.43, 1e9 + 0.25, 123456789012.5}) {
    EXPECT_EQ(CurrencyField(CurrencyField(valor).get()).asDouble(), valor);
  }
}

TEST(CurrencyField, SeEscribenMontosDeCualquierTamano) {
  const FXString grande = CurrencyField(1e300).get();
  EXPECT_EQ(grande.length(), 301 + 100 + 3) << grande.text();
  EXPECT_STREQ(grande.left(6).text(), "1,000,");
  EXPECT_STREQ(grande.right(7).text(), ",160.00");
  EXPECT_STREQ(CurrencyField(-1e15).get().text(), "-1,000,000,000,000,000.00");
}

// No comma is put into the words that the C library prints for them.
TEST(CurrencyField, LoQueNoEsNumeroQuedaComoPalabra) {
  EXPECT_STREQ(CurrencyField(HUGE_VAL).get().text(), "inf");
  EXPECT_STREQ(CurrencyField(-HUGE_VAL).get().text(), "-inf");
  EXPECT_STREQ(CurrencyField(std::numeric_limits<double>::max()).get().text(), "inf");
  EXPECT_NE(CurrencyField(std::nan("")).get().find("nan"), -1);
}

}  // namespace
