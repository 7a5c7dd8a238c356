// SPDX-License-Identifier: MIT
#include "lunar/historical_year.h"

#include <algorithm>
#include <cmath>

#include "date/gregorian.h"
#include "date/int32.h"

namespace almara {
namespace {

constexpr int kLastJulianYear = 1582;
constexpr double kFirstGregorianDay = 2299160.0;  // 1582-10-15

// A Gregorian year with the same February.
int YearLike(double year) {
  const int whole = TruncateToInt32(year);
  // MUTATE_EXCL: 1582 is no leap year under either rule.
  const bool isLeap = whole > kLastJulianYear ? IsLeapYear(whole) : whole % 4 == 0;
  // MUTATE_EXCL: any common year will do.
  return isLeap ? 2000 : 2001;
}

int MonthWithin(double month) { return std::clamp(TruncateToInt32(month), 1, kMonthsOfYear); }

}  // namespace

int DaysOfHistoricalMonth(double year, double month) {
  return DaysOfMonth(YearLike(year), MonthWithin(month));
}

double DayOfHistoricalYear(double year, double month, double day) {
  return day + DayOfYear(YearLike(year), MonthWithin(month), 0);
}

double MonthDayOfHistoricalYear(double year, double dayOfYear) {
  for (int month = kMonthsOfYear; month >= 2; --month) {
    const double first = DayOfHistoricalYear(year, month, 1);
    if (first <= dayOfYear) {
      return month * 100 + (dayOfYear - first + 1);
    }
  }
  return 100 + dayOfYear;
}

double HistoricalDayNumber(double year, double month, double day) {
  double days =
      std::floor((year - 1) * 365.25 + 0.1) + 1721422.0 + DayOfHistoricalYear(year, month, 0) + day;
  if (days >= kFirstGregorianDay) {
    days -= 10;
  }
  // MUTATE_EXCL: for 1601 there is nothing to add either way.
  if (year - 1 >= 1600) {
    const double x = year - 1 - 1600 + 0.1;
    days = days - std::floor(x / 100) + std::floor(x / 400);
  }
  return days;
}

}  // namespace almara
