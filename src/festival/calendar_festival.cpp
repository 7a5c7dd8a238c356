// SPDX-License-Identifier: MIT
#include "festival/calendar_festival.h"

#include "date/day_run.h"
#include "festival/lunar_festival_rules.h"

using almara::DayCounting;

EFestivalSolar CCalendarFestival::GetFestivalBySolar(ELanguage language, CCalendarSolarDate date,
                                                     DayCounting counting) const {
  const EFestivalSolar own = almara::RegionSolarFestival(language, date, counting);
  return own != eFestivalSolarNone ? own : almara::CommonSolarFestival(date, counting);
}

EFestivalLunar CCalendarFestival::GetFestivalByLunar(ELanguage language, CCalendarSolarDate date,
                                                     DayCounting counting) const {
  if (!almara::HasLunarFestivals(language)) {
    return eFestivalLunarNone;
  }
  return almara::LunarFestival(language, _GetLunarDate(date), [&] {
    return _GetLunarDate(almara::DateByOffset(date, 1, counting));
  });
}

CCalendarLunarDate CCalendarFestival::_GetLunarDate(CCalendarSolarDate date) const {
  return m_owner != nullptr ? m_lunarDateOf(m_owner, date) : CCalendarLunarDate{};
}
