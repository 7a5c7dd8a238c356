// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_LUNAR_QUARTER_H_
#define ALMARA_LUNAR_LUNAR_QUARTER_H_

#include <almara/almara_types.h>

#include <array>
#include <optional>

#include "lunar/longitude_search.h"

namespace almara {

// A lunar month of a quarter.
struct QuarterMonth {
  int number;  // 1 to 12
  int leap;    // 1 if it repeats the number of the month before it
  int start;   // whole day count of its first day
};

// The quarter of a solar year from a solstice or equinox to the next, with the lunar months around
// it. All days of a quarter have the same months.
struct LunarQuarter {
  std::array<SunCrossing, 4> terms;    // principal terms, the last one opens the next quarter
  std::array<double, 5> moons;         // day counts of the new moons
  std::array<QuarterMonth, 5> months;  // those that begin with the new moons
};

// Finds the quarter that holds a local day count; the zone is in hours. None if a search does not
// settle, which happens only millions of years away.
std::optional<LunarQuarter> FindLunarQuarter(double dayCount, double zone);

// The lunar date of a day count of the quarter.
CCalendarLunarDate LunarDateInQuarter(const LunarQuarter& quarter, double dayCount);

}  // namespace almara

#endif  // ALMARA_LUNAR_LUNAR_QUARTER_H_
