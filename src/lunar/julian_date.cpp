// SPDX-License-Identifier: MIT
#include "lunar/julian_date.h"

#include "lunar/truncated.h"

namespace almara {
namespace {

constexpr double kSecondsPerDay = 86400.0;
constexpr double kSecondsPerHour = 3600.0;
constexpr double kSecondsPerMinute = 60.0;

// The last day of February as far as DateOfDayCount limits it. Century years count as leap years.
double LastDayOfFebruary(double year) { return TruncateToInt32(year) % 4 == 0 ? 29 : 28; }

void SetTimeOfDay(double dayCount, tagSolarKyurekiYMDT& date) {
  const double seconds = (dayCount - Truncated(dayCount)) * kSecondsPerDay;
  date.hour = Truncated(seconds / kSecondsPerHour);
  const double rest = seconds - kSecondsPerHour * date.hour;
  date.minute = Truncated(rest / kSecondsPerMinute);
  date.second = Truncated(rest - kSecondsPerMinute * date.minute);
}

}  // namespace

// Given
//   year, month, day      Gregorian date
//   hour, minute, second  time of day
// Returned
//   days
// Time scale
//   that of the arguments
// Span
//   Exact for the proleptic Gregorian dates of the years 1 to 9998, and beyond as long as 365.25 *
//   year fits 32 bits. A month below 3 counts as that month of the year before plus 12 and months
//   count 30.59 days, so a month outside the calendar lands only near where it points. A part that
//   does not fit 32 bits is taken as -2147483648.
// Reference
//   source not identified
double DayCount(double year, double month, double day, double hour, double minute, double second) {
  const double y = month < 3 ? year - 1 : year;
  const double m = month < 3 ? month + 12 : month;
  return Truncated(365.25 * y) + Truncated(y / 400) - Truncated(y / 100) +
         Truncated(30.59 * (m - 2)) + 1721088 + day + (hour + minute / 60 + second / 3600) / 24;
}

// Given
//   dayCount   days
// Returned
//   the date; times of day are cut to whole seconds
// Time scale
//   that of dayCount
// Span
//   Exact to the day for the years 1 to 9998. In leap years, and in common years such as 2037 and
//   2041, the last day of February comes out of the division one too high and is put right by the
//   limit on February; that limit takes century years for leap years, but no day of 1 to 9998 meets
//   it there. Below -68570 the truncation toward zero shifts the result.
// Reference
//   source not identified
tagSolarKyurekiYMDT DateOfDayCount(double dayCount) {
  const double x0 = Truncated(dayCount + 68570);
  const double century = Truncated(x0 / 36524.25);
  const double x2 = x0 - Truncated(36524.25 * century + 0.75);
  const double yearOfCentury = Truncated((x2 + 1) / 365.2425);
  const double x4 = x2 - Truncated(365.25 * yearOfCentury) + 31;
  const double monthFromMarch = Truncated(Truncated(x4) / 30.59);
  const double carry = Truncated(monthFromMarch / 11);

  tagSolarKyurekiYMDT date{};
  date.day = x4 - Truncated(30.59 * monthFromMarch);
  date.month = monthFromMarch - 12 * carry + 2;
  date.year = 100 * (century - 49) + yearOfCentury + carry;
  if (date.day > 28 && date.month == 2) {
    date.day = LastDayOfFebruary(date.year);
  }
  SetTimeOfDay(dayCount, date);
  return date;
}

}  // namespace almara
