// SPDX-License-Identifier: MIT
#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"
#include "lunar/lunar_date.h"
#include "lunar/sekki_lookup.h"

using almara::KeptCode;

namespace {

constexpr int kNoLanguage = 0;  // of questions that depend on the date alone

double Zone() { return CalendarPlatformApi::PlatformGetTimeZoneValue(); }

}  // namespace

CCalendarLunarDate CCalendarLogic::ConverterLunar(CCalendarSolarDate date) {
  return m_mapLunarDateCache.GetOrCompute(
      kNoLanguage, date, [&] { return almara::LunarDateOf(date, Zone(), m_lunarMemo); });
}

ESolarKyureki24 CCalendarLogic::Check24Sekki(CCalendarSolarDate date) {
  return m_map24SekkiCache.GetOrCompute(kNoLanguage, date, [&] {
    return static_cast<KeptCode>(almara::SekkiOf(date, Zone(), m_lunarMemo));
  });
}

EFestivalSolar CCalendarLogic::CheckFestivalSolar(ELanguage language, CCalendarSolarDate date) {
  return m_mapFestivalSolarCache.GetOrCompute(language, date, [&] {
    return static_cast<KeptCode>(m_festival.GetFestivalBySolar(language, date, GetDayCounting()));
  });
}

EFestivalLunar CCalendarLogic::CheckFestivalLunar(ELanguage language, CCalendarSolarDate date) {
  return m_mapFestivalLunarCache.GetOrCompute(language, date, [&] {
    return static_cast<KeptCode>(m_festival.GetFestivalByLunar(language, date, GetDayCounting()));
  });
}
