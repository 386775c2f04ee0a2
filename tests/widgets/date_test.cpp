#include "widgets/date.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <sstream>
#include <string>

namespace {

// The three integers, valid or not; == on dates is false for invalid ones.
std::string Partes(const date& d) {
  return std::to_string(d.day()) + "/" + std::to_string(d.month()) + "/" + std::to_string(d.year());
}

const date kInvalida(31, 2, 2006);

TEST(Date, RecienHechaEsElPrimeroDe1900ConSusDosTextos) {
  EXPECT_EQ(Partes(date()), "1/1/1900");
  EXPECT_STREQ(date().AsChar(), "1900-01-01");
  EXPECT_STREQ(date().AsDMY(), "01/01/1900");
}

TEST(Date, TresEnterosQuedanComoSonMenosElAnioDeDosCifras) {
  const struct {
    int dia, mes, anio;
    const char *servidor, *pantalla;
  } casos[] = {
      {15, 3, 2006, "2006-03-15", "15/03/2006"}, {1, 1, 24, "2024-01-01", "01/01/2024"},
      {1, 1, 25, "1925-01-01", "01/01/1925"},    {1, 1, 0, "2000-01-01", "01/01/2000"},
      {1, 1, 99, "1999-01-01", "01/01/1999"},    {1, 1, 100, "0100-01-01", "01/01/0100"},
      {1, 1, -1, "1999-01-01", "01/01/1999"},    {31, 2, 2006, "2006-02-31", "31/02/2006"},
      {0, 0, 2006, "2006-00-00", "00/00/2006"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.servidor);
    const date d(c.dia, c.mes, c.anio);
    EXPECT_EQ(d.day(), c.dia);
    EXPECT_EQ(d.month(), c.mes);
    EXPECT_STREQ(d.AsChar(), c.servidor);
    EXPECT_STREQ(d.AsDMY(), c.pantalla);
  }
}

TEST(Date, UnEnteroSeLeeComoAnioMesYDia) {
  const struct {
    long entero;
    const char *partes, *servidor;
  } casos[] = {
      {20060315, "15/3/2006", "2006-03-15"}, {60315, "15/3/1906", "1906-03-15"},
      {240315, "15/3/1924", "1924-03-15"},   {990315, "15/3/1999", "1999-03-15"},
      {1000315, "15/3/100", "0100-03-15"},   {20061399, "99/13/2006", "2006-13-99"},
      {0, "0/0/1900", "1900-00-00"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.entero);
    EXPECT_EQ(Partes(date(c.entero)), c.partes);
    EXPECT_STREQ(date(c.entero).AsChar(), c.servidor);
  }
}

TEST(Date, ElTextoSeDistinguePorSuQuintaLetra) {
  const struct {
    const char *texto, *partes, *servidor, *pantalla;
  } casos[] = {
      {"2006-03-15", "15/3/2006", "2006-03-15", "15/03/2006"},
      {"15/03/2006", "15/3/2006", "2006-03-15", "15/03/2006"},
      {"2006-03-15 10:20:30", "15/3/2006", "2006-03-15", "15/03/2006"},
      {"15/03/2006, jueves", "15/3/2006", "2006-03-15", "15/03/2006"},
      {"2006.03.15", "15/3/2006", "2006-03-15", "15/03/2006"},
      {"99/99/9999", "99/99/9999", "9999-99-99", "99/99/9999"},
      {"0024-01-01", "1/1/24", "0024-01-01", "01/01/0024"},
      {"", "0/0/0", "0000-00-00", " "},
      {nullptr, "0/0/0", "0000-00-00", " "},
      {"0000-00-00", "0/0/0", "0000-00-00", " "},
      {"00/00/0000", "0/0/0", "0000-00-00", " "},
      {"2", "0/0/2", "0002-00-00", "00/00/0002"},
      {"2006", "0/0/2006", "2006-00-00", "00/00/2006"},
      {"2006-", "0/0/2006", "2006-00-00", "00/00/2006"},
      {"2006-3", "0/3/2006", "2006-03-00", "00/03/2006"},
      {"15/03", "15/3/0", "0000-03-15", "15/03/0000"},
      {"15/03/06", "15/3/6", "0006-03-15", "15/03/0006"},
      {"1/2/2006", "1/0/6", "0006-00-01", "01/00/0006"},
      {"fecha-no", "0/0/0", "0000-00-00", " "},
      {"año nuevo", "0/0/0", "0000-00-00", " "},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto == nullptr ? "null" : c.texto);
    const date d(c.texto);
    EXPECT_EQ(Partes(d), c.partes);
    EXPECT_STREQ(d.AsChar(), c.servidor);
    EXPECT_STREQ(d.AsDMY(), c.pantalla);
  }
}

