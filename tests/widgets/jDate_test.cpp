#include "widgets/jDate.h"

#include <gtest/gtest.h>

#include <climits>
#include <ctime>
#include <string>

namespace {

std::string Partes(const jDate& d) {
  return std::to_string(d.year()) + "-" + std::to_string(d.month()) + "-" + std::to_string(d.day());
}

constexpr time_t kSegundosDelDia = 86400;
constexpr std::uint32_t kJulianoDe1970 = 2440588;
constexpr std::uint32_t k1Enero1600 = 2305448;
constexpr std::uint32_t k31Diciembre2400 = 2598007;

// The C library's calendar as the independent witness.
tm CalendarioDe(std::uint32_t juliano) {
  const time_t segundos = (static_cast<time_t>(juliano) - kJulianoDe1970) * kSegundosDelDia;
  tm partes;
  gmtime_r(&segundos, &partes);
  return partes;
}

TEST(JDate, CoincideConOtroCalendarioDe1600A2400) {
  int diasDelMes = 0;
  for (std::uint32_t juliano = k1Enero1600; juliano <= k31Diciembre2400; ++juliano) {
    const tm esperado = CalendarioDe(juliano);
    const int anio = esperado.tm_year + 1900;
    const int mes = esperado.tm_mon + 1;
    ASSERT_EQ(jDate::greg2jul(anio, mes, esperado.tm_mday), juliano);

    const jDate d(anio, mes, esperado.tm_mday);
    ASSERT_EQ(Partes(d),
              std::to_string(anio) + "-" + std::to_string(mes) + "-" + std::to_string(esperado.tm_mday));
    ASSERT_EQ(d.dayOfWeek(), (esperado.tm_wday + 6) % 7) << Partes(d);
    ASSERT_EQ(d.dayOfYear(), esperado.tm_yday + 1) << Partes(d);

    ++diasDelMes;
    const tm manana = CalendarioDe(juliano + 1);
    if (manana.tm_mday == 1) {
      ASSERT_EQ(d.daysInMonth(), diasDelMes) << Partes(d);
      diasDelMes = 0;
    }
    if (manana.tm_yday == 0) {
      ASSERT_EQ(jDate::leapYear(anio), esperado.tm_yday == 365) << anio;
    }
  }
}

TEST(JDate, LosDiasConocidosTienenSuNumeroJuliano) {
  EXPECT_EQ(jDate::greg2jul(1600, 1, 1), k1Enero1600);
  EXPECT_EQ(jDate::greg2jul(1970, 1, 1), kJulianoDe1970);
  EXPECT_EQ(jDate::greg2jul(2000, 1, 1), 2451545U);
  EXPECT_EQ(jDate::greg2jul(2400, 12, 31), k31Diciembre2400);
}

TEST(JDate, MesesYDiasDeMasSiguenDeLargo) {
  const struct {
    int anio, mes, dia;
    const char* partes;
  } casos[] = {
      {2006, 13, 5, "2007-1-5"},  {2006, 0, 5, "2005-12-5"},   {2006, 2, 31, "2006-3-3"},
      {2004, 2, 31, "2004-3-2"},  {2006, 4, 31, "2006-5-1"},   {2006, 1, 0, "2005-12-31"},
      {2006, 3, 0, "2006-2-28"},  {2006, 13, 31, "2007-1-31"}, {2006, 14, 1, "2007-2-1"},
      {2006, 12, 32, "2007-1-1"}, {2007, 2, 29, "2007-3-1"},   {2006, 1, 366, "2007-1-1"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.partes);
    EXPECT_EQ(Partes(jDate(c.anio, c.mes, c.dia)), c.partes);
  }
}

TEST(JDate, LosAniosDeDosCifrasSonDelSigloPasado) {
  EXPECT_EQ(Partes(jDate(24, 1, 1)), "1924-1-1");
  EXPECT_EQ(Partes(jDate(99, 12, 31)), "1999-12-31");
  EXPECT_EQ(Partes(jDate(0, 3, 1)), "1900-3-1");
  EXPECT_EQ(Partes(jDate(100, 1, 1)), "100-1-1");
}

TEST(JDate, LaSemanaEmpiezaEnLunesYLaTablaDeNombresNo) {
  EXPECT_EQ(jDate(2000, 1, 1).dayOfWeek(), 5) << "a Saturday";
  EXPECT_EQ(jDate(2000, 1, 2).dayOfWeek(), 6) << "a Sunday";
  EXPECT_EQ(jDate(2000, 1, 3).dayOfWeek(), 0) << "a Monday";
  EXPECT_STREQ(jDate::dayNames[0], "Dom");
}

TEST(JDate, LosNombresSonEspanoles) {
  const char* const meses[] = {"Enero", "Febrero", "Marzo",      "Abril",   "Mayo",      "Junio",
                               "Julio", "Agosto",  "Septiembre", "Octubre", "Noviembre", "Diciembre"};
  for (int i = 1; i <= 12; ++i) EXPECT_STREQ(jDate::monthName(i), meses[i - 1]);
  const char* const dias[] = {"Dom", "Lun", "Mar", "Mie", "Jue", "Vie", "Sab"};
  for (int i = 0; i <= 6; ++i) EXPECT_STREQ(jDate::dayName(i), dias[i]);
}

TEST(JDate, LosNombresDeMasEstanVacios) {
  for (const int i : {INT_MIN, 0, 13, INT_MAX}) EXPECT_STREQ(jDate::monthName(i), "") << i;
  for (const int i : {INT_MIN, -1, 7, INT_MAX}) EXPECT_STREQ(jDate::dayName(i), "") << i;
}

TEST(JDate, LosDiasDelMesSonLosDeUnAnioComun) {
  const short dias[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int mes = 0; mes <= 12; ++mes) EXPECT_EQ(jDate::monthDays[mes], dias[mes]) << mes;
}

TEST(JDate, PonerFechaYHoyDicenQueSi) {
  jDate d(1990, 5, 5);
  EXPECT_TRUE(d.setDate(2006, 3, 15));
  EXPECT_EQ(Partes(d), "2006-3-15");

  const auto juliano = [] {
    const time_t ahora = time(nullptr);
    tm local;
    localtime_r(&ahora, &local);
    return jDate::greg2jul(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  };
  const std::uint32_t antes = juliano();
  EXPECT_TRUE(d.today());
  const jDate nueva;
  const std::uint32_t despues = juliano();
  for (const jDate& hoy : {d, nueva}) {
    EXPECT_GE(jDate::greg2jul(hoy.year(), hoy.month(), hoy.day()), antes);
    EXPECT_LE(jDate::greg2jul(hoy.year(), hoy.month(), hoy.day()), despues);
  }
}

TEST(JDate, LosEnterosAbsurdosTambienNombranMesYDia) {
  const int extremos[] = {INT_MIN, -1, 0, INT_MAX};
  for (const int anio : extremos) {
    for (const int mes : extremos) {
      for (const int dia : extremos) {
        const jDate d(anio, mes, dia);
        EXPECT_TRUE(d.month() >= 1 && d.month() <= 12) << Partes(d);
        EXPECT_TRUE(d.day() >= 1 && d.day() <= d.daysInMonth()) << Partes(d);
        EXPECT_TRUE(d.dayOfWeek() >= 0 && d.dayOfWeek() <= 6) << Partes(d);
      }
    }
  }
}

}  // namespace
