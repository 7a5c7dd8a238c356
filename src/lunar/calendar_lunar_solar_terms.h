// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_CALENDAR_LUNAR_SOLAR_TERMS_H_
#define ALMARA_LUNAR_CALENDAR_LUNAR_SOLAR_TERMS_H_

#include <array>

#include "lunar/calendar_lunar_converter.h"
#include "lunar/sekki_longitude.h"
#include "lunar/sekki_year.h"

using almara::kSekkiSeriesSize;

// Kept for code that compiles against this class.
//
// The 24 solar terms of a year, and the lunar converter at the same time. Each member hands on to
// the function that the comment names, with CalendarPlatformApi's zone as it is at the moment.
class CCalendarLunarSolarTerms : public CCalendarLunarConverter {
 public:
  // For the term at longitude 15 * e degrees its ESolarKyureki24, e = 0 at the spring equinox.
  static const int g_ArrDCSolarKyureki24Sekki[kSekkiCount];

  // Amplitude, rate and phase of kSekkiSeries.
  static const std::array<double, kSekkiSeriesSize> g_ArrDC24SekkiSla;
  static const std::array<double, kSekkiSeriesSize> g_ArrDC24SekkiSlb;
  static const std::array<double, kSekkiSeriesSize> g_ArrDC24SekkiSlc;

  CCalendarLunarSolarTerms();

  // SekkiOf, every day worked out on its own.
  int Check24Sekki(int year, int month, int day);

  // FindSekkiOfYear; 0, with nothing written, where result is null or the year is outside 1800.0 to
  // 2099.0, else 1.
  int _GetSekkiByYear(double year, tag24SekkiResult* result);

  // SunInstantOfYear, HistoricalDayNumber and DeltaT.
  double _Sunlongdays(double year, double longitude);
  double _Ymd2Jd(double year, double month, double day);
  static double _deltaT(double year);

  // SekkiSunLongitude and SekkiSeriesSum.
  static double _SunLong(double t);
  static double _SunMLong(double t);

  // MonthDayOfHistoricalYear, DayOfHistoricalYear and DaysOfHistoricalMonth.
  double _GetDays2MD(double year, double dayOfYear);
  double _GetYearDays(double year, double month, double day);
  double _GetSolarMonthDays(double year, double month);

 protected:
  // January to December. February is that of the year worked on last, and 29 after _Sunlongdays.
  int m_nArrDaysOfMonth[12];

 private:
  void SetFebruary(double year);
};

#endif  // ALMARA_LUNAR_CALENDAR_LUNAR_SOLAR_TERMS_H_
