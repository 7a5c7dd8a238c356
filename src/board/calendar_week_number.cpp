// SPDX-License-Identifier: MIT
#include "board/calendar_week_number.h"

#include <cstddef>
#include <iterator>

#include "date/gregorian.h"
#include "date/int32.h"

using almara::WrapAdd;
using almara::WrapMultiply;
using almara::WrapSubtract;

namespace {

constexpr int kSecondsPerDay = 86400;

// Weekday of 1 January, 0 = Sunday.
int SundayBasedWeekdayOfJan1(int year) {
  const int before = WrapSubtract(year, 1);
  return WrapAdd(year, before / 4 - before / 100 + before / 400) % 7;
}

// The same with 0 = Monday.
int MondayBasedWeekdayOfJan1(int year) {
  const int sundayBased = SundayBasedWeekdayOfJan1(year);
  return sundayBased == 0 ? 6 : sundayBased - 1;
}

// The same for the ISO rule, by Gauss.
int GaussWeekdayOfJan1(int year) {
  const int century = (year - 1) / 100;
  const int yearOfCentury = (year - 1) % 100;
  return (yearOfCentury + yearOfCentury / 4 + 5 * (century % 4)) % 7;
}

int IsoWeeksOfYear(int year) {
  const int jan1 = SundayBasedWeekdayOfJan1(year);
  return jan1 == 4 || (jan1 == 3 && almara::IsLeapYear(year)) ? 53 : 52;
}

// ISO 8601 week of an accepted date. correction is subtracted from the weeks of a year that begins
// on a Friday, Saturday or Sunday, whose first days still belong to the year before.
int IsoWeek(int year, int month, int day, int correction) {
  const int jan1 = GaussWeekdayOfJan1(year);
  const int dayOfYear = almara::DayOfYear(year, month, day);
  const bool startsLate = jan1 > 3;

  if (startsLate && dayOfYear <= 7 - jan1) {
    // Divisibility by 4 is the whole leap test here: no accepted year that begins on a Saturday
    // follows a century year.
    const bool longYearBefore = jan1 == 4 || (jan1 == 5 && (year - 1) % 4 == 0);
    return longYearBefore ? 53 : 52;
  }
  const int weekday = (dayOfYear + jan1 - 1) % 7;
  const bool thursdayIsNextYear = almara::DaysOfYear(year) - dayOfYear < 3 - weekday;
  if (thursdayIsNextYear) {
    return 1;
  }
  return (dayOfYear + jan1 + 6 - weekday) / 7 - (startsLate ? correction : 0);
}

// The instant of local midnight, daylight saving as the zone has it.
std::time_t LocalMidnight(int year, int month, int day) {
  std::tm record{};
  setDay(record, year, month, day);
  return std::mktime(&record);
}

}  // namespace

void setDay(std::tm& t, int year, int month, int day) {
  t.tm_sec = 0;
  t.tm_min = 0;
  t.tm_hour = 0;
  t.tm_mday = day;
  t.tm_mon = WrapSubtract(month, 1);
  t.tm_year = WrapSubtract(year, 1900);
  t.tm_isdst = -1;
}

int CCalendarWeekNumber::GetWeekNumber(int year, int month, int day, EWeekNumberCalc calcType) {
  if (calcType == eWeekNumberCalcIso8601) {
    return _GetWeekNumber(year, month,
                          day);  // depends on nothing but the date; cheaper than a memo
  }
  return m_mapWeekNumberCache.GetOrCompute(calcType, {year, month, day, 0},
                                           [&] { return _GetWeekOfYear(year, month, day); });
}

int CCalendarWeekNumber::_GetWeekNumber(int year, int month, int day) const {
  if (!almara::IsBoardDate(year, month, day)) {
    return -1;
  }
  return IsoWeek(year, month, day, 1);
}

int CCalendarWeekNumber::_GetWeekNumber2(int year, int month, int day) const {
  if (!almara::IsBoardDate(year, month, day)) {
    return -1;
  }
  return IsoWeek(year, month, day, 0);
}

int CCalendarWeekNumber::_GetWeekOfYear(int year, int month, int day) const {
  if (!almara::IsBoardDate(year, month, day)) {
    return -1;
  }
  const std::time_t seconds = LocalMidnight(year, month, day) - LocalMidnight(year, 1, 1);
  const int days = static_cast<int>(seconds / kSecondsPerDay);
  return (days + MondayBasedWeekdayOfJan1(year)) / 7 + 1;
}

int CCalendarWeekNumber::_IsALeapYear(int year) const { return almara::IsLeapYear(year) ? 1 : 0; }

int CCalendarWeekNumber::_GetDaysInYear(int year) const { return almara::DaysOfYear(year); }

int CCalendarWeekNumber::_GetDaysInMonth(int year, int month) const {
  return almara::IsMonth(month) ? almara::DaysOfMonth(year, month) : 31;
}

int CCalendarWeekNumber::_GetDayOfTheWeek(int year, int month, int day) const {
  static constexpr int t[] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};  // offset of the month
  if (month < 1 || month > 12) {
    return -1;
  }
  const int y = month < 3 ? WrapSubtract(year, 1) : year;
  return WrapAdd(WrapAdd(y, y / 4 - y / 100 + y / 400 + t[month - 1]), day) % 7;
}

int CCalendarWeekNumber::_GetNumberOfWeeksInYear(int year) const { return IsoWeeksOfYear(year); }

int CCalendarWeekNumber::_GetDayAndMonthFromDayInYear(int year, int dayInYear, int* month,
                                                      int* day) const {
  // Days of the year after February that precede March to December, and month 13.
  static constexpr int kDaysBefore[] = {0, 31, 61, 92, 122, 153, 184, 214, 245, 275, 306};
  constexpr int kDaysOfJanuary = 31;
  const int daysOfFebruary = almara::IsLeapYear(year) ? 29 : 28;

  *month = 1;
  *day = dayInYear;
  if (*day <= kDaysOfJanuary) {
    return 1;
  }
  *month = 2;
  *day -= kDaysOfJanuary;
  if (*day <= daysOfFebruary) {
    return 1;
  }
  *day -= daysOfFebruary;
  std::size_t index = std::size(kDaysBefore) - 1;
  while (*day <= kDaysBefore[index]) {
    --index;
  }
  *month = 3 + static_cast<int>(index);
  *day -= kDaysBefore[index];
  return 1;
}

int CCalendarWeekNumber::_GetDayAndMonthFromWeekInYear(int* year, int week, int* month,
                                                       int* day) const {
  // Offset from 7 * week - 6 to the day of the year on which the week begins, by weekday of 1
  // January. Laid out for 1 = Monday to 7 = Sunday but read with 0 = Sunday; the last entry is
  // never read.
  static constexpr int t[] = {0, 0, -1, -2, -3, 3, 2, 1};
  while (week > IsoWeeksOfYear(*year)) {
    week -= IsoWeeksOfYear(*year);
    *year = WrapAdd(*year, 1);
  }
  const int jan1 = SundayBasedWeekdayOfJan1(*year);
  const int offset = jan1 >= 0 ? t[jan1] : 0;  // a year before 1 has no weekday here
  int dayOfYear = WrapAdd(WrapMultiply(7, week), offset - 6);
  if (dayOfYear > _GetDaysInYear(*year)) {
    dayOfYear -= _GetDaysInYear(*year);
    *year = WrapAdd(*year, 1);
  } else if (dayOfYear <= 0) {
    *year = WrapSubtract(*year, 1);
    dayOfYear += _GetDaysInYear(*year);
  }
  return _GetDayAndMonthFromDayInYear(*year, dayOfYear, month, day);
}
