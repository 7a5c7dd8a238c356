// SPDX-License-Identifier: MIT
#include "festival/calendar_festival_function.h"

#include <almara/almara_types.h>

#include <cstdint>

#include "date/day_run.h"
#include "date/gregorian.h"

using almara::DayCounting;

namespace {

// MUTATE_EXCL: any number that is no month will do.
constexpr std::int32_t kNotComputed = -1;

void Write(std::int32_t value, int* out) {
  if (out != nullptr) {
    *out = value;
  }
}

struct MonthDay {
  int month;
  int day;
};

// Given
//   year   Gregorian
// Returned
//   Easter Sunday. Before year 1 the date means nothing, but is one of February to April.
// Reference
//   J. Meeus, Astronomical Algorithms, second edition 1998, chapter 8; first printed without a name
//   in Nature, 20 April 1876
MonthDay AnonymousEaster(int year) {
  const int a = year % 19;
  const int b = year / 100;
  const int cy = year % 100;
  const int d = b / 4;
  const int e = b % 4;
  const int f = (b + 8) / 25;
  const int g = (b - f + 1) / 3;
  const int h = (19 * a + b - d - g + 15) % 30;
  const int i = cy / 4;
  const int k = cy % 4;
  const int l = (32 + 2 * e + 2 * i - h - k) % 7;
  const int m = (a + 11 * h + 22 * l) / 451;
  const int p = h + l - 7 * m + 114;
  return {p / 31, p % 31 + 1};
}

// The Easter that _GetEasterDay2 or _GetGoodFriday, the rules of the look-ups, computed last.
struct EasterCache {
  std::int32_t suEasterYear = kNotComputed;
  std::int32_t suEasterMonth = kNotComputed;
  std::int32_t suEasterDay = kNotComputed;

  bool Holds(int year) const { return suEasterMonth != kNotComputed && suEasterYear == year; }

  void Compute(int year) {
    const MonthDay easter = AnonymousEaster(year);
    suEasterYear = year;
    suEasterMonth = easter.month;
    suEasterDay = easter.day;
  }
};

EasterCache easterCache;

// The Good Friday that _GetGoodFriday computed last.
MonthDay goodFriday{kNotComputed, kNotComputed};

// The Friday at or before a date. A date that cannot be converted gives all zeroes.
CCalendarSolarDate FridayBefore(CCalendarSolarDate date, DayCounting counting) {
  const almara::DayRun run(date.year, date.month, date.day, counting);
  for (int offset = 0; offset > -almara::kDaysOfWeek; --offset) {
    CCalendarSolarDate earlier{};
    if (run.DateAt(offset, earlier) && earlier.dayOfWeek == eCalendarWeekFriday) {
      return earlier;
    }
  }
  return {};
}

}  // namespace

int CCalendarFestivalFunction::_GetDayByWeekNumberOfMonth(int year, int month, int n, int weekday,
                                                          DayCounting counting) {
  const int days = _GetMaxDaysOfSolarMonth(year, month);
  // MUTATE_EXCL: a month has -1 or at least 28 days.
  if (days < 0) {
    return -1;
  }
  const almara::DayRun run(year, month, 1, counting);
  int count = 0;
  for (int offset = 0; offset <= days; ++offset) {
    CCalendarSolarDate date{};
    if (run.DateAt(offset, date) && date.dayOfWeek == weekday && ++count == n) {
      return date.day;
    }
  }
  return -1;
}

int CCalendarFestivalFunction::_GetMaxDaysOfSolarMonth(int year, int month) {
  return almara::IsBoardDate(year, month, 1) ? almara::DaysOfMonth(year, month) : -1;
}

int CCalendarFestivalFunction::_GetEasterDay2(int year, int* month, int* day) {
  // Interface: the call that computes writes nothing.
  if (!easterCache.Holds(year)) {
    easterCache.Compute(year);
    return 1;
  }
  Write(easterCache.suEasterMonth, month);
  Write(easterCache.suEasterDay, day);
  return 1;
}

int CCalendarFestivalFunction::_GetGoodFriday(int year, int* month, int* day,
                                              DayCounting counting) {
  if (month == nullptr || day == nullptr) {
    return 0;
  }
  // Interface: the day is compared with the year.
  if (goodFriday.day == year && goodFriday.month != kNotComputed) {
    *month = goodFriday.month;
    *day = year;
    return 1;
  }
  if (!easterCache.Holds(year)) {
    easterCache.Compute(year);
  }
  const CCalendarSolarDate friday =
      FridayBefore({year, easterCache.suEasterMonth, easterCache.suEasterDay, 0}, counting);
  goodFriday = {friday.month, friday.day};
  *month = goodFriday.month;
  *day = goodFriday.day;
  return 1;
}

void almara::ForgetFeasts() {
  easterCache = {};
  goodFriday = {kNotComputed, kNotComputed};
}

// Kept for code that compiles against this class.

const int CCalendarFestivalFunction::s_ArrDaysOfSolarMonth[12] = {31, 28, 31, 30, 31, 30,
                                                                  31, 31, 30, 31, 30, 31};

namespace {

// The constants of Gauss's rule, by the last year they hold for.
struct GaussConstants {
  int lastYear;
  int m;
  int n;
};

constexpr int kGaussFirstYear = 1583;
constexpr GaussConstants kGaussConstants[] = {
    {1699, 22, 2}, {1799, 23, 3}, {1899, 23, 4}, {2099, 24, 5}, {2199, 24, 6}, {2299, 25, 0},
};

// Null outside the years of the rule.
const GaussConstants* GaussConstantsOf(int year) {
  if (year < kGaussFirstYear) {
    return nullptr;
  }
  for (const GaussConstants& constants : kGaussConstants) {
    if (year <= constants.lastYear) {
      return &constants;
    }
  }
  return nullptr;
}

// Given
//   year        of the span of constants
//   constants   M and N of the century
// Returned
//   Easter Sunday
// Reference
//   C. F. Gauss, Berechnung des Osterfestes (Monatliche Correspondenz zur Beförderung der Erd- und
//   Himmels-Kunde), 1800
MonthDay GaussEaster(int year, const GaussConstants& constants) {
  const int a = year % 19;
  const int d = (19 * a + constants.m) % 30;
  const int e = (2 * (year % 4) + 4 * (year % 7) + 6 * d + constants.n) % 7;
  if (d + e < 10) {
    return {3, d + e + 22};
  }
  const int day = d + e - 9;
  if (day == 26) {
    return {4, 19};
  }
  // On a 25th with d = 28, e is always 6.
  if (day == 25 && d == 28 && e >= 6 && a >= 11) {  // GCOVR_EXCL_BR_LINE
    return {4, 18};
  }
  return {4, day};
}

}  // namespace

int CCalendarFestivalFunction::_GetEasterDay(int year, int* month, int* day) {
  // Interface: the first year computed answers for every year. Kept apart from the Easter of the
  // look-ups, and for the life of the process.
  static std::int32_t suEasterMonth = kNotComputed;
  static std::int32_t suEasterDay = kNotComputed;
  if (suEasterMonth == kNotComputed) {
    const GaussConstants* constants = GaussConstantsOf(year);
    if (constants == nullptr || month == nullptr || day == nullptr) {
      return 0;
    }
    const MonthDay easter = GaussEaster(year, *constants);
    suEasterMonth = easter.month;
    suEasterDay = easter.day;
  }
  Write(suEasterMonth, month);
  Write(suEasterDay, day);
  return 1;
}
