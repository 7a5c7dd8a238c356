// SPDX-License-Identifier: MIT
#include "lunar/calendar_lunar_solar_terms.h"

#include <algorithm>
#include <cmath>

#include "date/calendar_platform_api.h"
#include "lunar/truncated.h"

using almara::TruncateToInt32;

namespace {

constexpr double kMinYear = 1800.0;
constexpr double kMaxYear = 2099.0;
constexpr double kSecondsPerDay = 86400;

constexpr double kFirstGregorianDay = 2299160.0;

// Whole days, at least 1, that do not lead past the day on which the Sun reaches a longitude, so
// that the crossing is always found in a step of one day.
double DaysShortOf(double longitude, double current) {
  constexpr double kMaxDailyMotion = 1.03;  // degrees; the Sun is fastest in January, at 1.02
  const double ahead = longitude > current ? longitude - current : longitude - current + 360;
  return std::max(1.0, std::floor(ahead / kMaxDailyMotion));
}

// Days from start, itself days from J2000.0, to the first crossing of a longitude behind it.
double CrossingBehind(double start, double longitudeAtStart, double longitude) {
  const double turn = longitudeAtStart > longitude ? -360 : 0;
  // The Sun moves more than 0.9 degrees a day, so this lies before the crossing.
  double day = std::floor((longitude - longitudeAtStart - turn) * 0.9);
  for (double previous = longitudeAtStart;;) {
    const double current = CCalendarLunarSolarTerms::_SunLong(start + day);
    const double before = current < previous ? previous + turn : previous;
    if (current >= longitude && before < longitude) {
      const double slope = current - before;
      const double refined = day + (longitude - current) / slope;
      const double longitudeThere = CCalendarLunarSolarTerms::_SunLong(start + refined);
      return refined + (longitude - longitudeThere) / slope;
    }
    previous = current;
    day += DaysShortOf(longitude, current);
  }
}

}  // namespace

constexpr int CCalendarLunarSolarTerms::g_ArrDCSolarKyureki24Sekki[kSekkiCount] = {
    5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16,  // 0 to 165 degrees
    17, 18, 19, 20, 21, 22, 23, 0,  1,  2,  3,  4,   // 180 to 345 degrees
};

CCalendarLunarSolarTerms::CCalendarLunarSolarTerms()
    : m_nArrDaysOfMonth{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31} {}

// The solar terms of a year.
//
// Given
//   year   1800.0 to 2099.0
// Returned
//   1 with the 24 terms in result, in the order of ESolarKyureki24; 0 with nothing written where
//   result is null or the year is outside the span
// Time scale
//   local civil time: dynamical time minus _deltaT, plus the zone. The date is that of the day that
//   holds the instant. A zone of more than a day, such as the mark of an unknown zone, gives days
//   that do not exist.
// Measured error
//   the instants within 4.5 minutes of Swiss Ephemeris' built-in ephemeris from 1800 to 2099
int CCalendarLunarSolarTerms::_GetSekkiByYear(double year, tag24SekkiResult* result) {
  if (result == nullptr || !(year >= kMinYear && year <= kMaxYear)) {
    return 0;
  }
  const double deltaT = _deltaT(year);
  const double zone = CalendarPlatformApi::PlatformGetTimeZoneValue() / 24;
  const double start = StartOfYear(year);
  const double longitudeAtStart = _SunLong(start);
  for (int i = 0; i < kSekkiCount; ++i) {
    const int longitude = (285 + 15 * i) % 360;
    const double crossing = CrossingBehind(start, longitudeAtStart, longitude);
    const double instant = zone + crossing - deltaT / kSecondsPerDay;
    const double day = std::floor(instant);
    const double monthDay = _GetDays2MD(year, day);

    result[i].dSunLongitude = longitude;
    result[i].nYear = TruncateToInt32(year);
    result[i].nMonth = TruncateToInt32(std::floor(monthDay / 100));
    result[i].nDay = TruncateToInt32(monthDay) % 100;
    result[i].nHour = TruncateToInt32(std::floor((instant - day) * 24 + 0.5));
    result[i].nSekki = i;
  }
  return 1;
}

// The moment of a year at which the Sun reaches a longitude.
//
// Given
//   year        1800 to 2099
//   longitude   degrees, 0 to below 360
// Returned
//   days, 1.0 = 1 January at 0h; the first crossing from 1 January on
// Time scale
//   dynamical time
double CCalendarLunarSolarTerms::_Sunlongdays(double year, double longitude) {
  const double start = StartOfYear(year);
  return CrossingBehind(start, _SunLong(start), longitude);
}

// Days from J2000.0 to the day before 1 January, at 0h dynamical time.
double CCalendarLunarSolarTerms::StartOfYear(double year) {
  const double start = _Ymd2Jd(year, 1, 0) - 2451544.5;
  m_nArrDaysOfMonth[kFebruary] = 29;
  return start;
}

// Day number of a date.
//
// Given
//   year, month, day   Julian up to 1582, Gregorian behind it; month 1 to 12
// Returned
//   days, the Julian Day number at noon minus 1: 2000-01-01 gives 2451544.0
// Time scale
//   that of the date
double CCalendarLunarSolarTerms::_Ymd2Jd(double year, double month, double day) {
  SetFebruary(year);
  double days = std::floor((year - 1) * 365.25 + 0.1) + 1721422.0 + DaysBeforeMonth(month) + day;
  if (days >= kFirstGregorianDay) {
    days -= 10;
  }
  if (year - 1 >= 1600) {
    const double x = year - 1 - 1600 + 0.1;
    days = days - std::floor(x / 100) + std::floor(x / 400);
  }
  return days;
}

// Dynamical minus universal time.
//
// Given
//   year   Gregorian
// Returned
//   seconds
// Measured error
//   a straight line through the decades around 1990: within 45 seconds from 1800 to 2099
double CCalendarLunarSolarTerms::_deltaT(double year) { return (year - 1990) * 0.44 + 58; }
