// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_LUNAR_DATE_H_
#define ALMARA_LUNAR_LUNAR_DATE_H_

#include <almara/almara_types.h>

#include "lunar/lunar_memo.h"

namespace almara {

// The thirty dates from 26 February to 27 March 2017, whose lunar date is fixed in every zone: the
// days 1 to 30 of month 2 of 2017. The new moon that begins the month falls so close to midnight of
// UTC+9 that the series miss the day there. 0 for any other date.
constexpr int FixedLunarDay(const CCalendarSolarDate& date) {
  if (date.year == 2017 && date.month == 2 && date.day >= 26 && date.day <= 28) {
    return date.day - 25;
  }
  return date.year == 2017 && date.month == 3 && date.day >= 1 && date.day <= 27 ? date.day + 3 : 0;
}

// The Chinese lunisolar date of a Gregorian one; the day of the week is not read. What one day of a
// quarter finds is kept in memo and serves the quarter's other days. The zone is in hours. Every
// int is answered in bounded time.
CCalendarLunarDate LunarDateOf(const CCalendarSolarDate& date, double zone, LunarMemo& memo);

}  // namespace almara

#endif  // ALMARA_LUNAR_LUNAR_DATE_H_
