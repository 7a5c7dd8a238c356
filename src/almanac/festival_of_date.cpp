// SPDX-License-Identifier: MIT
#include "almanac/festival_of_date.h"

#include "almanac/lunar_date.h"
#include "festival/lunar_festival_rules.h"

namespace almara {

EFestivalLunar FestivalOfDate(const Calendar& calendar, ELanguage language,
                              const CCalendarSolarDate& date) {
  if (!IsAlmanacDate(date)) {
    return eFestivalLunarNone;
  }
  return LunarFestival(language, LunarDateOf(calendar, date), [&] {
    const int day = DayNumber(date.year, date.month, date.day);
    return LunarDateOf(calendar, DateOfDayNumber(day + 1));
  });
}

}  // namespace almara
