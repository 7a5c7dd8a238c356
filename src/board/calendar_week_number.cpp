// SPDX-License-Identifier: MIT
#include "board/calendar_week_number.h"

#include "date/gregorian.h"
#include "date/int32.h"

using almara::DayCounting;
using almara::kDaysOfWeek;

namespace {

constexpr int kSecondsPerDay = 86400;
constexpr int kTmBaseYear = 1900;
constexpr int kNoWeek = -1;

// Days counted from Monday.
constexpr int kThursday = 3;
constexpr int kFriday = 4;
constexpr int kSaturday = 5;

// Day of the week of 1 January, 0 = Monday.
int DayOfNewYearFromMonday(int year) {
  const int fromSunday = almara::DayOfWeekOfNewYear(year);
  return fromSunday == eCalendarWeekSunday ? kDaysOfWeek - 1 : fromSunday - 1;
}

// ISO 8601 week of an accepted date. A year's first days belong to the year before if it begins
// after a Thursday, its last days to the year after if that begins on a Thursday or before.
int IsoWeek(int year, int month, int day) {
  const int newYear = DayOfNewYearFromMonday(year);
  const int weeksBefore = (almara::DayOfYear(year, month, day) - 1 + newYear) / kDaysOfWeek;
  const int week = newYear > kThursday ? weeksBefore : weeksBefore + 1;
  if (week == 0) {
    const bool longYearBefore =
        newYear == kFriday || (newYear == kSaturday && almara::IsLeapYear(year - 1));
    return longYearBefore ? 53 : 52;
  }
  const int nextNewYear = (newYear + almara::DaysOfYear(year)) % kDaysOfWeek;
  return week == 53 && nextNewYear <= kThursday ? 1 : week;
}

// Days from 1 January to an accepted date.
int DaysOfCalendar(int year, int month, int day) { return almara::DayOfYear(year, month, day) - 1; }

// The instant of local midnight, daylight saving as the zone has it.
std::time_t LocalMidnight(int year, int month, int day) {
  std::tm record{};
  setDay(record, year, month, day);
  return std::mktime(&record);
}

// Whole days from 1 January to an accepted date by the seconds between the two midnights.
int DaysOfLocalTime(int year, int month, int day) {
  const std::time_t seconds = LocalMidnight(year, month, day) - LocalMidnight(year, 1, 1);
  return static_cast<int>(seconds / kSecondsPerDay);
}

}  // namespace

void setDay(std::tm& t, int year, int month, int day) {
  t.tm_sec = 0;
  t.tm_min = 0;
  t.tm_hour = 0;
  t.tm_mday = day;
  t.tm_mon = almara::WrapSubtract(month, 1);
  t.tm_year = almara::WrapSubtract(year, kTmBaseYear);
  t.tm_isdst = -1;
}

// What depends on the date alone is cheaper than a look at the memo.
int CCalendarWeekNumber::GetWeekNumber(int year, int month, int day, EWeekNumberCalc calcType,
                                       DayCounting counting) {
  if (calcType == eWeekNumberCalcIso8601) {
    return _GetWeekNumber(year, month, day);
  }
  if (counting == DayCounting::kCivil) {
    return _GetWeekOfYear(year, month, day, counting);
  }
  return m_mapWeekNumberCache.GetOrCompute(calcType, {year, month, day, 0},
                                           [&] { return _GetWeekOfYear(year, month, day); });
}

int CCalendarWeekNumber::_GetWeekNumber(int year, int month, int day) const {
  return almara::IsBoardDate(year, month, day) ? IsoWeek(year, month, day) : kNoWeek;
}

int CCalendarWeekNumber::_GetWeekOfYear(int year, int month, int day, DayCounting counting) const {
  if (!almara::IsBoardDate(year, month, day)) {
    return kNoWeek;
  }
  const int days = counting == DayCounting::kCivil ? DaysOfCalendar(year, month, day)
                                                   : DaysOfLocalTime(year, month, day);
  return (days + DayOfNewYearFromMonday(year)) / kDaysOfWeek + 1;
}
