// SPDX-License-Identifier: MIT
#include "yardstick/engine.h"

#include <cstdio>

#include "date/calendar_platform_api.h"
#include "yardstick/solar_festivals.h"
#include "yardstick/solar_terms.h"

namespace yardstick {
namespace {

std::string DateKey(CCalendarSolarDate date) {
  char text[64];
  std::snprintf(text, sizeof text, "%.4d-%.2d-%.2d", date.year, date.month, date.day);
  return text;
}

std::string FestivalKey(ELanguage language, CCalendarSolarDate date) {
  char text[96];
  std::snprintf(text, sizeof text, "(%d)-(%s)", language, DateKey(date).c_str());
  return text;
}

template <typename Answer, typename Compute>
Answer Remember(std::map<std::string, Answer>& answers, const std::string& key, Compute compute) {
  const auto found = answers.find(key);
  if (found != answers.end()) {
    return found->second;
  }
  const Answer answer = compute();
  answers[key] = answer;
  return answer;
}

}  // namespace

CCalendarLunarDate Engine::ConverterLunar(CCalendarSolarDate date) {
  return Remember(m_lunarDates, DateKey(date), [&] { return m_converter.Converter(date); });
}

ESolarKyureki24 Engine::Check24Sekki(CCalendarSolarDate date) {
  return Remember(m_sekki, DateKey(date),
                  [&] { return yardstick::Check24Sekki(date.year, date.month, date.day); });
}

EFestivalSolar Engine::CheckFestivalSolar(ELanguage language, CCalendarSolarDate date) {
  return Remember(m_solarFestivals, FestivalKey(language, date),
                  [&] { return SolarFestival(language, date); });
}

EFestivalLunar Engine::CheckFestivalLunar(ELanguage language, CCalendarSolarDate date) {
  return Remember(m_lunarFestivals, FestivalKey(language, date),
                  [&] { return LunarFestival(language, date); });
}

EFestivalLunar Engine::LunarFestival(ELanguage language, CCalendarSolarDate date) {
  const bool chs = language == eLanguageChs;
  const bool cht = language == eLanguageCht;
  const bool kor = language == eLanguageKor;
  const bool vit = language == eLanguageVit;
  if (!chs && !cht && !kor && !vit) {
    return eFestivalLunarNone;
  }
  const CCalendarLunarDate lunar = ConverterLunar(date);
  if (lunar.leap != 0) {
    return eFestivalLunarNone;
  }
  switch (lunar.month * 100 + lunar.day) {
    case 101:
      return eFestivalLunarNewYearsDay;
    case 115:
      return kor ? eFestivalLunarNone : eFestivalLunarLanternFestival;
    case 310:
      return vit ? eFestivalLunarHungKings : eFestivalLunarNone;
    case 408:
      return kor ? eFestivalLunarBuddhasBirthday : eFestivalLunarNone;
    case 505:
      return kor ? eFestivalLunarNone : eFestivalLunarDragonBoat;
    case 707:
      return chs || cht ? eFestivalLunarDoubleSeventh : eFestivalLunarNone;
    case 715:
      return kor ? eFestivalLunarNone : eFestivalLunarGhostFestival;
    case 815:
      return eFestivalLunarMidAutumn;
    case 909:
      return kor ? eFestivalLunarNone : eFestivalLunarDoubleNinth;
    case 1208:
      if (chs || cht) {
        return eFestivalLunarLaba;
      }
      break;
    case 1223:
      if (chs) {
        return eFestivalLunarLittleNewYear;
      }
      break;
    default:
      break;
  }
  return lunar.month == 12 && !kor ? NewYearsEve(date) : eFestivalLunarNone;
}

EFestivalLunar Engine::NewYearsEve(CCalendarSolarDate date) {
  const CCalendarLunarDate next =
      ConverterLunar(CalendarPlatformApi::GetNewDateByOffsetDays(date, 1));
  return next.month == 1 && next.day == 1 ? eFestivalLunarNewYearsEve : eFestivalLunarNone;
}

}  // namespace yardstick
