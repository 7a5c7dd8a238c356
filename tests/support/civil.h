// SPDX-License-Identifier: MIT
//
// Gregorian day arithmetic by counting, so that expectations owe nothing to the system's clock.
#ifndef ALMARA_TESTS_SUPPORT_CIVIL_H_
#define ALMARA_TESTS_SUPPORT_CIVIL_H_

#include <ostream>
#include <tuple>

namespace almara::test {

struct Civil {
  int year;
  int month;
  int day;
};

inline bool operator==(const Civil& a, const Civil& b) {
  return std::tie(a.year, a.month, a.day) == std::tie(b.year, b.month, b.day);
}
inline bool operator!=(const Civil& a, const Civil& b) { return !(a == b); }
inline std::ostream& operator<<(std::ostream& out, const Civil& d) {
  return out << d.year << '-' << d.month << '-' << d.day;
}

constexpr bool IsLeapYear(int year) {
  return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
}

constexpr int DaysOfMonth(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

constexpr Civil NextDay(Civil d) {
  if (d.day < DaysOfMonth(d.year, d.month)) {
    return {d.year, d.month, d.day + 1};
  }
  return d.month < 12 ? Civil{d.year, d.month + 1, 1} : Civil{d.year + 1, 1, 1};
}

constexpr Civil PreviousDay(Civil d) {
  if (d.day > 1) {
    return {d.year, d.month, d.day - 1};
  }
  return d.month > 1 ? Civil{d.year, d.month - 1, DaysOfMonth(d.year, d.month - 1)}
                     : Civil{d.year - 1, 12, 31};
}

constexpr Civil AddDays(Civil d, int days) {
  for (; days > 0; --days) {
    d = NextDay(d);
  }
  for (; days < 0; ++days) {
    d = PreviousDay(d);
  }
  return d;
}

// Number of the day since 1 January 1900, which is 0.
constexpr int DayNumber(Civil d) {
  const int y = d.year - 1;
  int days = 365 * (d.year - 1900) + (y / 4 - y / 100 + y / 400) -
             (1899 / 4 - 1899 / 100 + 1899 / 400) + d.day - 1;
  for (int month = 1; month < d.month; ++month) {
    days += DaysOfMonth(d.year, month);
  }
  return days;
}

// Day of the week, 0 = Sunday. 1 January 1900 was a Monday.
constexpr int DayOfWeek(Civil d) { return ((DayNumber(d) + 1) % 7 + 7) % 7; }

constexpr Civil kFirstDay{1900, 1, 1};
constexpr Civil kLastDay{2099, 12, 31};
static_assert(DayNumber({1900, 1, 1}) == 0 && DayNumber({2000, 3, 1}) == 36584 &&
              DayNumber(kLastDay) == 73048 && DayOfWeek({2024, 2, 29}) == 4);

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_CIVIL_H_
