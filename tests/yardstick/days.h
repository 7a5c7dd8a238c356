// SPDX-License-Identifier: MIT
#ifndef ALMARA_YARDSTICK_DAYS_H_
#define ALMARA_YARDSTICK_DAYS_H_

#include <almara/almara_types.h>

#include <algorithm>
#include <random>
#include <vector>

namespace almara::test {

// Every day from 1 January of firstYear to 31 December of lastYear, in order.
inline std::vector<CCalendarSolarDate> DaysOfYears(int firstYear, int lastYear) {
  std::vector<CCalendarSolarDate> days;
  for (int year = firstYear; year <= lastYear; ++year) {
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int lengths[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= lengths[month - 1]; ++day) {
        days.push_back({year, month, day, 0});
      }
    }
  }
  return days;
}

// The same days in an order that is random but the same in every run.
inline std::vector<CCalendarSolarDate> Shuffled(std::vector<CCalendarSolarDate> days) {
  std::shuffle(days.begin(), days.end(), std::mt19937(20240210));
  return days;
}

}  // namespace almara::test

#endif  // ALMARA_YARDSTICK_DAYS_H_
