// SPDX-License-Identifier: MIT
#include "annotations.h"

#include <almara/almara.h>

#include "names.h"
#include "text_layout.h"

namespace viewer {
namespace {

CCalendarSolarDate engineDate(CivilDate date) {
  return CreateSolarDate(date.year, date.month, date.day, 0);
}

PatternValues lunarValues(const Texts& texts, const CCalendarLunarDate& lunar) {
  const std::string month = std::to_string(lunar.month);
  const std::string day = std::to_string(lunar.day);
  return {{'y', std::to_string(lunar.year)},
          {'m', month},
          {'d', day},
          {'L', texts.lunarMonths != nullptr ? texts.lunarMonths[lunar.month - 1] : month},
          {'D', texts.lunarDays != nullptr ? texts.lunarDays[lunar.day - 1] : day}};
}

}  // namespace

Annotation Annotator::annotate(CivilDate date) {
  if (region_ == eLanguageUsa) {
    findEaster(date.year);
  }
  const CCalendarSolarDate day = engineDate(date);
  return {ConverterLunarWithDate(day), Check24SekkiWithDate(day),
          CheckFestivalLunarWithLang(region_, day), CheckFestivalSolarWithLang(region_, day)};
}

// The engine learns a year's Easter Sunday from the first question about the year, and answers it
// from the second on; a question about another year makes it forget. Each answer is kept for good.
// So the first question about a year is about a day that is never Easter, and all the days that may
// be follow at once, before anyone asks about another year.
void Annotator::findEaster(int year) {
  if (!yearsWithEaster_.insert(year).second) {
    return;
  }
  CheckFestivalSolarWithLang(region_, engineDate({year, 1, 1}));
  constexpr int kDaysOfEaster = 35;  // from 22 March to 25 April
  for (int day = 0; day < kDaysOfEaster; ++day) {
    CheckFestivalSolarWithLang(region_, engineDate(addDays({year, 3, 22}, day)));
  }
}

std::vector<DayName> namesOf(const Annotation& annotation) {
  std::vector<DayName> names;
  if (annotation.lunarFestival != eFestivalLunarNone) {
    names.push_back({DayName::Kind::LunarFestival, annotation.lunarFestival});
  }
  if (annotation.solarFestival != eFestivalSolarNone) {
    names.push_back({DayName::Kind::SolarFestival, annotation.solarFestival});
  }
  if (annotation.solarTerm != eSekkiNone) {
    names.push_back({DayName::Kind::SolarTerm, annotation.solarTerm});
  }
  return names;
}

std::string fullName(const DayName& name, TextLanguage language) {
  switch (name.kind) {
    case DayName::Kind::LunarFestival:
      return lunarFestivalName(name.code, language);
    case DayName::Kind::SolarFestival:
      return solarFestivalName(name.code, language);
    case DayName::Kind::SolarTerm:
      break;
  }
  return solarTermName(name.code, language);
}

std::string briefName(const DayName& name, TextLanguage language) {
  switch (name.kind) {
    case DayName::Kind::LunarFestival:
      return lunarFestivalBrief(name.code, language);
    case DayName::Kind::SolarFestival:
      return solarFestivalBrief(name.code, language);
    case DayName::Kind::SolarTerm:
      break;
  }
  return solarTermBrief(name.code, language);
}

std::string lunarDayText(const Texts& texts, const CCalendarLunarDate& lunar) {
  if (lunar.month == 0) {
    return {};
  }
  const char* pattern = lunar.day != 1    ? texts.lunarDay
                        : lunar.leap != 0 ? texts.lunarLeapMonth
                                          : texts.lunarMonth;
  return fillPattern(pattern, lunarValues(texts, lunar));
}

std::string lunarDateText(const Texts& texts, const CCalendarLunarDate& lunar) {
  if (lunar.month == 0) {
    return {};
  }
  return fillPattern(lunar.leap != 0 ? texts.lunarLeapDate : texts.lunarDate,
                     lunarValues(texts, lunar));
}

}  // namespace viewer
