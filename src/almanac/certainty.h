// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_CERTAINTY_H_
#define ALMARA_ALMANAC_CERTAINTY_H_

namespace almara {

// The largest difference, in seconds rounded up, between the table and the ephemeris of Moshier,
// whose theories of the Moon and the planets are others (scripts/almanac-table --error).
constexpr int kErrorOfNewMoons = 6;
constexpr int kErrorOfTerms = 3;

// How far an instant of a Gregorian year 1899 to 2101 may be from the table, in seconds: the error
// of the table, a second for what is measured of the Earth's rotation, and after the last year
// measured three standard errors of its prognosis.
int UncertaintyInYear(int year, int errorOfTable);

// Whether an instant within a second of the day, 0 to 86399, is certain of its day.
constexpr bool IsDayCertain(int second, int uncertainty) {
  return second >= uncertainty && second < 86400 - uncertainty;
}

}  // namespace almara

#endif  // ALMARA_ALMANAC_CERTAINTY_H_
