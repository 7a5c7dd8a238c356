// SPDX-License-Identifier: MIT
#include "festival/solar_festival_rules.h"

#include <cstddef>

#include "date/kept_code.h"
#include "festival/calendar_festival_function.h"

namespace almara {
namespace {

enum class RuleKind { kDay, kWeekday, kEasterSunday, kGoodFriday };

struct SolarFestivalRule {
  EFestivalSolar code;
  RuleKind kind;
  int month;    // 1 to 12; 0 for a movable feast
  int day;      // kDay: day of the month
  int nth;      // kWeekday: 1 for the first such day of the month
  int weekday;  // kWeekday: ECalendarWeek
};

constexpr SolarFestivalRule Day(int month, int day, EFestivalSolar code) {
  return {code, RuleKind::kDay, month, day, 0, 0};
}

// Holds from 1900 to 2099 only, all other rules in every year.
constexpr SolarFestivalRule Weekday(int month, int nth, ECalendarWeek weekday,
                                    EFestivalSolar code) {
  return {code, RuleKind::kWeekday, month, 0, nth, weekday};
}

constexpr SolarFestivalRule EasterSunday(EFestivalSolar code) {
  // MUTATE_EXCL: the numbers of this kind are not read.
  return {code, RuleKind::kEasterSunday, 0, 0, 0, 0};
}

constexpr SolarFestivalRule GoodFriday(EFestivalSolar code) {
  // MUTATE_EXCL: the numbers of this kind are not read.
  return {code, RuleKind::kGoodFriday, 0, 0, 0, 0};
}

// Of the rules of a list the first that holds gives the festival.
constexpr SolarFestivalRule kRulesChs[] = {
    Day(2, 14, eFestivalSolarValentinesDay),
    Day(3, 12, eFestivalSolarArborDay),
    Day(3, 15, eFestivalSolarConsumerRightsDay),
    Day(5, 4, eFestivalSolarYouthDay),
    Weekday(5, 2, eCalendarWeekSunday, eFestivalSolarMothersDay),
    Day(6, 1, eFestivalSolarChildrensDay),
    Weekday(6, 3, eCalendarWeekSunday, eFestivalSolarFathersDay),
    Day(7, 1, eFestivalSolarPartyFoundationDay),
    Day(8, 1, eFestivalSolarArmyDay),
    Day(9, 10, eFestivalSolarTeachersDay),
    Day(10, 1, eFestivalSolarNationalDayChs),
};

constexpr SolarFestivalRule kRulesKor[] = {
    Day(3, 1, eFestivalSolarIndependenceMovementDay),
    Day(4, 5, eFestivalSolarArborDay),
    Day(5, 5, eFestivalSolarChildrensDayKor),
    Day(6, 6, eFestivalSolarMemorialDayKor),
    Day(8, 15, eFestivalSolarLiberationDayKor),
    Day(10, 3, eFestivalSolarNationalFoundationDayKor),
    Day(10, 9, eFestivalSolarHangulDay),
    Day(12, 25, eFestivalSolarChristmasKor),
};

constexpr SolarFestivalRule kRulesUsa[] = {
    Weekday(1, 3, eCalendarWeekMonday, eFestivalSolarMartinLutherKingDay),
    Weekday(6, 1, eCalendarWeekSunday, eFestivalSolarChildrensDay),
    Day(7, 4, eFestivalSolarIndependenceDay),
    Weekday(9, 1, eCalendarWeekMonday, eFestivalSolarLaborDayUsa),
    EasterSunday(eFestivalSolarEaster),
    GoodFriday(eFestivalSolarGoodFriday),
};

constexpr SolarFestivalRule kRulesCht[] = {
    Day(2, 14, eFestivalSolarValentinesDay),
    Day(2, 28, eFestivalSolarPeaceMemorialDay),
    Day(3, 12, eFestivalSolarArborDay),
    Day(4, 4, eFestivalSolarChildrensDay),
    Weekday(5, 2, eCalendarWeekSunday, eFestivalSolarMothersDay),
    Day(8, 8, eFestivalSolarFathersDay),
    Day(9, 28, eFestivalSolarTeachersDay),
    Day(10, 10, eFestivalSolarNationalDayCht),
};

constexpr SolarFestivalRule kRulesRus[] = {
    Day(6, 1, eFestivalSolarChildrensDay),
};

constexpr SolarFestivalRule kRulesDeu[] = {
    Day(6, 1, eFestivalSolarChildrensDay),
    Day(9, 20, eFestivalSolarChildrensDay),
};

constexpr SolarFestivalRule kRulesJpn[] = {
    Day(1, 1, eFestivalSolarGanjitsu),
    Weekday(1, 2, eCalendarWeekMonday, eFestivalSolarComingOfAgeDay),
    Day(2, 11, eFestivalSolarFoundationDayJpn),
    Day(3, 3, eFestivalSolarHinamatsuri),
    Day(4, 29, eFestivalSolarShowaDay),
    Day(5, 3, eFestivalSolarConstitutionDayJpn),
    Day(5, 4, eFestivalSolarGreeneryDay),
    Day(5, 5, eFestivalSolarChildrensDayJpn),
    Weekday(7, 3, eCalendarWeekMonday, eFestivalSolarMarineDay),
    Weekday(9, 3, eCalendarWeekMonday, eFestivalSolarRespectForTheAgedDay),
    Weekday(10, 2, eCalendarWeekMonday, eFestivalSolarSportsDay),
    Day(11, 3, eFestivalSolarCultureDay),
    Day(11, 23, eFestivalSolarLabourThanksgivingDay),
    Day(12, 23, eFestivalSolarEmperorsBirthday),
};

constexpr SolarFestivalRule kRulesEng[] = {
    Day(7, 14, eFestivalSolarChildrensDay),
};

constexpr SolarFestivalRule kRulesVit[] = {
    Day(1, 1, eFestivalSolarNewYearsDay),         Day(4, 30, eFestivalSolarReunificationDay),
    Day(5, 19, eFestivalSolarHoChiMinhsBirthday), Day(6, 1, eFestivalSolarChildrensDay),
    Day(9, 2, eFestivalSolarNationalDayVit),
};

constexpr SolarFestivalRule kRulesTha[] = {
    Weekday(1, 2, eCalendarWeekSaturday, eFestivalSolarChildrensDay),
};

// The festivals of every region.
constexpr SolarFestivalRule kCommonRules[] = {
    Weekday(11, 4, eCalendarWeekThursday, eFestivalSolarThanksgiving),
    Day(1, 1, eFestivalSolarNewYearsDay),
    Day(3, 8, eFestivalSolarWomensDay),
    Day(4, 1, eFestivalSolarAprilFoolsDay),
    Day(4, 7, eFestivalSolarHealthDay),
    Day(4, 22, eFestivalSolarEarthDay),
    Day(5, 1, eFestivalSolarLabourDay),
    Day(5, 31, eFestivalSolarNoTobaccoDay),
    Day(10, 31, eFestivalSolarHalloween),
    Day(12, 24, eFestivalSolarChristmasEve),
    Day(12, 25, eFestivalSolarChristmasDay),
    Day(12, 31, eFestivalSolarNewYearsEve),
};

// The rules of a region, or those of every region.
struct RuleList {
  const SolarFestivalRule* first = nullptr;
  const SolarFestivalRule* last = nullptr;
  bool hasMovableFeasts = false;

