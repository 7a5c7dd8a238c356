// SPDX-License-Identifier: MIT
#include "logic/calendar_logic.h"

namespace {

constexpr int kNoLanguage = 0;  // of questions that depend on the date alone

}  // namespace

CCalendarLunarDate CCalendarLogic::ConverterLunar(CCalendarSolarDate date) {
  return m_mapLunarDateCache.GetOrCompute(
      kNoLanguage, date, [&] { return m_lunarSolarTerms.Converter(date, m_lunarQuarters); });
}

ESolarKyureki24 CCalendarLogic::Check24Sekki(CCalendarSolarDate date) {
  return m_map24SekkiCache.GetOrCompute(kNoLanguage, date, [&] {
    return static_cast<KeptCode>(m_lunarSolarTerms.Check24Sekki(date.year, date.month, date.day));
  });
}

EFestivalSolar CCalendarLogic::CheckFestivalSolar(ELanguage language, CCalendarSolarDate date) {
  return m_mapFestivalSolarCache.GetOrCompute(language, date, [&] {
    return static_cast<KeptCode>(m_festival.GetFestivalBySolar(language, date));
  });
}

EFestivalLunar CCalendarLogic::CheckFestivalLunar(ELanguage language, CCalendarSolarDate date) {
  return m_mapFestivalLunarCache.GetOrCompute(language, date, [&] {
    return static_cast<KeptCode>(m_festival.GetFestivalByLunar(language, date));
  });
}
