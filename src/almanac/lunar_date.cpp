// SPDX-License-Identifier: MIT
#include "almanac/lunar_date.h"

namespace almara {

bool IsAlmanacDate(const CCalendarSolarDate& date) {
  return IsBoardDate(date.year, date.month, date.day) &&
         date.day <= DaysOfMonth(date.year, date.month);
}

bool IsAlmanacDay(int day) {
  return day >= DayNumber(kFirstYear, 1, 1) && day <= DayNumber(kLastYear, 12, 31);
}

CCalendarLunarDate LunarDateOf(const Calendar& calendar, const CCalendarSolarDate& date) {
  if (!IsAlmanacDate(date)) {
    return {};
  }
  const int day = DayNumber(date.year, date.month, date.day);
  const LunarMonth month = MonthOfDay(calendar, day, date.year);
  return {month.year, month.month, day - month.firstDay + 1, 0, month.leap};
}

int DayOf(const Calendar& calendar, const CCalendarLunarDate& date) {
  const auto month = FindMonth(calendar, date.year, date.month, date.leap);
  if (!month || date.day < 1 || date.day > month->days) {
    return 0;
  }
  const int day = month->firstDay + date.day - 1;
  return IsAlmanacDay(day) ? day : 0;
}

std::optional<LunarMonth> FindAlmanacMonth(const Calendar& calendar, int year, int month,
                                           int leap) {
  const auto found = FindMonth(calendar, year, month, leap);
  const bool inSpan =
      found && year <= kLastYear && found->firstDay + found->days > DayNumber(kFirstYear, 1, 1);
  return inSpan ? found : std::nullopt;
}

}  // namespace almara
