// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_LUNAR_FESTIVAL_RULES_H_
#define ALMARA_FESTIVAL_LUNAR_FESTIVAL_RULES_H_

#include <almara/almara_types.h>

// The festivals of the lunar calendar. These functions keep nothing and ask nothing.
namespace almara {

// Whether the region has lunar festivals at all.
bool HasLunarFestivals(ELanguage language);

// The region's festival on a month and day of the lunar calendar, eFestivalLunarNone if it has
// none. Does not know the last day of a month.
EFestivalLunar RegionLunarFestival(ELanguage language, int lunarMonth, int lunarDay);

// The region's festival on the last day of a lunar month, eFestivalLunarNone if it has none.
EFestivalLunar RegionMonthEndFestival(ELanguage language, int lunarMonth);

// The region's festival on a day, from the day's lunar date; eFestivalLunarNone if it has none. A
// leap month has no festivals.
//
// lunarDateOfNextDay() is called at most once, and only where the day may end a month that has a
// festival on its last day: the month ends if the next day begins another. Whether that one is a
// leap month is not asked.
template <typename NextDay>
EFestivalLunar LunarFestival(ELanguage language, const CCalendarLunarDate& lunar,
                             NextDay lunarDateOfNextDay) {
  if (lunar.leap != 0) {
    return eFestivalLunarNone;
  }
  const EFestivalLunar festival = RegionLunarFestival(language, lunar.month, lunar.day);
  const EFestivalLunar monthEnd = RegionMonthEndFestival(language, lunar.month);
  if (festival != eFestivalLunarNone || monthEnd == eFestivalLunarNone) {
    return festival;
  }
  const CCalendarLunarDate next = lunarDateOfNextDay();
  return next.day == 1 && next.month == lunar.month % 12 + 1 ? monthEnd : eFestivalLunarNone;
}

}  // namespace almara

#endif  // ALMARA_FESTIVAL_LUNAR_FESTIVAL_RULES_H_
