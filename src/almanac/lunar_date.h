// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_LUNAR_DATE_H_
#define ALMARA_ALMANAC_LUNAR_DATE_H_

#include <optional>

#include "almanac/lunar_month.h"

// Gregorian dates of 1900-01-01 to 2099-12-31 as lunar dates, and back. Every int is accepted in a
// date; the day of the week is not read.
namespace almara {

constexpr bool IsAlmanacYear(int year) { return year >= kFirstYear && year <= kLastYear; }

// Whether a date exists and lies within the span.
bool IsAlmanacDate(const CCalendarSolarDate& date);

// Whether a day number lies within the span.
bool IsAlmanacDay(int day);

// The lunar date; all zeroes for a date that does not exist or is outside the span.
CCalendarLunarDate LunarDateOf(const Calendar& calendar, const CCalendarSolarDate& date);

// The day number of a lunar date; 0 for one that does not exist or is outside the span.
int DayOf(const Calendar& calendar, const CCalendarLunarDate& date);

// A month of the lunar years to 2099 whose last day is in 1900 or later; nothing if there is none
// of this number. Every int is accepted.
std::optional<LunarMonth> FindAlmanacMonth(const Calendar& calendar, int year, int month, int leap);

}  // namespace almara

#endif  // ALMARA_ALMANAC_LUNAR_DATE_H_
