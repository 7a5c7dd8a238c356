// SPDX-License-Identifier: MIT
#include "festival/calendar_festival.h"

#include "date/calendar_platform_api.h"
#include "festival/lunar_festival_rules.h"

EFestivalSolar CCalendarFestival::GetFestivalBySolar(ELanguage language,
                                                     CCalendarSolarDate date) const {
  const EFestivalSolar own = RegionSolarFestival(language, date);
  return own != eFestivalSolarNone ? own : _GetCommonFestivalBySolar(date);
}

EFestivalSolar CCalendarFestival::_GetCommonFestivalBySolar(CCalendarSolarDate date) const {
  return CommonSolarFestival(date);
}

EFestivalLunar CCalendarFestival::GetFestivalByLunar(ELanguage language,
                                                     CCalendarSolarDate date) const {
  return HasLunarFestivals(language) ? LunarFestivalOfRegion(language, date) : eFestivalLunarNone;
}

CCalendarLunarDate CCalendarFestival::_GetLunarDate(CCalendarSolarDate date) const {
  return m_pCalendarLogic != nullptr ? LunarDateFromOwner(*m_pCalendarLogic, date)
                                     : CCalendarLunarDate{};
}

EFestivalLunar CCalendarFestival::LunarFestivalOfRegion(ELanguage language,
                                                        CCalendarSolarDate date) const {
  const CCalendarLunarDate lunar = _GetLunarDate(date);
  if (lunar.leap != 0) {
    return eFestivalLunarNone;
  }
  const EFestivalLunar festival = RegionLunarFestival(language, lunar.month, lunar.day);
  const EFestivalLunar monthEnd = RegionMonthEndFestival(language, lunar.month);
  if (festival != eFestivalLunarNone || monthEnd == eFestivalLunarNone) {
    return festival;
  }
  // The month ends today if another one begins tomorrow; whether that is a leap month is not asked.
  const CCalendarLunarDate next =
      _GetLunarDate(CalendarPlatformApi::GetNewDateByOffsetDays(date, 1));
  return next.day == 1 && next.month == lunar.month % 12 + 1 ? monthEnd : eFestivalLunarNone;
}
