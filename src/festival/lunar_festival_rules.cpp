// SPDX-License-Identifier: MIT
#include "festival/lunar_festival_rules.h"

#include <algorithm>
#include <iterator>

#include "date/kept_code.h"

namespace almara {
namespace {

// A festival of one region on a day of the lunar calendar.
struct LunarFestivalRule {
  ELanguage language;
  int month;  // 1 to 12
  int day;    // 1 to 30, or kLastDay
  EFestivalLunar code;
};

constexpr int kLastDay = 0;  // the last day of the month, the 29th or the 30th

// A region has lunar festivals if it has rules here.
constexpr LunarFestivalRule kRules[] = {
    {eLanguageChs, 1, 1, eFestivalLunarNewYearsDay},
    {eLanguageChs, 1, 15, eFestivalLunarLanternFestival},
    {eLanguageChs, 5, 5, eFestivalLunarDragonBoat},
    {eLanguageChs, 7, 7, eFestivalLunarDoubleSeventh},
    {eLanguageChs, 7, 15, eFestivalLunarGhostFestival},
    {eLanguageChs, 8, 15, eFestivalLunarMidAutumn},
    {eLanguageChs, 9, 9, eFestivalLunarDoubleNinth},
    {eLanguageChs, 12, 8, eFestivalLunarLaba},
    {eLanguageChs, 12, 23, eFestivalLunarLittleNewYear},
    {eLanguageChs, 12, kLastDay, eFestivalLunarNewYearsEve},

    {eLanguageKor, 4, 8, eFestivalLunarBuddhasBirthday},
    {eLanguageKor, 8, 15, eFestivalLunarMidAutumn},
    {eLanguageKor, 1, 1, eFestivalLunarNewYearsDay},

    {eLanguageCht, 1, 1, eFestivalLunarNewYearsDay},
    {eLanguageCht, 1, 15, eFestivalLunarLanternFestival},
    {eLanguageCht, 5, 5, eFestivalLunarDragonBoat},
    {eLanguageCht, 7, 7, eFestivalLunarDoubleSeventh},
    {eLanguageCht, 7, 15, eFestivalLunarGhostFestival},
    {eLanguageCht, 8, 15, eFestivalLunarMidAutumn},
    {eLanguageCht, 9, 9, eFestivalLunarDoubleNinth},
    {eLanguageCht, 12, 8, eFestivalLunarLaba},
    {eLanguageCht, 12, kLastDay, eFestivalLunarNewYearsEve},

    {eLanguageVit, 1, 1, eFestivalLunarNewYearsDay},
    {eLanguageVit, 1, 15, eFestivalLunarLanternFestival},
    {eLanguageVit, 3, 10, eFestivalLunarHungKings},
    {eLanguageVit, 5, 5, eFestivalLunarDragonBoat},
    {eLanguageVit, 7, 15, eFestivalLunarGhostFestival},
    {eLanguageVit, 8, 15, eFestivalLunarMidAutumn},
    {eLanguageVit, 9, 9, eFestivalLunarDoubleNinth},
    {eLanguageVit, 12, kLastDay, eFestivalLunarNewYearsEve},
};
static_assert(CanKeepCodes(std::begin(kRules), std::end(kRules)));

EFestivalLunar Find(ELanguage language, int month, int day) {
  for (const LunarFestivalRule& rule : kRules) {
    if (rule.language == language && rule.month == month && rule.day == day) {
      return rule.code;
    }
  }
  return eFestivalLunarNone;
}

}  // namespace

bool HasLunarFestivals(ELanguage language) {
  return std::any_of(std::begin(kRules), std::end(kRules),
                     [=](const LunarFestivalRule& rule) { return rule.language == language; });
}

EFestivalLunar RegionLunarFestival(ELanguage language, int lunarMonth, int lunarDay) {
  return lunarDay == kLastDay ? eFestivalLunarNone : Find(language, lunarMonth, lunarDay);
}

EFestivalLunar RegionMonthEndFestival(ELanguage language, int lunarMonth) {
  return Find(language, lunarMonth, kLastDay);
}

}  // namespace almara
