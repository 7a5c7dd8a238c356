// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_LUNAR_MONTH_H_
#define ALMARA_ALMANAC_LUNAR_MONTH_H_

#include <optional>

#include "almanac/calendar.h"

namespace almara {

// A month of the lunisolar calendar.
struct LunarMonth {
  int year;      // the Gregorian year in which the lunar year began
  int month;     // 1 to 12
  int leap;      // 1 in a leap month, else 0
  int firstDay;  // day number
  int days;      // 29 or 30
  int newMoon;   // in the table
};

// The month that holds a day, given the day's Gregorian year, 1900 to 2099.
LunarMonth MonthOfDay(const Calendar& calendar, int day, int gregorianYear);

// The month of a number; nothing if the year lacks it. Any int is accepted; the months reach from
// month 11 of 1899 to month 10 of 2100.
std::optional<LunarMonth> FindMonth(const Calendar& calendar, int year, int month, int leap);

// The month that a year 1900 to 2099 has twice, 0 if none.
int LeapMonthOfYear(const Calendar& calendar, int year);

}  // namespace almara

#endif  // ALMARA_ALMANAC_LUNAR_MONTH_H_
