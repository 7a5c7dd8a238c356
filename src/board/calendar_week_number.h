// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_CALENDAR_WEEK_NUMBER_H_
#define ALMARA_BOARD_CALENDAR_WEEK_NUMBER_H_

#include <almara/almara_types.h>

#include <ctime>

#include "date/date_memo.h"
#include "date/day_counting.h"

// Week numbers of Gregorian dates. Weeks begin on Monday under every rule, whatever the first
// column of the board. A date is accepted from year 1900 to 2099, month 1 to 12 and day 1 to 31;
// days that a short month lacks count on (30 February is 1 or 2 March). Any other date gives -1.
class CCalendarWeekNumber {
 public:
  // The week number under calcType; a type other than 1 counts from 1 January. Its answers from
  // local time, -1 included, are kept until ForgetAnswers(), also when the process's time zone
  // changes; ISO weeks and civil days depend on nothing but the date.
  int GetWeekNumber(int year, int month, int day, EWeekNumberCalc calcType,
                    almara::DayCounting counting = almara::DayCounting::kLocalTime);

  void ForgetAnswers() { m_mapWeekNumberCache.Clear(); }

  // ISO 8601 week, 1 to 53.
  int _GetWeekNumber(int year, int month, int day) const;

  // Week counted from the one that holds 1 January, 1 to 54. Where days are counted in local
  // seconds and clocks go forward in spring, the days after the change come out one short.
  int _GetWeekOfYear(int year, int month, int day,
                     almara::DayCounting counting = almara::DayCounting::kLocalTime) const;

  // Kept for code that compiles against this class. Defined in calendar_week_number_helpers.cpp.

  // One above the ISO week from the second week on in years that begin on a Friday, Saturday or
  // Sunday; in all others the ISO week.
  int _GetWeekNumber2(int year, int month, int day) const;

  // 1 in a Gregorian leap year, else 0.
  int _IsALeapYear(int year) const;

  // 365 or 366.
  int _GetDaysInYear(int year) const;

  // 28 to 31; 31 for a month outside 1 to 12.
  int _GetDaysInMonth(int year, int month) const;

  // Day of the week, 0 = Sunday, of a date from year 1 on; -1 for a month outside 1 to 12.
  int _GetDayOfTheWeek(int year, int month, int day) const;

  // ISO weeks of the year, 52 or 53.
  int _GetNumberOfWeeksInYear(int year) const;

  // Month and day of a day of the year, 1 = 1 January. A day of 0 or less is given back as a day of
  // month 1, a day after 31 December as a day of month 13. Always 1.
  int _GetDayAndMonthFromDayInYear(int year, int dayInYear, int* month, int* day) const;

  // Month and day on which an ISO week begins; a week past the year's last is carried into later
  // years and *year follows. In a year that begins on a Sunday it is that Sunday's week, one day
  // before the ISO Monday. Always 1.
  int _GetDayAndMonthFromWeekInYear(int* year, int week, int* month, int* day) const;

 private:
  almara::DateMemo<int> m_mapWeekNumberCache;  // of local time, by calculation type and date
};

// Sets the date of t to local midnight of the given day, with daylight saving left for the system
// to find out. The other fields keep their values.
void setDay(std::tm& t, int year, int month, int day);

#endif  // ALMARA_BOARD_CALENDAR_WEEK_NUMBER_H_