TEST(Date, LosDosTextosDanLaMismaFecha) { EXPECT_EQ(date("2006-03-15"), date("15/03/2006")); }

TEST(Date, UnTextoDeCualquierLargoSeLeeSinSalirse) {
  // An exact-size copy on the heap, so that the address sanitizer sees a read past the end.
  const std::string largo = "2006-03-15" + std::string(100, '9');
  for (size_t n = 0; n <= largo.size(); ++n) {
    char* exacto = strdup(largo.substr(0, n).c_str());
    const date d(exacto);
    free(exacto);
    EXPECT_EQ(d.valid(), n >= 9) << n;
  }
}

TEST(Date, PonerUnNumeroDejaLosTextosHastaQueSeAsigna) {
  date d(15, 3, 2006);
  d.set_year(1999);
  d.set_month(12);
  d.set_day(31);
  EXPECT_EQ(Partes(d), "31/12/1999");
  EXPECT_STREQ(d.AsChar(), "2006-03-15");
  EXPECT_STREQ(d.AsDMY(), "15/03/2006");

  const date copia(d);
  EXPECT_STREQ(copia.AsChar(), "2006-03-15") << "a copy is bitwise";

  date asignada;
  asignada = d;
  EXPECT_EQ(Partes(asignada), "31/12/1999");
  EXPECT_STREQ(asignada.AsChar(), "1999-12-31");
  EXPECT_STREQ(asignada.AsDMY(), "31/12/1999");
}

TEST(Date, ValidConoceElCalendario) {
  const struct {
    int dia, mes, anio;
    bool valida;
  } casos[] = {
      {1, 1, 2006, true},    {31, 1, 2006, true},   {32, 1, 2006, false},  {0, 1, 2006, false},
      {-1, 1, 2006, false},  {28, 2, 2006, true},   {29, 2, 2006, false},  {29, 2, 2004, true},
      {30, 2, 2004, false},  {29, 2, 1900, false},  {29, 2, 2000, true},   {29, 2, 2100, false},
      {29, 2, 2400, true},   {31, 3, 2006, true},   {30, 4, 2006, true},   {31, 4, 2006, false},
      {31, 5, 2006, true},   {30, 6, 2006, true},   {31, 6, 2006, false},  {31, 7, 2006, true},
      {31, 8, 2006, true},   {30, 9, 2006, true},   {31, 9, 2006, false},  {31, 10, 2006, true},
      {30, 11, 2006, true},  {31, 11, 2006, false}, {31, 12, 2006, true},  {32, 12, 2006, false},
      {15, 0, 2006, false},  {15, 13, 2006, false}, {15, -1, 2006, false}, {1, 1, 9999, true},
      {1, 1, INT_MAX, true}, {1, 1, -2001, false},
  };
  for (const auto& c : casos) {
    const date d(c.dia, c.mes, c.anio);
    EXPECT_EQ(d.valid(), c.valida) << Partes(d);
  }
  EXPECT_TRUE(date("0000-01-01").valid());
  EXPECT_FALSE(date("").valid());
  date negativa(1, 1, 2006);
  negativa.set_year(-1);
  EXPECT_FALSE(negativa.valid());
}

