// SPDX-License-Identifier: MIT
#include "festival/calendar_festival.h"

#include "date/calendar_platform_api.h"
#include "festival/lunar_festival_rules.h"

EFestivalSolar CCalendarFestival::GetFestivalBySolar(ELanguage language,
                                                     CCalendarSolarDate date) const {
  const EFestivalSolar own = almara::RegionSolarFestival(language, date);
  return own != eFestivalSolarNone ? own : almara::CommonSolarFestival(date);
}

EFestivalLunar CCalendarFestival::GetFestivalByLunar(ELanguage language,
                                                     CCalendarSolarDate date) const {
  if (!almara::HasLunarFestivals(language)) {
    return eFestivalLunarNone;
  }
  return almara::LunarFestival(language, _GetLunarDate(date), [&] {
    return _GetLunarDate(CalendarPlatformApi::GetNewDateByOffsetDays(date, 1));
  });
}

CCalendarLunarDate CCalendarFestival::_GetLunarDate(CCalendarSolarDate date) const {
  return m_owner != nullptr ? m_lunarDateOf(m_owner, date) : CCalendarLunarDate{};
}
