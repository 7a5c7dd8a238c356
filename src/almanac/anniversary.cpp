// SPDX-License-Identifier: MIT
#include "almanac/anniversary.h"

#include <algorithm>

#include "almanac/lunar_date.h"

namespace almara {

namespace {

constexpr int kLongMonth = 30;

// The month of a lunar year in which the anniversary falls, nothing if it falls in none.
std::optional<LunarMonth> MonthInYear(const Calendar& calendar, const CCalendarLunarDate& date,
                                      int year, EAlmanacAnniversary rules) {
  const auto month = FindMonth(calendar, year, date.month, date.leap);
  if (!month && date.leap == 1 && (rules & eAlmanacAnniversaryLeapMonthOnly) == 0) {
    return FindMonth(calendar, year, date.month, 0);
  }
  return month;
}

// The anniversary in a lunar year, 0 if it has none.
int DayInYear(const Calendar& calendar, const CCalendarLunarDate& date, int year,
              EAlmanacAnniversary rules) {
  const auto month = MonthInYear(calendar, date, year, rules);
  if (!month || (date.day > month->days && (rules & eAlmanacAnniversaryDay30Only) != 0)) {
    return 0;
  }
  return month->firstDay + std::min(date.day, month->days) - 1;
}

}  // namespace

int NextAnniversary(const Calendar& calendar, const CCalendarLunarDate& date,
                    const CCalendarSolarDate& from, EAlmanacAnniversary rules) {
  if (date.day < 1 || date.day > kLongMonth || !IsAlmanacDate(from)) {
    return 0;
  }
  const int fromDay = DayNumber(from.year, from.month, from.day);
  for (int year = LunarDateOf(calendar, from).year; year <= kLastYear; ++year) {
    const int day = DayInYear(calendar, date, year, rules);
    if (day >= fromDay) {
      return IsAlmanacDay(day) ? day : 0;
    }
  }
  return 0;
}

}  // namespace almara
