// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_SEKKI_YEAR_H_
#define ALMARA_LUNAR_SEKKI_YEAR_H_

#include <array>

// One solar term of a year.
struct tag24SekkiResult {
  double dSunLongitude;  // degrees, (285 + 15 * nSekki) mod 360
  int nYear;             // the year asked for
  int nMonth;            // local civil date, 1 to 12
  int nDay;
  int nHour;   // the instant rounded to hours, 0 to 24; 24 is not carried into the next day
  int nSekki;  // ESolarKyureki24, 0 to 23
};

constexpr int kSekkiCount = 24;

namespace almara {

// Solar terms are worked out for these years, both ends included.
constexpr int kFirstSekkiYear = 1800;
constexpr int kLastSekkiYear = 2099;

// Dynamical minus universal time in a year, in seconds.
double DeltaT(double year);

// The moment of a year at which the Sun reaches a longitude, 0 to below 360 degrees: the first one
// from 1 January on. In days of dynamical time, 1.0 = 1 January at 0h.
double SunInstantOfYear(double year, double longitude);

// The terms of a year of the span, in the order of ESolarKyureki24; the zone is in hours. A zone of
// more than a day, such as the mark of an unknown zone, gives days that do not exist.
void FindSekkiOfYear(double year, double zone, tag24SekkiResult* terms);

// Month and day of each term of a year.
struct SekkiDays {
  std::array<int, kSekkiCount> month;
  std::array<int, kSekkiCount> day;
};

SekkiDays SekkiDaysOfYear(int year, double zone);

}  // namespace almara

#endif  // ALMARA_LUNAR_SEKKI_YEAR_H_
