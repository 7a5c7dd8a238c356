// SPDX-License-Identifier: MIT
#include "lunar/calendar_lunar_converter.h"
#include "lunar/truncated.h"

namespace {

constexpr double kSecondsPerDay = 86400.0;
constexpr double kSecondsPerHour = 3600.0;
constexpr double kSecondsPerMinute = 60.0;

// The last day of February as far as _JD2YMDT limits it. Century years count as leap.
double LastDayOfFebruary(double year) { return almara::TruncateToInt32(year) % 4 == 0 ? 29 : 28; }

void SetTimeOfDay(double jd, tagSolarKyurekiYMDT& out) {
  const double seconds = (jd - Truncated(jd)) * kSecondsPerDay;
  out.hour = Truncated(seconds / kSecondsPerHour);
  const double rest = seconds - kSecondsPerHour * out.hour;
  out.minute = Truncated(rest / kSecondsPerMinute);
  out.second = Truncated(rest - kSecondsPerMinute * out.minute);
}

}  // namespace

// Gregorian date and time to a day count.
//
// Given
//   year, month, day      Gregorian date
//   hour, minute, second  time of day
// Returned
//   days; 2000-01-01 00:00 gives 2451544.0
// Time scale
//   that of the arguments
// Span
//   Exact for the proleptic Gregorian dates of the years 1 to 9998, and beyond as long as 365.25 *
//   year fits 32 bits. A month below 3 counts as that month of the year before plus 12 and months
//   count 30.59 days, so a month outside the calendar lands only near where it points. A part that
//   does not fit 32 bits is taken as -2147483648.
double CCalendarLunarConverter::_YMDT2JD(double year, double month, double day, double hour,
                                         double minute, double second) {
  const double y = month < 3 ? year - 1 : year;
  const double m = month < 3 ? month + 12 : month;
  return Truncated(365.25 * y) + Truncated(y / 400) - Truncated(y / 100) +
         Truncated(30.59 * (m - 2)) + 1721088 + day + (hour + minute / 60 + second / 3600) / 24;
}

// Day count to Gregorian date and time.
//
// Given
//   jd   days
// Returned
//   1 with the date in *out, or 0 with nothing written where out is null
// Time scale
//   that of jd
// Span
//   Exact to the day for the years 1 to 9998. In leap years, and in common years such as 2037 and
//   2041, the last day of February comes out of the division one too high and is put right by the
//   limit on February; that limit takes century years for leap years, but no day of 1 to 9998 meets
//   it there. Times of day are cut to whole seconds. Below -68570 the truncation toward zero shifts
//   the result.
int CCalendarLunarConverter::_JD2YMDT(double jd, tagSolarKyurekiYMDT* out) {
  if (out == nullptr) {
    return 0;
  }
  const double x0 = Truncated(jd + 68570);
  const double century = Truncated(x0 / 36524.25);
  const double x2 = x0 - Truncated(36524.25 * century + 0.75);
  const double yearOfCentury = Truncated((x2 + 1) / 365.2425);
  const double x4 = x2 - Truncated(365.25 * yearOfCentury) + 31;
  const double monthFromMarch = Truncated(Truncated(x4) / 30.59);
  const double carry = Truncated(monthFromMarch / 11);

  out->day = x4 - Truncated(30.59 * monthFromMarch);
  out->month = monthFromMarch - 12 * carry + 2;
  out->year = 100 * (century - 49) + yearOfCentury + carry;
  if (out->day > 28 && out->month == 2) {
    out->day = LastDayOfFebruary(out->year);
  }
  SetTimeOfDay(jd, *out);
  return 1;
}
