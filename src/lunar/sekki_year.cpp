// SPDX-License-Identifier: MIT
#include "lunar/sekki_year.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "date/int32.h"
#include "lunar/historical_year.h"
#include "lunar/sekki_longitude.h"

namespace almara {
namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kHoursPerDay = 24;

// Whole days, at least 1, that do not lead past the day on which the Sun reaches a longitude, so
// that the crossing is always found in a step of one day.
double DaysShortOf(double longitude, double current) {
  // MUTATE_EXCL: a larger one costs steps, no answer.
  constexpr double kMaxDailyMotion = 1.03;  // degrees; the Sun is fastest in January, at 1.02
  const double ahead = longitude > current ? longitude - current : longitude - current + 360;
  return std::max(1.0, std::floor(ahead / kMaxDailyMotion));
}

// Days from J2000.0 to the day before 1 January, at 0h dynamical time.
double StartOfYear(double year) { return HistoricalDayNumber(year, 1, 0) - 2451544.5; }

// Days from start, itself days from J2000.0, to the first crossing of a longitude after it.
double CrossingAfter(double start, double longitudeAtStart, double longitude) {
  // MUTATE_EXCL: the two are never equal.
  const double turn = longitudeAtStart > longitude ? -360 : 0;
  // The Sun moves more than 0.9 degrees a day, so this lies before the crossing.
  double day = std::floor((longitude - longitudeAtStart - turn) * 0.9);
  for (double previous = longitudeAtStart;;) {
    const double current = SekkiSunLongitude(start + day);
    const double before = current < previous ? previous + turn : previous;
    if (current >= longitude && before < longitude) {
      const double slope = current - before;
      const double refined = day + (longitude - current) / slope;
      return refined + (longitude - SekkiSunLongitude(start + refined)) / slope;
    }
    previous = current;
    day += DaysShortOf(longitude, current);
  }
}

}  // namespace

// Given
//   year   Gregorian
// Returned
//   seconds
// Measured error
//   a straight line through the decades around 1990: within 45 seconds from 1800 to 2099
// Reference
//   source not identified
double DeltaT(double year) { return (year - 1990) * 0.44 + 58; }

double SunInstantOfYear(double year, double longitude) {
  const double start = StartOfYear(year);
  return CrossingAfter(start, SekkiSunLongitude(start), longitude);
}

// Given
//   year   1800.0 to 2099.0
//   zone   hours
// Returned
//   the 24 terms. The date is that of the local day that holds the instant.
// Time scale
//   local civil time: dynamical time minus DeltaT, plus the zone
// Measured error
//   the instants within 4.5 minutes of Swiss Ephemeris' built-in ephemeris from 1800 to 2099
void FindSekkiOfYear(double year, double zone, tag24SekkiResult* terms) {
  const double start = StartOfYear(year);
  const double longitudeAtStart = SekkiSunLongitude(start);
  for (int i = 0; i < kSekkiCount; ++i) {
    const int longitude = (285 + 15 * i) % 360;
    const double crossing = CrossingAfter(start, longitudeAtStart, longitude);
    const double instant = zone / kHoursPerDay + crossing - DeltaT(year) / kSecondsPerDay;
    const double day = std::floor(instant);
    const double monthDay = MonthDayOfHistoricalYear(year, day);

    terms[i].dSunLongitude = longitude;
    terms[i].nYear = TruncateToInt32(year);
    terms[i].nMonth = TruncateToInt32(std::floor(monthDay / 100));
    terms[i].nDay = TruncateToInt32(monthDay) % 100;
    terms[i].nHour = TruncateToInt32(std::floor((instant - day) * kHoursPerDay + 0.5));
    terms[i].nSekki = i;
  }
}

SekkiDays SekkiDaysOfYear(int year, double zone) {
  tag24SekkiResult terms[kSekkiCount] = {};
  FindSekkiOfYear(year, zone, terms);
  SekkiDays days{};
  for (std::size_t i = 0; i < kSekkiCount; ++i) {
    days.month[i] = terms[i].nMonth;
    days.day[i] = terms[i].nDay;
  }
  return days;
}

}  // namespace almara
