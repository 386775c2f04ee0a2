// A calendar date as the records keep it: three integers with the screen's and the server's text kept ready.
// Any three integers are accepted and carried; valid() says whether they name a day. An invalid date compares
// greater than every date, itself included, and arithmetic on it gives date(). Nothing here throws.
#pragma once

#include <iosfwd>

class date {
 public:
  /// 1 January 1900.
  date();

  /// Years up to 99 are two-digit years: below 25 in this century, otherwise in the last one.
  date(int day, int month, int year);

  /// `yyyymmdd`; years up to 99 lie in the last century.
  explicit date(long yyyymmdd);

  /// "yyyy-mm-dd" or "dd/mm/yyyy", told apart by the fifth character. An empty or null text is day 0 of month
  /// 0 of year 0; pieces that are missing or no number are 0.
  explicit date(const char* texto);

  date(const date&) = default;
  date& operator=(const date& d);  // formats both texts anew

  int year() const { return anio; }
  int month() const { return mes; }
  int day() const { return dia; }

  /// Change the integer alone: both texts stay as they are until the date is assigned to another.
  void set_year(int year) { anio = year; }
  void set_month(int month) { mes = month; }
  void set_day(int day) { dia = day; }

  /// Server text, "yyyy-mm-dd", cut to 11 characters. Lives as long as the date.
  const char* AsChar() const { return servidor; }

  /// Screen text, "dd/mm/yyyy", cut to 11 characters; " " for the date of an empty text.
  const char* AsDMY() const;

  /// Whether the integers name a day of the calendar. Year 0 does, a negative year does not.
  bool valid() const;

 private:
  void Formatea();

  char pantalla[12];
  int anio;
  int mes;
  int dia;
  char servidor[12];
};

/// Was it never given? Its year is then 0, as that of an empty text, or 1900, as that of a default date.
inline bool FaltaFecha(const date& d) { return d.year() == 0 || d.year() == 1900; }

/// Are the three numbers the same? Unlike ==, a date that is no day of the calendar is the same as itself.
inline bool MismaFecha(const date& a, const date& b) {
  return a.year() == b.year() && a.month() == b.month() && a.day() == b.day();
}

/// Comparisons. With an invalid date on either side ==, < and <= are false, and !=, > and >= are true.
bool operator==(const date& a, const date& b);
bool operator!=(const date& a, const date& b);
bool operator<(const date& a, const date& b);
bool operator>(const date& a, const date& b);
bool operator<=(const date& a, const date& b);
bool operator>=(const date& a, const date& b);

/// The day after and the day before; date() for an invalid date. The result is built from three integers, so
/// a year up to 99 turns into its two-digit reading.
date next_date(const date& d);
date previous_date(const date& d);

/// n days later or earlier, walked day by day; n may be negative. date() for an invalid date.
date operator+(const date& d, int n);
date operator-(const date& d, int n);

/// += changes `d`. -= only returns the result and leaves `d` as it was.
date operator+=(date& d, int n);
[[nodiscard]] date operator-=(const date& d, int n);

date operator++(date& d);
date operator++(date& d, int);
date operator--(date& d);
date operator--(date& d, int);

/// n months later or earlier, on the same day or on the month's last day. Whole years change the year alone:
/// 29 February plus 12 is not a valid date, and the texts of such a result are the old ones until it is
/// assigned. When no day fits writes " Error in Add month " to standard error and returns `d`.
date add_months(const date& d, int n);
date next_month(const date& d);

/// Days from `a` to `b`, walked day by day; 0 if `b` is not later.
int dif_dates(date a, const date& b);

/// yyyymmdd, or -1 for an invalid date.
long int_date(const date& d);

/// int_date between two blanks, or " invalid date ".
std::ostream& operator<<(std::ostream& salida, const date& d);

/// The local date of the machine.
date today();
