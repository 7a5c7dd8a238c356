// SPDX-License-Identifier: MIT
#include <algorithm>
#include <numeric>

#include "date/calendar_platform_api.h"
#include "lunar/calendar_lunar_solar_terms.h"
#include "lunar/truncated.h"

using almara::TruncateToInt32;

namespace {

constexpr int kMinYear = 1800;
constexpr int kMaxYear = 2099;

// Julian leap years up to 1582, Gregorian ones behind it.
bool IsLeapYear(int year) {
  if (year > 1582 && year % 100 == 0) {
    return year % 400 == 0;
  }
  return year % 4 == 0;
}

}  // namespace

void CCalendarLunarSolarTerms::SetFebruary(double year) {
  m_nArrDaysOfMonth[kFebruary] = IsLeapYear(TruncateToInt32(year)) ? 29 : 28;
}

// The days of the months before a month of the year that February is set for.
int CCalendarLunarSolarTerms::DaysBeforeMonth(double month) const {
  const int months = std::clamp(TruncateToInt32(month), 1, 12) - 1;
  return std::accumulate(m_nArrDaysOfMonth, m_nArrDaysOfMonth + months, 0);
}

// One year's table serves all its days while the zone stays the same.
const CCalendarLunarSolarTerms::SekkiDays& CCalendarLunarSolarTerms::SekkiDaysOf(int year) {
  const double zone = CalendarPlatformApi::PlatformGetTimeZoneValue();
  if (zone != m_sekkiZone) {
    m_sekkiDays.clear();
    m_sekkiZone = zone;
  }
  const auto kept = m_sekkiDays.find(year);
  if (kept != m_sekkiDays.end()) {
    return kept->second;
  }
  tag24SekkiResult results[kSekkiCount] = {};
  _GetSekkiByYear(year, results);
  SekkiDays days{};
  for (std::size_t i = 0; i < kSekkiCount; ++i) {
    days.month[i] = results[i].nMonth;
    days.day[i] = results[i].nDay;
  }
  return m_sekkiDays.emplace(year, days).first->second;
}

int CCalendarLunarSolarTerms::Check24Sekki(int year, int month, int day) {
  if (year < kMinYear || year > kMaxYear) {
    return eSekkiNone;
  }
  const SekkiDays& days = SekkiDaysOf(year);
  for (std::size_t i = 0; i < kSekkiCount; ++i) {
    if (days.month[i] == month && days.day[i] == day) {
      return static_cast<int>(i);
    }
  }
  return eSekkiNone;
}

// Day of the year to month and day.
//
// Given
//   year        leap rule of the class
//   dayOfYear   1 = 1 January
// Returned
//   month * 100 + day. Days behind 31 December count on in December (367 of a common year gives
//   1233), days before 1 January back in January (0 gives 100). A fraction stays.
double CCalendarLunarSolarTerms::_GetDays2MD(double year, double dayOfYear) {
  SetFebruary(year);
  for (int month = 12; month >= 2; --month) {
    const int first = 1 + DaysBeforeMonth(month);
    if (first <= dayOfYear) {
      return month * 100 + (dayOfYear - first + 1);
    }
  }
  return 100 + dayOfYear;
}

// Date to day of the year.
//
// Given
//   year, month, day   leap rule of the class; month 1 to 12, below 1 counts as 1 and above 12 as
//   12
// Returned
//   1 for 1 January
double CCalendarLunarSolarTerms::_GetYearDays(double year, double month, double day) {
  SetFebruary(year);
  return day + DaysBeforeMonth(month);
}

// Days of a month.
//
// Given
//   year, month   leap rule of the class; month 1 to 12, below 1 counts as 1 and above 12 as 12
// Returned
//   28 to 31
double CCalendarLunarSolarTerms::_GetSolarMonthDays(double year, double month) {
  SetFebruary(year);
  return m_nArrDaysOfMonth[std::clamp(TruncateToInt32(month), 1, 12) - 1];
}
