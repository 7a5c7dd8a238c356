// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_CALENDAR_LUNAR_CONVERTER_H_
#define ALMARA_LUNAR_CALENDAR_LUNAR_CONVERTER_H_

#include <almara/almara_types.h>

#include <map>
#include <string>

// A broken-down date and time. All fields hold whole numbers.
struct tagSolarKyurekiYMDT {
  double year;
  double month;  // 1 to 12
  double day;
  double hour;
  double minute;
  double second;
};

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

class LunarQuarterMemo;

// Gregorian to Chinese lunisolar dates, worked out from the longitudes of the Sun and the Moon.
//
// Day counts are Julian dates minus 0.5, so that they turn at midnight: 2000-01-01 00:00 is
// 2451544.0. Centuries are Julian centuries of 36525 days from 2451545.0 in universal time. Angles
// are in degrees. Local civil time is universal time plus CalendarPlatformApi's zone, which is read
// at every search.
//
// Every double and every int is accepted by every function and answered in bounded time.
class CCalendarLunarConverter {
 public:
  CCalendarLunarConverter();

  // The lunar date of a Gregorian one; the day of the week is not read. See the implementation for
  // the span of dates and its limits.
  CCalendarLunarDate Converter(CCalendarSolarDate date) const;

  // The same date. What one day of a quarter finds is kept in memo and serves the quarter's other
  // days.
  CCalendarLunarDate Converter(CCalendarSolarDate date, LunarQuarterMemo& memo) const;

  // Dates and day counts (julian_date.cpp).
  static double _YMDT2JD(double year, double month, double day, double hour, double minute,
                         double second);
  static int _JD2YMDT(double jd, tagSolarKyurekiYMDT* out);

  // Longitudes (ecliptic_longitude.cpp).
  static double _NORMALIZATION_ANGLE(double angle);
  static double _LONGITUDE_SUN(double t);
  static double _LONGITUDE_MOON(double t);

  // Searches backward from a day count (longitude_search.cpp).
  static int _before_nibun(double jd, tagSolarKyurekiNibun* out);
  static int _calc_chu(double jd, tagSolarKyurekiChu* out);
  static double _calc_saku(double jd);

 private:
  // The lunar date of a date whose lunar date is fixed. False, with nothing written, for any other.
  bool FindCorrection(CCalendarSolarDate date, CCalendarLunarDate& lunar) const;

  // Lunar dates that hold in every zone, by Gregorian date; both as "year-month-day".
  std::map<std::string, std::string> m_mapLunarDateCorrection;
};

#endif  // ALMARA_LUNAR_CALENDAR_LUNAR_CONVERTER_H_
