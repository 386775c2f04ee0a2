// A day as its Julian day number, for the calendar's month grid. Months and days out of range run on into the
// neighbouring months, which is what the calendar's arrows rely on.
#pragma once

#include <cstdint>

class jDate {
 public:
  jDate() { today(); }
  jDate(int year, int month, int day) { setDate(year, month, day); }

  /// Both always answer true.
  bool setDate(int year, int month, int day);
  bool today();  // the local date of the machine

  int day() const;
  int month() const;  // 1 to 12
  int year() const;

  int daysInMonth() const;
  int dayOfWeek() const;  // 0 Monday to 6 Sunday: not the order of dayNames
  int dayOfYear() const;  // 1 to 366

  static const char* monthName(int i);  // i from 1 to 12
  static const char* dayName(int i);    // i from 0, "Dom", to 6, "Sab"
  static bool leapYear(int year);

  /// Years up to 99 lie in the last century, here without a turn of the century at 25.
  static std::uint32_t greg2jul(int year, int month, int day);
  static void jul2greg(std::uint32_t jd, int& year, int& month, int& day);

  static const char* const monthNames[12];
  static const char* const dayNames[7];
  static const short monthDays[13];  // of a common year; entry 0 is 0

 private:
  std::uint32_t numero;
};
