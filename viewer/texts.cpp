// SPDX-License-Identifier: MIT
#include "texts.h"

#include <cstdlib>

#include "text_layout.h"

namespace almara::viewer {
namespace {

PatternValues MonthsValues(const Texts& texts, CivilDate first, CivilDate last) {
  return {{'y', std::to_string(first.year)},    {'m', std::to_string(first.month)},
          {'M', Month(texts, first.month)},     {'S', ShortMonth(texts, first.month)},
          {'n', std::to_string(last.month)},    {'N', Month(texts, last.month)},
          {'T', ShortMonth(texts, last.month)}, {'z', std::to_string(last.year)}};
}

}  // namespace

Texts TextsFor(ELanguage region, bool utf8) {
  if (!utf8) {
    return TextsEnglish();
  }
  switch (region) {
    case eLanguageChs:
      return TextsChineseSimplified();
    case eLanguageCht:
      return TextsChineseTraditional();
    case eLanguageKor:
      return TextsKorean();
    case eLanguageJpn:
      return TextsJapanese();
    case eLanguageVit:
      return TextsVietnamese();
    case eLanguageDeu:
      return TextsGerman();
    case eLanguageRus:
      return TextsRussian();
    case eLanguageTha:
      return TextsThai();
    default:
      return TextsEnglish();
  }
}

const char* Weekday(const Texts& texts, ECalendarWeek day) {
  return texts.weekdays[static_cast<std::size_t>(day)];
}

const char* NarrowWeekday(const Texts& texts, ECalendarWeek day) {
  return texts.narrowWeekdays[static_cast<std::size_t>(day)];
}

const char* Month(const Texts& texts, int month) {
  return texts.months[static_cast<std::size_t>(month - 1)];
}

const char* MonthInDate(const Texts& texts, int month) {
  return texts.monthsInDates[static_cast<std::size_t>(month - 1)];
}

const char* ShortMonth(const Texts& texts, int month) {
  return texts.shortMonths[static_cast<std::size_t>(month - 1)];
}

std::string FullDateText(const Texts& texts, CivilDate date) {
  return FillPattern(texts.fullDate,
                     {{'y', std::to_string(date.year)},
                      {'m', std::to_string(date.month)},
                      {'M', MonthInDate(texts, date.month)},
                      {'d', std::to_string(date.day)},
                      {'w', texts.longWeekdays[static_cast<std::size_t>(DayOfWeek(date))]}});
}

std::string DayOfMonthText(const Texts& texts, CivilDate date) {
  const std::string day = Fit(std::to_string(date.day), 2, "", Align::kRight);
  return FillPattern(texts.dayOfMonth, {{'S', ShortMonth(texts, date.month)}, {'d', day}});
}

std::string MonthsText(const Texts& texts, CivilDate first, CivilDate last) {
  const char* pattern = first.year != last.year     ? texts.titleYears
                        : first.month != last.month ? texts.titleMonths
                                                    : texts.title;
  return FillPattern(pattern, MonthsValues(texts, first, last));
}

std::string MonthsTextBrief(const Texts& texts, CivilDate first, CivilDate last) {
  const char* pattern = first.year != last.year     ? texts.titleYearsBrief
                        : first.month != last.month ? texts.titleMonthsBrief
                                                    : texts.title;
  return FillPattern(pattern, MonthsValues(texts, first, last));
}

std::string DayOfYearText(const Texts& texts, CivilDate date) {
  return FillPattern(texts.dayOfYearValue, {{'d', std::to_string(DayOfYear(date))},
                                            {'c', std::to_string(DaysInYear(date.year))}});
}

std::string FromTodayText(const Texts& texts, int days) {
  const char* pattern = days == 0    ? texts.today
                        : days == 1  ? texts.tomorrow
                        : days == -1 ? texts.yesterday
                        : days > 0   ? texts.inDays
                                     : texts.daysAgo;
  return FillPattern(pattern, {{'c', std::to_string(std::abs(days))}});
}

}  // namespace almara::viewer