TEST(Date, SeComparanPorAnioMesYDiaYLaInvalidaEsLaMayor) {
  struct Respuestas {
    bool igual, distinta, menor, mayor, menorIgual, mayorIgual;
  };
  const Respuestas igual{true, false, false, false, true, true};
  const Respuestas menor{false, true, true, false, true, false};
  const Respuestas mayor{false, true, false, true, false, true};
  const Respuestas conInvalida{false, true, false, true, false, true};
  const date d(15, 3, 2006);
  const struct {
    date a, b;
    Respuestas espera;
  } casos[] = {
      {d, d, igual},
      {d, date(16, 3, 2006), menor},
      {date(16, 3, 2006), d, mayor},
      {d, date(1, 4, 2006), menor},
      {date(1, 4, 2006), d, mayor},
      {d, date(1, 1, 2007), menor},
      {date(1, 1, 2007), d, mayor},
      {kInvalida, d, conInvalida},
      {d, kInvalida, conInvalida},
      {kInvalida, kInvalida, conInvalida},
      {date(""), date(""), conInvalida},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(Partes(c.a) + " with " + Partes(c.b));
    EXPECT_EQ(c.a == c.b, c.espera.igual);
    EXPECT_EQ(c.a != c.b, c.espera.distinta);
    EXPECT_EQ(c.a < c.b, c.espera.menor);
    EXPECT_EQ(c.a > c.b, c.espera.mayor);
    EXPECT_EQ(c.a <= c.b, c.espera.menorIgual);
    EXPECT_EQ(c.a >= c.b, c.espera.mayorIgual);
  }
}

TEST(Date, LaSiguienteYLaAnteriorCruzanMesesYAnios) {
  const struct {
    date ayer, hoy;
  } casos[] = {
      {date(14, 3, 2006), date(15, 3, 2006)}, {date(28, 2, 2006), date(1, 3, 2006)},
      {date(29, 2, 2004), date(1, 3, 2004)},  {date(28, 2, 2004), date(29, 2, 2004)},
      {date(30, 4, 2006), date(1, 5, 2006)},  {date(31, 12, 2004), date(1, 1, 2005)},
      {date(28, 2, 1900), date(1, 3, 1900)},
  };
  for (const auto& c : casos) {
    EXPECT_EQ(next_date(c.ayer), c.hoy);
    EXPECT_EQ(previous_date(c.hoy), c.ayer);
  }
}

TEST(Date, LosPasosLeenElAnioDeDosCifrasComoElConstructor) {
  EXPECT_EQ(next_date(date("0005-01-01")), date(2, 1, 2005));
  EXPECT_EQ(previous_date(date("0000-01-01")), date(31, 12, 1999));
}

TEST(Date, LaCuentaConUnaInvalidaDaLaRecienHecha) {
  EXPECT_EQ(next_date(kInvalida), date());
  EXPECT_EQ(previous_date(kInvalida), date());
  for (const int n : {0, 3, -3}) {
    EXPECT_EQ(kInvalida + n, date()) << n;
    EXPECT_EQ(kInvalida - n, date()) << n;
  }
}

TEST(Date, RecorreCadaDiaDeCuatroSiglosDeIdaYVuelta) {
  time_t segundos = -5364662400;  // 1 January 1800
  date dia(1, 1, 1800);
  date ayer(31, 12, 1799);
  for (; dia.year() < 2200; segundos += 86400) {
    tm esperado;
    gmtime_r(&segundos, &esperado);
    ASSERT_EQ(Partes(dia), Partes(date(esperado.tm_mday, esperado.tm_mon + 1, esperado.tm_year + 1900)));
    ASSERT_TRUE(dia.valid());
    ASSERT_EQ(previous_date(dia), ayer);
    ayer = dia++;
  }
}

TEST(Date, MasYMenosCaminanDiasEnLosDosSentidos) {
  const date d(28, 2, 2004);
  EXPECT_EQ(d + 0, d);
  EXPECT_EQ(d - 0, d);
  EXPECT_EQ(d + 2, date(1, 3, 2004));
  EXPECT_EQ(d + -59, date(31, 12, 2003));
  EXPECT_EQ(d - 59, date(31, 12, 2003));
  EXPECT_EQ(d - -2, date(1, 3, 2004));
  EXPECT_EQ(d + 366, date(28, 2, 2005));
}

