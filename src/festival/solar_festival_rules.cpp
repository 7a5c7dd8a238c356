// SPDX-License-Identifier: MIT
#include "festival/solar_festival_rules.h"

#include <algorithm>
#include <iterator>

#include "festival/calendar_festival_function.h"

namespace {

enum class RuleKind { kDay, kWeekday, kEasterSunday, kGoodFriday };

// A festival of one region, or one that holds in all of them.
struct SolarFestivalRule {
  ELanguage language;  // the region; kEveryRegion in the common rules
  EFestivalSolar code;
  RuleKind kind;
  int month;    // 1 to 12; 0 for a movable feast
  int nth;      // kWeekday: 1 for the first such day of the month
  int day;      // kDay: day of the month
  int weekday;  // kWeekday: ECalendarWeek
};

constexpr ELanguage kEveryRegion = 0;

constexpr SolarFestivalRule Day(ELanguage language, int month, int day, EFestivalSolar code) {
  return {language, code, RuleKind::kDay, month, 0, day, 0};
}

constexpr SolarFestivalRule Weekday(ELanguage language, int month, int nth, ECalendarWeek weekday,
                                    EFestivalSolar code) {
  return {language, code, RuleKind::kWeekday, month, nth, 0, weekday};
}

constexpr SolarFestivalRule EasterSunday(ELanguage language, EFestivalSolar code) {
  return {language, code, RuleKind::kEasterSunday, 0, 0, 0, 0};
}

constexpr SolarFestivalRule GoodFriday(ELanguage language, EFestivalSolar code) {
  return {language, code, RuleKind::kGoodFriday, 0, 0, 0, 0};
}

// The festivals of the regions. A region is what has rules here; the first of its rules that holds
// gives the festival. Rules by weekday hold from 1900 to 2099 only, all others in every year.
constexpr SolarFestivalRule kRegionRules[] = {
    Day(eLanguageChs, 2, 14, eFestivalSolarValentinesDay),
    Day(eLanguageChs, 3, 12, eFestivalSolarArborDay),
    Day(eLanguageChs, 3, 15, eFestivalSolarConsumerRightsDay),
    Day(eLanguageChs, 5, 4, eFestivalSolarYouthDay),
    Weekday(eLanguageChs, 5, 2, eCalendarWeekSunday, eFestivalSolarMothersDay),
    Day(eLanguageChs, 6, 1, eFestivalSolarChildrensDay),
    Weekday(eLanguageChs, 6, 3, eCalendarWeekSunday, eFestivalSolarFathersDay),
    Day(eLanguageChs, 7, 1, eFestivalSolarPartyFoundationDay),
    Day(eLanguageChs, 8, 1, eFestivalSolarArmyDay),
    Day(eLanguageChs, 9, 10, eFestivalSolarTeachersDay),
    Day(eLanguageChs, 10, 1, eFestivalSolarNationalDayChs),

    Day(eLanguageKor, 3, 1, eFestivalSolarIndependenceMovementDay),
    Day(eLanguageKor, 4, 5, eFestivalSolarArborDay),
    Day(eLanguageKor, 5, 5, eFestivalSolarChildrensDayKor),
    Day(eLanguageKor, 6, 6, eFestivalSolarMemorialDayKor),
    Day(eLanguageKor, 8, 15, eFestivalSolarLiberationDayKor),
    Day(eLanguageKor, 10, 3, eFestivalSolarNationalFoundationDayKor),
    Day(eLanguageKor, 10, 9, eFestivalSolarHangulDay),
    Day(eLanguageKor, 12, 25, eFestivalSolarChristmasKor),

    Weekday(eLanguageUsa, 1, 3, eCalendarWeekMonday, eFestivalSolarMartinLutherKingDay),
    Weekday(eLanguageUsa, 6, 1, eCalendarWeekSunday, eFestivalSolarChildrensDay),
    Day(eLanguageUsa, 7, 4, eFestivalSolarIndependenceDay),
    Weekday(eLanguageUsa, 9, 1, eCalendarWeekMonday, eFestivalSolarLaborDayUsa),
    EasterSunday(eLanguageUsa, eFestivalSolarEaster),
    GoodFriday(eLanguageUsa, eFestivalSolarGoodFriday),

    Day(eLanguageCht, 2, 14, eFestivalSolarValentinesDay),
    Day(eLanguageCht, 2, 28, eFestivalSolarPeaceMemorialDay),
    Day(eLanguageCht, 3, 12, eFestivalSolarArborDay),
    Day(eLanguageCht, 4, 4, eFestivalSolarChildrensDay),
    Weekday(eLanguageCht, 5, 2, eCalendarWeekSunday, eFestivalSolarMothersDay),
    Day(eLanguageCht, 8, 8, eFestivalSolarFathersDay),
    Day(eLanguageCht, 9, 28, eFestivalSolarTeachersDay),
    Day(eLanguageCht, 10, 10, eFestivalSolarNationalDayCht),

    Day(eLanguageRus, 6, 1, eFestivalSolarChildrensDay),

    Day(eLanguageDeu, 6, 1, eFestivalSolarChildrensDay),
    Day(eLanguageDeu, 9, 20, eFestivalSolarChildrensDay),

    Day(eLanguageJpn, 1, 1, eFestivalSolarGanjitsu),
    Weekday(eLanguageJpn, 1, 2, eCalendarWeekMonday, eFestivalSolarComingOfAgeDay),
    Day(eLanguageJpn, 2, 11, eFestivalSolarFoundationDayJpn),
    Day(eLanguageJpn, 3, 3, eFestivalSolarHinamatsuri),
    Day(eLanguageJpn, 4, 29, eFestivalSolarShowaDay),
    Day(eLanguageJpn, 5, 3, eFestivalSolarConstitutionDayJpn),
    Day(eLanguageJpn, 5, 4, eFestivalSolarGreeneryDay),
    Day(eLanguageJpn, 5, 5, eFestivalSolarChildrensDayJpn),
    Weekday(eLanguageJpn, 7, 3, eCalendarWeekMonday, eFestivalSolarMarineDay),
    Weekday(eLanguageJpn, 9, 3, eCalendarWeekMonday, eFestivalSolarRespectForTheAgedDay),
    Weekday(eLanguageJpn, 10, 2, eCalendarWeekMonday, eFestivalSolarSportsDay),
    Day(eLanguageJpn, 11, 3, eFestivalSolarCultureDay),
    Day(eLanguageJpn, 11, 23, eFestivalSolarLabourThanksgivingDay),
    Day(eLanguageJpn, 12, 23, eFestivalSolarEmperorsBirthday),

    Day(eLanguageEng, 7, 14, eFestivalSolarChildrensDay),

    Day(eLanguageVit, 1, 1, eFestivalSolarNewYearsDay),
    Day(eLanguageVit, 4, 30, eFestivalSolarReunificationDay),
    Day(eLanguageVit, 5, 19, eFestivalSolarHoChiMinhsBirthday),
    Day(eLanguageVit, 6, 1, eFestivalSolarChildrensDay),
    Day(eLanguageVit, 9, 2, eFestivalSolarNationalDayVit),

    Weekday(eLanguageTha, 1, 2, eCalendarWeekSaturday, eFestivalSolarChildrensDay),
};

// The festivals of every region.
constexpr SolarFestivalRule kCommonRules[] = {
    Weekday(kEveryRegion, 11, 4, eCalendarWeekThursday, eFestivalSolarThanksgiving),
    Day(kEveryRegion, 1, 1, eFestivalSolarNewYearsDay),
    Day(kEveryRegion, 3, 8, eFestivalSolarWomensDay),
    Day(kEveryRegion, 4, 1, eFestivalSolarAprilFoolsDay),
    Day(kEveryRegion, 4, 7, eFestivalSolarHealthDay),
    Day(kEveryRegion, 4, 22, eFestivalSolarEarthDay),
    Day(kEveryRegion, 5, 1, eFestivalSolarLabourDay),
    Day(kEveryRegion, 5, 31, eFestivalSolarNoTobaccoDay),
    Day(kEveryRegion, 10, 31, eFestivalSolarHalloween),
    Day(kEveryRegion, 12, 24, eFestivalSolarChristmasEve),
    Day(kEveryRegion, 12, 25, eFestivalSolarChristmasDay),
    Day(kEveryRegion, 12, 31, eFestivalSolarNewYearsEve),
};

// The movable feasts of a year as the Easter rules tell them; 0 where they tell nothing.
struct MovableFeasts {
  int easterMonth = 0;
  int easterDay = 0;
  int goodFridayMonth = 0;
  int goodFridayDay = 0;
};

bool IsMovable(const SolarFestivalRule& rule) {
  return rule.kind != RuleKind::kDay && rule.kind != RuleKind::kWeekday;
}

MovableFeasts FeastsFor(ELanguage language, int year) {
  MovableFeasts feasts;
  const bool asks = std::any_of(
      std::begin(kRegionRules), std::end(kRegionRules),
      [=](const SolarFestivalRule& rule) { return rule.language == language && IsMovable(rule); });
  if (asks) {
    CCalendarFestivalFunction::_GetEasterDay2(year, &feasts.easterMonth, &feasts.easterDay);
    CCalendarFestivalFunction::_GetGoodFriday(year, &feasts.goodFridayMonth, &feasts.goodFridayDay);
  }
  return feasts;
}

bool Holds(const SolarFestivalRule& rule, CCalendarSolarDate date, const MovableFeasts& feasts) {
  switch (rule.kind) {
    case RuleKind::kDay:
      return date.month == rule.month && date.day == rule.day;
    case RuleKind::kWeekday: {
      if (date.month != rule.month) {
        return false;
      }
      const int day = CCalendarFestivalFunction::_GetDayByWeekNumberOfMonth(date.year, rule.month,
                                                                            rule.nth, rule.weekday);
      return day != -1 && date.day == day;
    }
    case RuleKind::kEasterSunday:
      return date.month == feasts.easterMonth && date.day == feasts.easterDay;
    case RuleKind::kGoodFriday:
      break;
  }
  return date.month == feasts.goodFridayMonth && date.day == feasts.goodFridayDay;
}

}  // namespace

EFestivalSolar RegionSolarFestival(ELanguage language, CCalendarSolarDate date) {
  const MovableFeasts feasts = FeastsFor(language, date.year);
  for (const SolarFestivalRule& rule : kRegionRules) {
    if (rule.language == language && Holds(rule, date, feasts)) {
      return rule.code;
    }
  }
  return eFestivalSolarNone;
}

EFestivalSolar CommonSolarFestival(CCalendarSolarDate date) {
  for (const SolarFestivalRule& rule : kCommonRules) {
    if (Holds(rule, date, {})) {
      return rule.code;
    }
  }
  return eFestivalSolarNone;
}
