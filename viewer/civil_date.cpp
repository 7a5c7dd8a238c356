// SPDX-License-Identifier: MIT
#include "civil_date.h"

#include <algorithm>
#include <cstdio>
#include <regex>

namespace almara::viewer {
namespace {

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

// Days from 0000-03-01 to 1970-01-01. Years are counted from March, so that a leap day is the last
// day of its year.
constexpr int kDaysBefore1970 = 719468;
constexpr int kDaysOf4Years = 1461;
constexpr int kDaysOf100Years = 36524;
constexpr int kDaysOf400Years = 146097;

CivilDate ClampToRange(CivilDate date) { return std::clamp(date, kFirstDate, kLastDate); }

}  // namespace

int DaysInYear(int year) { return IsLeapYear(year) ? 366 : 365; }

int DaysInMonth(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

int DayOfYear(CivilDate date) { return DayNumber(date) - DayNumber({date.year, 1, 1}) + 1; }

int DayNumber(CivilDate date) {
  const int year = date.month > 2 ? date.year : date.year - 1;
  const int monthFromMarch = (date.month + 9) % 12;
  const int dayOfMarchYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
  return year * 365 + year / 4 - year / 100 + year / 400 + dayOfMarchYear - kDaysBefore1970;
}

CivilDate FromDayNumber(int number) {
  const int days = number + kDaysBefore1970;
  const int era = days / kDaysOf400Years;
  const int dayOfEra = days % kDaysOf400Years;
  const int yearOfEra = (dayOfEra - dayOfEra / (kDaysOf4Years - 1) + dayOfEra / kDaysOf100Years -
                         dayOfEra / (kDaysOf400Years - 1)) /
                        365;
  const int dayOfMarchYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const int monthFromMarch = (5 * dayOfMarchYear + 2) / 153;
  const int day = dayOfMarchYear - (153 * monthFromMarch + 2) / 5 + 1;
  const int month = (monthFromMarch + 2) % 12 + 1;
  return {era * 400 + yearOfEra + (month <= 2 ? 1 : 0), month, day};
}

CivilDate AddDays(CivilDate date, int days) {
  return ClampToRange(FromDayNumber(DayNumber(date) + days));
}

CivilDate AddMonths(CivilDate date, int months) {
  const CivilDate first = ClampToRange(FirstOfMonth(MonthNumberOf(date) + months));
  return {first.year, first.month, std::min(date.day, DaysInMonth(first.year, first.month))};
}

ECalendarWeek DayOfWeek(CivilDate date) {
  const int daysFromSunday = (DayNumber(date) + eCalendarWeekThursday) % 7;  // 1970-01-01
  return daysFromSunday < 0 ? daysFromSunday + 7 : daysFromSunday;
}

ParsedDate ParseDate(const std::string& text) {
  static const std::regex kPattern(R"((\d{1,4})-(\d{1,2})-(\d{1,2}))");
  std::smatch match;
  if (!std::regex_match(text, match, kPattern)) {
    return {std::nullopt, "expected YYYY-MM-DD, not '" + text + "'"};
  }
  const CivilDate date{std::stoi(match[1]), std::stoi(match[2]), std::stoi(match[3])};
  if (date.year < kFirstYear || date.year > kLastYear) {
    return {std::nullopt, text + " is outside the years 1900 to 2099"};
  }
  if (date.month < 1 || date.month > 12 || date.day < 1 ||
      date.day > DaysInMonth(date.year, date.month)) {
    return {std::nullopt, text + " is not a day of the calendar"};
  }
  return {date, {}};
}

std::string IsoText(CivilDate date) {
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
  return text;
}

}  // namespace almara::viewer
