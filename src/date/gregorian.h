// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_GREGORIAN_H_
#define ALMARA_DATE_GREGORIAN_H_

#include "date/int32.h"

// The facts of the proleptic Gregorian calendar, and the span of years that boards cover.
namespace almara {

constexpr int kDaysOfWeek = 7;
constexpr int kMonthsOfYear = 12;

// Boards and week numbers cover these years, both ends included.
constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2099;

// Whether value is a day of the week, 0 = Sunday to 6 = Saturday.
constexpr bool IsDayOfWeek(int value) { return value >= 0 && value < kDaysOfWeek; }

// Whether value is a month, 1 = January to 12 = December.
constexpr bool IsMonth(int value) { return value >= 1 && value <= kMonthsOfYear; }

constexpr bool IsLeapYear(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

// Days of January to December in a common year.
inline constexpr int kDaysOfCommonMonth[kMonthsOfYear] = {31, 28, 31, 30, 31, 30,
                                                          31, 31, 30, 31, 30, 31};

// Days of a month 1 to 12 of any year.
constexpr int DaysOfMonth(int year, int month) {
  return month == 2 && IsLeapYear(year) ? 29 : kDaysOfCommonMonth[month - 1];
}

constexpr int DaysOfYear(int year) { return IsLeapYear(year) ? 366 : 365; }

// Number of a day within its year, 1 = 1 January. The month is 1 to 12; a day that the month lacks
// counts on into the next.
constexpr int DayOfYear(int year, int month, int day) {
  constexpr int kDaysBefore[kMonthsOfYear] = {0,   31,  59,  90,  120, 151,
                                              181, 212, 243, 273, 304, 334};
  return kDaysBefore[month - 1] + (month > 2 && IsLeapYear(year) ? 1 : 0) + day;
}

// Whether boards and week numbers accept a date: years 1900 to 2099, months 1 to 12, days 1 to 31.
// A day that a short month lacks is accepted and counts on into the next month.
constexpr bool IsBoardDate(int year, int month, int day) {
  return year >= kFirstYear && year <= kLastYear && IsMonth(month) && day >= 1 && day <= 31;
}

// Days of a month that boards cover; -1 outside their years or months 1 to 12.
constexpr int DaysOfBoardMonth(int year, int month) {
  return IsBoardDate(year, month, 1) ? DaysOfMonth(year, month) : -1;
}

// Day of the week of 1 January, 0 = Sunday, of a year from 1 on; may be negative for others.
constexpr int DayOfWeekOfNewYear(int year) {
  const int before = WrapSubtract(year, 1);
  return WrapAdd(year, before / 4 - before / 100 + before / 400) % kDaysOfWeek;
}

}  // namespace almara

#endif  // ALMARA_DATE_GREGORIAN_H_