TEST(Date, SumarCambiaLaFechaYRestarNo) {
  date d(10, 3, 2006);
  EXPECT_EQ(d += 5, date(15, 3, 2006));
  EXPECT_EQ(d, date(15, 3, 2006));
  EXPECT_STREQ(d.AsChar(), "2006-03-15");

  EXPECT_EQ(d -= 5, date(10, 3, 2006));
  EXPECT_EQ(d, date(15, 3, 2006));
}

TEST(Date, IncrementoYDecrementoDanUnPaso) {
  date d(31, 12, 2005);
  EXPECT_EQ(++d, date(1, 1, 2006));
  EXPECT_EQ(d++, date(1, 1, 2006));
  EXPECT_EQ(d, date(2, 1, 2006));
  EXPECT_EQ(--d, date(1, 1, 2006));
  EXPECT_EQ(d--, date(1, 1, 2006));
  EXPECT_EQ(d, date(31, 12, 2005));
  EXPECT_STREQ(d.AsChar(), "2005-12-31");
}

TEST(Date, SumarMesesConservaElDiaOTomaElUltimo) {
  const struct {
    date desde;
    int meses;
    const char* partes;
  } casos[] = {
      {date(31, 1, 2005), 1, "28/2/2005"},   {date(31, 1, 2004), 1, "29/2/2004"},
      {date(31, 3, 2005), -1, "28/2/2005"},  {date(31, 3, 2004), -1, "29/2/2004"},
      {date(31, 5, 2005), 1, "30/6/2005"},   {date(30, 11, 2005), 3, "28/2/2006"},
      {date(15, 1, 2005), -1, "15/12/2004"}, {date(15, 12, 2004), 1, "15/1/2005"},
      {date(15, 3, 2005), -13, "15/2/2004"}, {date(15, 1, 2005), -13, "15/12/2003"},
      {date(15, 12, 2005), 13, "15/1/2007"}, {date(15, 3, 2005), 9, "15/12/2005"},
      {date(15, 3, 2005), -3, "15/12/2004"}, {date(15, 3, 2005), -2, "15/1/2005"},
      {date(15, 3, 2005), 12, "15/3/2006"},  {date(15, 3, 2005), -24, "15/3/2003"},
      {date(15, 3, 2005), 0, "15/3/2005"},   {date(29, 2, 2004), 12, "29/2/2005"},
      {date(29, 2, 2004), 13, "29/3/2005"},  {date(31, 2, 2006), 1, "31/2/2006"},
      {date(29, 2, 2004), -12, "29/2/2003"}, {date(31, 1, 2005), 13, "28/2/2006"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(Partes(c.desde) + " plus " + std::to_string(c.meses));
    testing::internal::CaptureStderr();
    EXPECT_EQ(Partes(add_months(c.desde, c.meses)), c.partes);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  }
  EXPECT_FALSE(add_months(date(29, 2, 2004), 12).valid());
}

TEST(Date, SumarAniosEnterosDejaLosTextosHastaQueSeAsigna) {
  const date resultado = add_months(date(15, 3, 2005), 12);
  EXPECT_EQ(resultado.year(), 2006);
  EXPECT_STREQ(resultado.AsChar(), "2005-03-15");
  EXPECT_STREQ(resultado.AsDMY(), "15/03/2005");
  date asignada;
  asignada = resultado;
  EXPECT_STREQ(asignada.AsChar(), "2006-03-15");
}

TEST(Date, SumarMesesSueltosEscribeLosTextos) {
  EXPECT_STREQ(add_months(date(31, 1, 2005), 13).AsChar(), "2006-02-28");
  EXPECT_STREQ(add_months(date(15, 1, 2005), -1).AsDMY(), "15/12/2004");
}

TEST(Date, SinDiaQueQuepaLoDiceYDaLaMismaFecha) {
  const date d(15, 3, 2005);
  const int aAnioNegativo = -12 * 6000 - 1;
  testing::internal::CaptureStderr();
  const date resultado = add_months(d, aAnioNegativo);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), " Error in Add month \n");
  EXPECT_EQ(resultado, d);
}

