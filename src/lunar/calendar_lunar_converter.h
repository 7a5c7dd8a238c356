// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_CALENDAR_LUNAR_CONVERTER_H_
#define ALMARA_LUNAR_CALENDAR_LUNAR_CONVERTER_H_

#include <almara/almara_types.h>

#include <map>
#include <string>

#include "lunar/julian_date.h"

// A solstice or equinox.
struct tagSolarKyurekiNibun {
  double time;       // day count, local civil time
  double longitude;  // the multiple of 90 degrees that the Sun reaches then
};

// A principal term.
struct tagSolarKyurekiChu {
  double time;       // day count, local civil time
  double longitude;  // the multiple of 30 degrees that the Sun reaches then
};

// Kept for code that compiles against this class.
//
// Gregorian to Chinese lunisolar dates. Each member hands on to the function that the comment
// names, with CalendarPlatformApi's zone as it is at the moment, and a null pointer gives 0.
class CCalendarLunarConverter {
 public:
  CCalendarLunarConverter();

  // LunarDateOf, every day worked out on its own.
  CCalendarLunarDate Converter(CCalendarSolarDate date) const;

  // DayCount and DateOfDayCount.
  static double _YMDT2JD(double year, double month, double day, double hour, double minute,
                         double second);
  static int _JD2YMDT(double jd, tagSolarKyurekiYMDT* out);

  // NormalizedAngle, SunLongitude and MoonLongitude.
  static double _NORMALIZATION_ANGLE(double angle);
  static double _LONGITUDE_SUN(double t);
  static double _LONGITUDE_MOON(double t);

  // SolsticeOrEquinoxBefore, PrincipalTermBefore (0, with nothing written, also where the search
  // does not settle) and NewMoonBefore.
  static int _before_nibun(double jd, tagSolarKyurekiNibun* out);
  static int _calc_chu(double jd, tagSolarKyurekiChu* out);
  static double _calc_saku(double jd);

 protected:
  // The dates of FixedLunarDay with their lunar dates, both as "year-month-day".
  std::map<std::string, std::string> m_mapLunarDateCorrection;
};

#endif  // ALMARA_LUNAR_CALENDAR_LUNAR_CONVERTER_H_
