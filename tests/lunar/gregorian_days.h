// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_LUNAR_GREGORIAN_DAYS_H_
#define ALMARA_TESTS_LUNAR_GREGORIAN_DAYS_H_

#include <almara/almara_types.h>

#include <cstdio>
#include <string>

#include "support/civil.h"

namespace almara::test {

// Calls visit with every date of the years, in order.
template <typename Visit>
void ForEachDay(int firstYear, int lastYear, Visit visit) {
  for (Civil day{firstYear, 1, 1}; day.year <= lastYear; day = NextDay(day)) {
    visit(CCalendarSolarDate{day.year, day.month, day.day, 0});
  }
}

inline std::string Text(CCalendarSolarDate date) {
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
  return text;
}

// "2023-2-1", in a leap month "2023-2L-1".
inline std::string Text(CCalendarLunarDate date) {
  char text[64];
  std::snprintf(text, sizeof text, "%d-%d%s-%d", date.year, date.month, date.leap != 0 ? "L" : "",
                date.day);
  return text;
}

}  // namespace almara::test

#endif  // ALMARA_TESTS_LUNAR_GREGORIAN_DAYS_H_