TEST(Date, ElMesSiguienteEsUnMesDespues) { EXPECT_EQ(next_month(date(31, 1, 2005)), date(28, 2, 2005)); }

TEST(Date, DifDatesCuentaLosDiasHastaUnaPosterior) {
  const date d(28, 2, 2004);
  EXPECT_EQ(dif_dates(d, d), 0);
  EXPECT_EQ(dif_dates(d, date(1, 3, 2004)), 2);
  EXPECT_EQ(dif_dates(d, date(28, 2, 2005)), 366);
  EXPECT_EQ(dif_dates(date(28, 2, 2005), d), 0);
  EXPECT_EQ(dif_dates(kInvalida, d), 0);
  EXPECT_EQ(dif_dates(d, kInvalida), 0);
}

TEST(Date, IntDateEsAnioMesYDiaOMenosUno) {
  EXPECT_EQ(int_date(date(15, 3, 2006)), 20060315);
  EXPECT_EQ(int_date(kInvalida), -1);
  EXPECT_EQ(int_date(date(15, 3, INT_MAX)), INT_MAX * 10000L + 315);
}

TEST(Date, SeEscribeComoEnteroEntreBlancos) {
  std::ostringstream salida;
  salida << date(15, 3, 2006) << date("");
  EXPECT_EQ(salida.str(), " 20060315  invalid date ");
}

// Runs its body in a given time zone.
class ZonaHoraria {
 public:
  explicit ZonaHoraria(const char* zona)
      : habia_(getenv("TZ") != nullptr), anterior_(habia_ ? getenv("TZ") : "") {
    setenv("TZ", zona, 1);
    tzset();
  }
  ~ZonaHoraria() {
    habia_ ? setenv("TZ", anterior_.c_str(), 1) : unsetenv("TZ");
    tzset();
  }

 private:
  bool habia_;
  std::string anterior_;
};

date HoyEn(const char* zona) {
  const ZonaHoraria enZona(zona);
  return today();
}

TEST(Date, HoyEsLaFechaLocal) {
  const auto enUtc = [] {
    const time_t ahora = time(nullptr);
    tm partes;
    gmtime_r(&ahora, &partes);
    return date(partes.tm_mday, partes.tm_mon + 1, partes.tm_year + 1900);
  };
  const date antes = enUtc();
  const date hoy = HoyEn("UTC0");
  EXPECT_LE(antes, hoy);
  EXPECT_LE(hoy, enUtc());
  EXPECT_LT(HoyEn("OESTE+12"), HoyEn("ESTE-14")) << "26 hours apart it is never the same day";
}

TEST(Date, LosEnterosAbsurdosNoSeSalenDeSusTextos) {
  const date ultima(31, 12, INT_MAX);
  EXPECT_STREQ(ultima.AsChar(), "2147483647-");
  EXPECT_STREQ(ultima.AsDMY(), "31/12/21474");
  EXPECT_FALSE(next_date(ultima).valid());
  EXPECT_FALSE((ultima + 1).valid());
  EXPECT_FALSE(add_months(ultima, 12).valid());
  EXPECT_EQ(add_months(date(15, 3, 2005), 0), date(15, 3, 2005));

  const date minima(INT_MIN, INT_MIN, INT_MIN);
  EXPECT_STREQ(minima.AsDMY(), "-2147483648");
  EXPECT_FALSE(minima.valid());
  EXPECT_EQ(minima + INT_MIN, date());
  EXPECT_EQ(minima - INT_MIN, date());

  EXPECT_EQ(strlen(date(LONG_MAX).AsChar()), 11U);
  EXPECT_EQ(strlen(date(LONG_MIN).AsChar()), 11U);

  testing::internal::CaptureStderr();
  EXPECT_EQ(add_months(ultima, 1), ultima);
  add_months(ultima, INT_MAX);
  add_months(date(15, 3, 2005), INT_MIN);
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