  template <std::size_t count>
  constexpr explicit RuleList(const SolarFestivalRule (&rules)[count])
      : first(rules), last(rules + count) {
    for (const SolarFestivalRule& rule : rules) {
      hasMovableFeasts = hasMovableFeasts || rule.month == 0;
    }
  }
};

// By ELanguage, from 1 on.
constexpr RuleList kRegions[] = {
    RuleList(kRulesChs), RuleList(kRulesKor), RuleList(kRulesUsa), RuleList(kRulesCht),
    RuleList(kRulesRus), RuleList(kRulesDeu), RuleList(kRulesJpn), RuleList(kRulesEng),
    RuleList(kRulesVit), RuleList(kRulesTha),
};
constexpr RuleList kEveryRegion(kCommonRules);

constexpr bool CanKeepEveryCode() {
  for (const RuleList& rules : kRegions) {
    if (!CanKeepCodes(rules.first, rules.last)) {
      return false;
    }
  }
  return CanKeepCodes(kEveryRegion.first, kEveryRegion.last);
}
static_assert(CanKeepEveryCode());

// The movable feasts of a year as the Easter rules tell them; 0 where they tell nothing.
struct MovableFeasts {
  int easterMonth = 0;
  int easterDay = 0;
  // MUTATE_EXCL: always written over.
  int goodFridayMonth = 0;
  // MUTATE_EXCL: always written over.
  int goodFridayDay = 0;
};

MovableFeasts AskMovableFeasts(int year, DayCounting counting) {
  MovableFeasts feasts;
  CCalendarFestivalFunction::_GetEasterDay2(year, &feasts.easterMonth, &feasts.easterDay);
  CCalendarFestivalFunction::_GetGoodFriday(year, &feasts.goodFridayMonth, &feasts.goodFridayDay,
                                            counting);
  return feasts;
}

bool Holds(const SolarFestivalRule& rule, CCalendarSolarDate date, const MovableFeasts& feasts,
           DayCounting counting) {
  switch (rule.kind) {  // GCOVR_EXCL_BR_LINE: every kind has a case
    case RuleKind::kDay:
      return date.month == rule.month && date.day == rule.day;
    case RuleKind::kWeekday: {
      if (date.month != rule.month) {
        return false;
      }
      const int day = CCalendarFestivalFunction::_GetDayByWeekNumberOfMonth(
          date.year, rule.month, rule.nth, rule.weekday, counting);
      return day != -1 && date.day == day;
    }
    case RuleKind::kEasterSunday:
      return date.month == feasts.easterMonth && date.day == feasts.easterDay;
    case RuleKind::kGoodFriday:
      break;
  }
  return date.month == feasts.goodFridayMonth && date.day == feasts.goodFridayDay;
}

EFestivalSolar FestivalOf(const RuleList& rules, CCalendarSolarDate date, DayCounting counting) {
  const MovableFeasts feasts =
      rules.hasMovableFeasts ? AskMovableFeasts(date.year, counting) : MovableFeasts{};
  for (const SolarFestivalRule* rule = rules.first; rule != rules.last; ++rule) {
    if (Holds(*rule, date, feasts, counting)) {
      return rule->code;
    }
  }
  return eFestivalSolarNone;
}

}  // namespace

EFestivalSolar RegionSolarFestival(ELanguage language, CCalendarSolarDate date,
                                   DayCounting counting) {
  const bool isRegion = language >= eLanguageChs && language <= eLanguageTha;
  return isRegion ? FestivalOf(kRegions[language - eLanguageChs], date, counting)
                  : eFestivalSolarNone;
}

EFestivalSolar CommonSolarFestival(CCalendarSolarDate date, DayCounting counting) {
  return FestivalOf(kEveryRegion, date, counting);
}

}  // namespace almara
