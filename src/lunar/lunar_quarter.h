// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_LUNAR_QUARTER_H_
#define ALMARA_LUNAR_LUNAR_QUARTER_H_

#include <array>

#include "lunar/calendar_lunar_converter.h"

// A lunar month.
struct LunarMonth {
  int number;  // 1 to 12
  int leap;    // 1 if it repeats the number of the month before it
  int start;   // whole day count of its first day
};

// The quarter of a solar year from a solstice or equinox to the next, with the lunar months around
// it. All days of a quarter have the same months.
struct LunarQuarter {
  std::array<tagSolarKyurekiChu, 4> terms;  // principal terms, the last one opens the next quarter
  std::array<double, 5> moons;              // day counts of the new moons
  std::array<LunarMonth, 5> months;         // those that begin with the new moons
};

// Finds the quarter that holds a local day count, in the zone in force. False, with quarter
// unusable, if a search does not settle, which happens only millions of years away.
bool FindLunarQuarter(double dayCount, LunarQuarter& quarter);

// The lunar date of a day count of the quarter.
CCalendarLunarDate LunarDateInQuarter(const LunarQuarter& quarter, double dayCount);

#endif  // ALMARA_LUNAR_LUNAR_QUARTER_H_
