// SPDX-License-Identifier: MIT
//
// Kept for code that compiles against this class.
#include "board/calendar_week_number.h"
#include "date/gregorian.h"
#include "date/int32.h"

using almara::IsLeapYear;
using almara::WrapAdd;
using almara::WrapMultiply;
using almara::WrapSubtract;

namespace {

int IsoWeeksOfYear(int year) {
  const int newYear = almara::DayOfWeekOfNewYear(year);
  const bool isLong =
      newYear == eCalendarWeekThursday || (newYear == eCalendarWeekWednesday && IsLeapYear(year));
  return isLong ? 53 : 52;
}

}  // namespace

int CCalendarWeekNumber::_GetWeekNumber2(int year, int month, int day) const {
  const int week = _GetWeekNumber(year, month, day);
  if (week == -1) {
    return -1;
  }
  const int newYear = almara::DayOfWeekOfNewYear(year);
  const bool startsLate = newYear == eCalendarWeekSunday || newYear >= eCalendarWeekFriday;
  // MUTATE_EXCL: January has week 52, 53, or 5 at most.
  const bool ofYearBefore = month == 1 && week > 51;
  const bool ofYearAfter = month == 12 && week == 1;
  return startsLate && !ofYearBefore && !ofYearAfter ? week + 1 : week;
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
  *month = 1;
  *day = dayInYear;
  while (almara::IsMonth(*month) && *day > almara::DaysOfMonth(year, *month)) {
    *day -= almara::DaysOfMonth(year, *month);
    ++*month;
  }
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
  const int jan1 = almara::DayOfWeekOfNewYear(*year);
  // MUTATE_EXCL: t[0] is 0.
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
