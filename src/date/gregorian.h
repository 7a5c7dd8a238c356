// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_GREGORIAN_H_
#define ALMARA_DATE_GREGORIAN_H_

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

// Days of a month 1 to 12 of any year.
constexpr int DaysOfMonth(int year, int month) {
  constexpr int kDays[kMonthsOfYear] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
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

}  // namespace almara

#endif  // ALMARA_DATE_GREGORIAN_H_
