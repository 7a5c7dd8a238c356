// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_INSTANTS_H_
#define ALMARA_ALMANAC_INSTANTS_H_

#include <cstdint>

#include "almanac/instants_table.h"
#include "date/civil_day.h"

// Instants of new moons and solar terms, in whole seconds of universal time from kOriginDay 0h on,
// cut and not rounded.
namespace almara {

constexpr int kSecondsOfDay = 86400;
constexpr int kOriginDay = DayNumber(kFirstTermYear, 1, 1);

// New moon k, 0 to kNewMoons - 1.
constexpr std::int64_t NewMoon(int k) { return kFirstNewMoon + k * kLunation + kNewMoonDeltas[k]; }

// A term 0 to 23 (ESolarKyureki24) of a Gregorian year 1899 to 2101.
constexpr std::int64_t SolarTerm(int year, int term) {
  const int y = year - kFirstTermYear;
  return kTermBases[term] + y * kTropicalYear + kTermDeltas[y][term];
}

// The last new moon that can be on or before a day in any zone, so that a search downward from it
// finds the right one at once or after one step. Days of 1899-02-01 to 2101-11-30.
constexpr int LastNewMoonGuess(int day) {
  constexpr std::int64_t kMargin = 210000;  // a day, 18 hours of zone, and what deltas come to
  return static_cast<int>(
      (static_cast<std::int64_t>(day - kOriginDay) * kSecondsOfDay - kFirstNewMoon + kMargin) /
      kLunation);
}

}  // namespace almara

#endif  // ALMARA_ALMANAC_INSTANTS_H_
