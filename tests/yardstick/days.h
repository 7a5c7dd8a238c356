// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_YARDSTICK_DAYS_H_
#define ALMARA_TESTS_YARDSTICK_DAYS_H_

#include <almara/almara_types.h>

#include <algorithm>
#include <random>
#include <vector>

#include "support/civil.h"

namespace almara::test {

// Every day from 1 January of firstYear to 31 December of lastYear, in order.
inline std::vector<CCalendarSolarDate> DaysOfYears(int firstYear, int lastYear) {
  std::vector<CCalendarSolarDate> days;
  for (Civil day{firstYear, 1, 1}; day.year <= lastYear; day = NextDay(day)) {
    days.push_back({day.year, day.month, day.day, 0});
  }
  return days;
}

// The same days in an order that is random but the same in every run.
inline std::vector<CCalendarSolarDate> Shuffled(std::vector<CCalendarSolarDate> days) {
  std::shuffle(days.begin(), days.end(), std::mt19937(20240210));
  return days;
}

}  // namespace almara::test

#endif  // ALMARA_TESTS_YARDSTICK_DAYS_H_
