// SPDX-License-Identifier: MIT
//
// What the calendars that the report compares have in common.
//
// Days are numbered as in support/civil.h: 0 is 1900-01-01, in whatever zone is spoken of. Moments
// are days from 1900-01-01 0h universal time, so that a moment lies on the local day
// floor(moment + zone / 24).
#ifndef ALMARA_TESTS_ACCURACY_LUNAR_DATE_H_
#define ALMARA_TESTS_ACCURACY_LUNAR_DATE_H_

#include <cmath>
#include <tuple>
#include <vector>

#include "support/civil.h"

namespace almara_accuracy {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2099;
constexpr int kDays = almara_test::DayNumber({kLastYear, 12, 31}) + 1;

inline almara_test::Civil CivilOf(int day) {
  almara_test::Civil date{kFirstYear + day / 366 - 1, 1, 1};
  while (almara_test::DayNumber({date.year + 1, 1, 1}) <= day) {
    ++date.year;
  }
  while (date.month < 12 && almara_test::DayNumber({date.year, date.month + 1, 1}) <= day) {
    ++date.month;
  }
  date.day += day - almara_test::DayNumber(date);
  return date;
}

// A date of the lunisolar calendar.
struct LunarDate {
  int year;   // the Gregorian year in which the lunar year began
  int month;  // 1 to 12
  int leap;   // 1 in a leap month
  int day;    // 1 to 30
};

inline bool operator==(const LunarDate& a, const LunarDate& b) {
  return std::tie(a.year, a.month, a.leap, a.day) == std::tie(b.year, b.month, b.leap, b.day);
}
inline bool operator!=(const LunarDate& a, const LunarDate& b) { return !(a == b); }

// The lunar dates of the days from kFirstYear to kLastYear, by day number.
using LunarDates = std::vector<LunarDate>;

// A solar term as an event in time.
struct SolarTerm {
  int longitude;  // of the Sun: a multiple of 15 degrees from 0 to 345
  double moment;
};

inline bool IsPrincipal(const SolarTerm& term) { return term.longitude % 30 == 0; }

// Hours east of universal time.
using Zone = int;

constexpr Zone kWestmostZone = -12;
constexpr Zone kEastmostZone = 14;

inline double LocalMoment(double moment, Zone zone) { return moment + zone / 24.0; }

inline int LocalDay(double moment, Zone zone) {
  return static_cast<int>(std::floor(LocalMoment(moment, zone)));
}

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_LUNAR_DATE_H_
