// SPDX-License-Identifier: MIT
#include "yardstick/engine.h"

#include <cstdio>

#include "yardstick/solar_terms.h"

namespace almara::test::yardstick {
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
                  [&] { return m_festival.GetFestivalBySolar(language, date); });
}

EFestivalLunar Engine::CheckFestivalLunar(ELanguage language, CCalendarSolarDate date) {
  return Remember(m_lunarFestivals, FestivalKey(language, date),
                  [&] { return m_festival.GetFestivalByLunar(language, date); });
}

}  // namespace almara::test::yardstick
