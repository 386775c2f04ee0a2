#include "widgets/date.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <ostream>
#include <string>
#include <tuple>

#include "widgets/TextoAcotado.h"

namespace {

/// Two-digit years below this one belong to this century.
constexpr int giroDeSiglo = 25;

int AnioCompleto(int anio) {
  if (anio > 99) return anio;
  return anio + (anio < giroDeSiglo ? 2000 : 1900);
}

bool Bisiesto(int anio) { return (anio % 4 == 0 && anio % 100 != 0) || anio % 400 == 0; }

/// Steps onwards by n years; an absurd year wraps around into the negative, which is no valid date.
int SumaAnios(int anio, int n) {
  return static_cast<int>(static_cast<unsigned>(anio) + static_cast<unsigned>(n));
}

/// Writes a number, which must not have more, in `ancho` digits with `detras` behind them; answers the place
/// after.
char* PonPieza(char* lugar, int numero, int ancho, char detras) {
  char* const fin = lugar + ancho;
  *fin = detras;
  for (char* cifra = fin; cifra != lugar; numero /= 10) *--cifra = static_cast<char>('0' + numero % 10);
  return fin + 1;
}

date Camina(date d, unsigned pasos, date (*paso)(const date&)) {
  if (!d.valid()) return date();
  for (; pasos > 0; --pasos) d = paso(d);
  return d;
}

/// Without sign, so that the most negative int has one too.
unsigned Magnitud(int n) { return n < 0 ? 0U - static_cast<unsigned>(n) : static_cast<unsigned>(n); }

}  // namespace

date::date() : date(1, 1, 1900) {}

date::date(int day, int month, int year) : anio(AnioCompleto(year)), mes(month), dia(day) { Formatea(); }

date::date(long yyyymmdd)
    : anio(static_cast<int>(yyyymmdd / 10000)),
      mes(static_cast<int>(yyyymmdd % 10000 / 100)),
      dia(static_cast<int>(yyyymmdd % 100)) {
  if (anio <= 99) anio += 1900;
  Formatea();
}

date::date(const char* texto) {
  char copia[11] = {};  // zeros to the end: every piece can be read from a text of any length
  CopiaTexto(copia, texto);
  const auto pieza = [&copia](int desde, int largo) {
    return atoi(std::string(copia + desde, largo).c_str());
  };

  if (isdigit(static_cast<unsigned char>(copia[4]))) {
    dia = pieza(0, 2);
    mes = pieza(3, 2);
    anio = pieza(6, 4);
  } else {
    anio = pieza(0, 4);
    mes = pieza(5, 2);
    dia = pieza(8, 2);
  }
  Formatea();
}

date& date::operator=(const date& d) {
  anio = d.year();
  mes = d.month();
  dia = d.day();
  Formatea();
  return *this;
}

void date::Formatea() {
  const auto cabe = [](int numero, int tope) { return numero >= 0 && numero <= tope; };
  if (cabe(dia, 99) && cabe(mes, 99) && cabe(anio, 9999)) {
    // Nearly all of them; an export formats them by the hundred thousand.
    PonPieza(PonPieza(PonPieza(pantalla, dia, 2, '/'), mes, 2, '/'), anio, 4, '\0');
    PonPieza(PonPieza(PonPieza(servidor, anio, 4, '-'), mes, 2, '-'), dia, 2, '\0');
    return;
  }
  FormateaTexto(pantalla, "%02d/%02d/%04d", dia, mes, anio);
  FormateaTexto(servidor, "%04d-%02d-%02d", anio, mes, dia);
}

const char* date::AsDMY() const { return strcmp(pantalla, "00/00/0000") == 0 ? " " : pantalla; }

bool date::valid() const {
  static constexpr int diasDelMes[2][13] = {{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
                                            {0, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}};
  if (anio < 0 || mes < 1 || mes > 12 || dia < 1) return false;
  return dia <= diasDelMes[Bisiesto(anio)][mes];
}

bool operator==(const date& a, const date& b) {
  return a.valid() && b.valid() && a.day() == b.day() && a.month() == b.month() && a.year() == b.year();
}

bool operator!=(const date& a, const date& b) { return !(a == b); }

bool operator<(const date& a, const date& b) {
  if (!a.valid() || !b.valid()) return false;
  return std::make_tuple(a.year(), a.month(), a.day()) < std::make_tuple(b.year(), b.month(), b.day());
}

bool operator>(const date& a, const date& b) { return a != b && !(a < b); }

bool operator<=(const date& a, const date& b) { return a == b || a < b; }

bool operator>=(const date& a, const date& b) { return a == b || a > b; }

date next_date(const date& d) {
  if (!d.valid()) return date();
  date manana(d.day() + 1, d.month(), d.year());
  if (!manana.valid()) manana = date(1, d.month() + 1, d.year());
  if (!manana.valid()) manana = date(1, 1, SumaAnios(d.year(), 1));
  return manana;
}

date previous_date(const date& d) {
  if (!d.valid()) return date();
  date ayer(d.day() - 1, d.month(), d.year());
  for (int dia = 31; !ayer.valid() && dia >= 28; --dia) ayer = date(dia, d.month() - 1, d.year());
  if (!ayer.valid()) ayer = date(31, 12, d.year() - 1);
  return ayer;
}

date operator+(const date& d, int n) { return Camina(d, Magnitud(n), n < 0 ? previous_date : next_date); }

date operator-(const date& d, int n) { return Camina(d, Magnitud(n), n < 0 ? next_date : previous_date); }

date operator+=(date& d, int n) { return d = d + n; }

date operator-=(const date& d, int n) { return d - n; }

date operator++(date& d) { return d = next_date(d); }

date operator++(date& d, int) {
  const date anterior = d;
  ++d;
  return anterior;
}

date operator--(date& d) { return d = previous_date(d); }

date operator--(date& d, int) {
  const date anterior = d;
  --d;
  return anterior;
}

date add_months(const date& d, int n) {
  if (!d.valid() || n == 0) return d;

  const int anios = n / 12;
  const int resto = n % 12;
  date trabajo = d;
  if (anios != 0) trabajo.set_year(SumaAnios(d.year(), anios));
  if (resto == 0) return trabajo;

  int anio = trabajo.year();
  int mes = trabajo.month() + resto;
  if (mes < 1) {
    mes += 12;
    anio = SumaAnios(anio, -1);
  } else if (mes > 12) {
    mes -= 12;
    anio = SumaAnios(anio, 1);
  }

  for (int dia = d.day(); dia >= d.day() - 3; --dia) {
    const date destino(dia, mes, anio);
    if (destino.valid()) return destino;
  }
  fputs(" Error in Add month \n", stderr);
  return d;
}

date next_month(const date& d) { return add_months(d, 1); }

int dif_dates(date a, const date& b) {
  int dias = 0;
  while (a++ < b) ++dias;
  return dias;
}

long int_date(const date& d) {
  if (!d.valid()) return -1;
  return d.year() * 10000L + d.month() * 100 + d.day();
}

std::ostream& operator<<(std::ostream& salida, const date& d) {
  if (!d.valid()) return salida << " invalid date ";
  return salida << ' ' << int_date(d) << ' ';
}

date today() {
  const time_t ahora = time(nullptr);
  const tm* local = localtime(&ahora);
  return date(local->tm_mday, local->tm_mon + 1, local->tm_year + 1900);
}
