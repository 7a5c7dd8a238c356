// SPDX-License-Identifier: MIT
#include "yardstick/solar_terms.h"

#include <cmath>

#include "date/calendar_platform_api.h"

namespace almara::test::yardstick {

double Sunlongdays(double year, double longitude) {
  CCalendarLunarSolarTerms terms;
  const double start = terms._Ymd2Jd(year, 1, 0) - 2451544.5;
  const double longitudeAtStart = terms._SunLong(start);
  const double turn = longitudeAtStart > longitude ? -360 : 0;
  double day = std::floor((longitude - longitudeAtStart - turn) * 0.9);
  for (double previous = longitudeAtStart;; day += 1) {
    const double current = terms._SunLong(start + day);
    const double before = current < previous ? previous + turn : previous;
    if (current >= longitude && before < longitude) {
      const double slope = current - before;
      const double refined = day + (longitude - current) / slope;
      return refined + (longitude - terms._SunLong(start + refined)) / slope;
    }
    previous = current;
  }
}

void GetSekkiByYear(int year, tag24SekkiResult (&results)[kSekkiCount]) {
  CCalendarLunarSolarTerms terms;
  const double deltaT = (year - 1990) * 0.44 + 58;
  const double zone = CalendarPlatformApi::PlatformGetTimeZoneValue() / 24;
  for (int i = 0; i < kSekkiCount; ++i) {
    const int longitude = (285 + 15 * i) % 360;
    const double instant = zone + Sunlongdays(year, longitude) - deltaT / 86400;
    const double monthDay = terms._GetDays2MD(year, std::floor(instant));
    const double hour = std::floor((instant - std::floor(instant)) * 24 + 0.5);
    results[i] = {static_cast<double>(longitude),
                  year,
                  static_cast<int>(std::floor(monthDay / 100)),
                  static_cast<int>(monthDay) % 100,
                  static_cast<int>(hour),
                  i};
  }
}

ESolarKyureki24 Check24Sekki(int year, int month, int day) {
  if (year < 1800 || year > 2099) {
    return eSekkiNone;
  }
  tag24SekkiResult results[kSekkiCount];
  GetSekkiByYear(year, results);
  for (const tag24SekkiResult& result : results) {
    if (result.nMonth == month && result.nDay == day) {
      return result.nSekki;
    }
  }
  return eSekkiNone;
}

}  // namespace almara::test::yardstick
