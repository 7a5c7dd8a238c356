// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_CALENDAR_LUNAR_SOLAR_TERMS_H_
#define ALMARA_LUNAR_CALENDAR_LUNAR_SOLAR_TERMS_H_

#include <almara/almara_types.h>

#include <array>
#include <map>

#include "lunar/calendar_lunar_converter.h"

// One solar term of a year.
struct tag24SekkiResult {
  double dSunLongitude;  // degrees, (285 + 15 * nSekki) mod 360
  int nYear;             // the year asked for
  int nMonth;            // local civil date, 1 to 12
  int nDay;
  int nHour;   // the instant rounded to hours, 0 to 24; 24 is not carried into the next day
  int nSekki;  // ESolarKyureki24, 0 to 23
};

constexpr int kSekkiCount = 24;
constexpr int kSekkiTermCount = 18;  // terms of the series for the Sun's longitude

// The 24 solar terms of a year, and the lunar converter at the same time.
//
// Local civil time is universal time plus CalendarPlatformApi's zone, which is read once for each
// year computed. Years follow the Julian leap rule up to 1582 and the Gregorian one behind it. Not
// reentrant: the functions share a table of month lengths.
class CCalendarLunarSolarTerms : public CCalendarLunarConverter {
 public:
  // For the term at longitude 15 * e degrees its ESolarKyureki24, e = 0 at the spring equinox.
  static const int g_ArrDCSolarKyureki24Sekki[kSekkiCount];

  // The series for the Sun's longitude: amplitude, rate and phase of each term.
  static const std::array<double, kSekkiTermCount> g_ArrDC24SekkiSla;
  static const std::array<double, kSekkiTermCount> g_ArrDC24SekkiSlb;
  static const std::array<double, kSekkiTermCount> g_ArrDC24SekkiSlc;

  CCalendarLunarSolarTerms();

  // The ESolarKyureki24 of the term that falls on a local civil date, -1 if none does. Years 1800
  // to 2099; others give -1. A date that does not exist holds no term.
  int Check24Sekki(int year, int month, int day);

  // The terms of a year (calendar_lunar_solar_terms.cpp).
  int _GetSekkiByYear(double year, tag24SekkiResult* result);
  double _Sunlongdays(double year, double longitude);
  double _Ymd2Jd(double year, double month, double day);
  static double _deltaT(double year);

  // The Sun's longitude (sekki_longitude.cpp).
  static double _SunLong(double t);
  static double _SunMLong(double t);

  // Days of the year (sekki_lookup.cpp).
  double _GetDays2MD(double year, double dayOfYear);
  double _GetYearDays(double year, double month, double day);
  double _GetSolarMonthDays(double year, double month);

 protected:
  // January to December. February is that of the year worked on last, and 29 after _Sunlongdays, so
  // every function sets it before it reads the table.
  int m_nArrDaysOfMonth[12];

 private:
  static constexpr int kFebruary = 1;  // in m_nArrDaysOfMonth

  // Month and day of each term of a year.
  struct SekkiDays {
    std::array<int, kSekkiCount> month;
    std::array<int, kSekkiCount> day;
  };

  const SekkiDays& SekkiDaysOf(int year);
  double StartOfYear(double year);
  void SetFebruary(double year);
  int DaysBeforeMonth(double month) const;

  std::map<int, SekkiDays> m_sekkiDays;  // by year, of the zone below
  double m_sekkiZone = 0;                // hours
};

#endif  // ALMARA_LUNAR_CALENDAR_LUNAR_SOLAR_TERMS_H_
