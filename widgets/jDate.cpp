#include "widgets/jDate.h"

#include <ctime>

const char* const jDate::monthNames[12] = {"Enero",      "Febrero", "Marzo",     "Abril",
                                           "Mayo",       "Junio",   "Julio",     "Agosto",
                                           "Septiembre", "Octubre", "Noviembre", "Diciembre"};
const char* const jDate::dayNames[7] = {"Dom", "Lun", "Mar", "Mie", "Jue", "Vie", "Sab"};
const short jDate::monthDays[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool jDate::setDate(int year, int month, int day) {
  numero = greg2jul(year, month, day);
  return true;
}

bool jDate::today() {
  const time_t ahora = time(nullptr);
  const tm* local = localtime(&ahora);
  return setDate(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday);
}

int jDate::day() const {
  int anio, mes, dia;
  jul2greg(numero, anio, mes, dia);
  return dia;
}

int jDate::month() const {
  int anio, mes, dia;
  jul2greg(numero, anio, mes, dia);
  return mes;
}

int jDate::year() const {
  int anio, mes, dia;
  jul2greg(numero, anio, mes, dia);
  return anio;
}

int jDate::daysInMonth() const { return month() == 2 && leapYear(year()) ? 29 : monthDays[month()]; }

int jDate::dayOfWeek() const { return static_cast<int>(((numero + 1) % 7 + 6) % 7); }

int jDate::dayOfYear() const { return static_cast<int>(numero - greg2jul(year(), 1, 1) + 1); }

const char* jDate::monthName(int i) { return i >= 1 && i <= 12 ? monthNames[i - 1] : ""; }

const char* jDate::dayName(int i) { return i >= 0 && i <= 6 ? dayNames[i] : ""; }

bool jDate::leapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

// Both conversions count the year from March, so that the leap day comes last. 64 bits hold every product of
// ints.
std::uint32_t jDate::greg2jul(int year, int month, int day) {
  std::int64_t anio = year;
  std::int64_t mes = month;
  if (anio <= 99) anio += 1900;
  if (mes > 2) {
    mes -= 3;
  } else {
    mes += 9;
    --anio;
  }
  const std::int64_t siglo = anio / 100;
  const std::int64_t resto = anio - 100 * siglo;
  return static_cast<std::uint32_t>(146097 * siglo / 4 + 1461 * resto / 4 + (153 * mes + 2) / 5 + day +
                                    1721119);
}

void jDate::jul2greg(std::uint32_t jd, int& year, int& month, int& day) {
  std::uint32_t j = (jd - 1721119) * 4 - 1;
  std::uint32_t y = j / 146097;
  j -= 146097 * y;
  std::uint32_t d = j / 4;

  j = (4 * d + 3) / 1461;
  d = (4 * d + 3 - 1461 * j + 4) / 4;

  std::uint32_t m = (5 * d - 3) / 153;
  d = (5 * d - 3 - 153 * m + 5) / 5;

  y = 100 * y + j;
  if (m < 10) {
    m += 3;
  } else {
    m -= 9;
    ++y;
  }
  year = static_cast<int>(y);
  month = static_cast<int>(m);
  day = static_cast<int>(d);
}
