// SPDX-License-Identifier: MIT
#include "annotations.h"

#include <almara/almara_names.h>

#include <array>
#include <cstddef>
#include <tuple>

#include "text_layout.h"

namespace almara::viewer {
namespace {

// The name of a month or day of the lunar calendar, or its number in a language without names.
template <std::size_t kCount>
std::string NameOrNumber(const std::array<const char*, kCount>& names, int number) {
  const char* name = names[static_cast<std::size_t>(number - 1)];
  return name != nullptr ? name : std::to_string(number);
}

PatternValues LunarValues(const Texts& texts, const CCalendarLunarDate& lunar) {
  return {{'y', std::to_string(lunar.year)},
          {'m', std::to_string(lunar.month)},
          {'d', std::to_string(lunar.day)},
          {'L', NameOrNumber(texts.lunarMonths, lunar.month)},
          {'D', NameOrNumber(texts.lunarDays, lunar.day)}};
}

std::string TextOr(const char* text, std::int32_t number) {
  return text != nullptr ? text : std::to_string(number);
}

}  // namespace

bool Annotation::DiffersFrom(const Annotation& other) const {
  return std::tie(lunar.year, lunar.month, lunar.day, lunar.leap, solarTerm, lunarFestival) !=
         std::tie(other.lunar.year, other.lunar.month, other.lunar.day, other.lunar.leap,
                  other.solarTerm, other.lunarFestival);
}

Annotation Annotator::AnnotateBy(LunarSource source, CivilDate date) {
  if (m_region == eLanguageUsa) {
    FindEaster(date.year);
  }
  const CCalendarSolarDate day = SolarDate(date);
  const EFestivalSolar solarFestival = CheckFestivalSolarWithLang(m_region, day);
  if (source == LunarSource::kAlmanac) {
    return {AlmanacLunarDate(m_calendar, day), AlmanacTermOfDate(m_calendar, day),
            AlmanacLunarFestival(m_calendar, m_region, day), solarFestival};
  }
  return {ConverterLunarWithDate(day), Check24SekkiWithDate(day),
          CheckFestivalLunarWithLang(m_region, day), solarFestival};
}

// The engine learns a year's Easter Sunday from the first question about the year, and answers it
// from the second on; a question about another year makes it forget. Each answer is kept for good.
// So the first question about a year is about a day that is never Easter, and all the days that may
// be follow at once, before anyone asks about another year.
void Annotator::FindEaster(int year) {
  if (!m_yearsWithEaster.insert(year).second) {
    return;
  }
  CheckFestivalSolarWithLang(m_region, SolarDate({year, 1, 1}));
  constexpr int kDaysOfEaster = 35;  // from 22 March to 25 April
  for (int day = 0; day < kDaysOfEaster; ++day) {
    CheckFestivalSolarWithLang(m_region, SolarDate(AddDays({year, 3, 22}, day)));
  }
}

std::vector<DayName> NamesOf(const Annotation& annotation) {
  std::vector<DayName> names;
  if (annotation.lunarFestival != eFestivalLunarNone) {
    names.push_back({DayName::Kind::kLunarFestival, annotation.lunarFestival});
  }
  if (annotation.solarFestival != eFestivalSolarNone) {
    names.push_back({DayName::Kind::kSolarFestival, annotation.solarFestival});
  }
  if (annotation.solarTerm != eSekkiNone) {
    names.push_back({DayName::Kind::kSolarTerm, annotation.solarTerm});
  }
  return names;
}

std::string FullName(const DayName& name, ELanguage language) {
  return TextOr(name.kind == DayName::Kind::kSolarTerm ? AlmaraSolarTermName(name.code, language)
                                                       : AlmaraFestivalName(name.code, language),
                name.code);
}

std::string BriefName(const DayName& name, ELanguage language) {
  return TextOr(name.kind == DayName::Kind::kSolarTerm
                    ? AlmaraSolarTermBriefName(name.code, language)
                    : AlmaraFestivalBriefName(name.code, language),
                name.code);
}

std::string LunarDayText(const Texts& texts, const CCalendarLunarDate& lunar) {
  if (lunar.month == 0) {
    return {};
  }
  const char* pattern = lunar.day != 1    ? texts.lunarDay
                        : lunar.leap != 0 ? texts.lunarLeapMonth
                                          : texts.lunarMonth;
  return FillPattern(pattern, LunarValues(texts, lunar));
}

std::string LunarDayBrief(const Texts& texts, const CCalendarLunarDate& lunar) {
  if (lunar.month == 0) {
    return {};
  }
  const char* pattern = lunar.day != 1    ? texts.lunarDayBrief
                        : lunar.leap != 0 ? texts.lunarLeapMonthBrief
                                          : texts.lunarMonthBrief;
  return FillPattern(pattern, LunarValues(texts, lunar));
}

std::string LunarDateText(const Texts& texts, const CCalendarLunarDate& lunar) {
  if (lunar.month == 0) {
    return {};
  }
  const char* dated = lunar.leap != 0 ? texts.lunarLeapDate : texts.lunarDate;
  const char* yearly = lunar.leap != 0 ? texts.lunarLeapBirthday : texts.lunarBirthday;
  return FillPattern(lunar.year != 0 ? dated : yearly, LunarValues(texts, lunar));
}

}  // namespace almara::viewer
