// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_CALENDAR_FESTIVAL_FUNCTION_H_
#define ALMARA_FESTIVAL_CALENDAR_FESTIVAL_FUNCTION_H_

#include "date/day_counting.h"

// Dates of feasts that move within the Gregorian year. Days of the week run from 0 = Sunday to
// 6 = Saturday. Every int is accepted. The Easter rules remember what they computed last, for the
// whole process and without a lock: call them from one thread.
class CCalendarFestivalFunction {
 public:
  // The day of the month of its n-th given weekday, n from 1. -1 outside 1900 to 2099 and months 1
  // to 12 and where the month has no such day; the count runs one day past the month's end, so a
  // fifth weekday may also be 1, the first day of the next month.
  static int _GetDayByWeekNumberOfMonth(
      int year, int month, int n, int weekday,
      almara::DayCounting counting = almara::DayCounting::kLocalTime);

  // 28 to 31; -1 outside 1900 to 2099 and months 1 to 12.
  static int _GetMaxDaysOfSolarMonth(int year, int month);

  // Easter Sunday of any year by the anonymous Gregorian rule. Always 1.
  //
  // Month and day are written only where the year is the one computed last, here or by
  // _GetGoodFriday; a call that computes leaves them alone, and so does a null pointer. The
  // festival lookup relies on it.
  static int _GetEasterDay2(int year, int* month, int* day);

  // The Friday before Easter Sunday of any year. 1 with month and day written, 0 where a pointer is
  // null. Where the day computed last equals the year, the month computed last is written with the
  // year as the day, so a year 1 to 31 may answer with another year's date.
  static int _GetGoodFriday(int year, int* month, int* day,
                            almara::DayCounting counting = almara::DayCounting::kLocalTime);

  // Kept for code that compiles against this class.

  // January to December of a common year.
  static const int s_ArrDaysOfSolarMonth[12];

  // Easter Sunday of 1583 to 2299 by Gauss's rule. 1 with month and day written; 0, nothing
  // written, outside these years or where a pointer is null.
  //
  // The first year computed answers every later call of the process, whatever year it asks for;
  // there a null pointer is left alone.
  static int _GetEasterDay(int year, int* month, int* day);
};

namespace almara {

// Makes the Easter and Good Friday rules of the look-ups forget what they computed last.
void ForgetFeasts();

}  // namespace almara

#endif  // ALMARA_FESTIVAL_CALENDAR_FESTIVAL_FUNCTION_H_
