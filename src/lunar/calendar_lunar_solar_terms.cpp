// SPDX-License-Identifier: MIT
#include "lunar/calendar_lunar_solar_terms.h"

#include <cstddef>

#include "date/calendar_platform_api.h"
#include "lunar/historical_year.h"
#include "lunar/sekki_lookup.h"

namespace {

constexpr std::array<double, kSekkiSeriesSize> Column(double almara::SeriesTerm::*field) {
  std::array<double, kSekkiSeriesSize> column{};
  for (std::size_t i = 0; i < column.size(); ++i) {
    column[i] = almara::kSekkiSeries[i].*field;
  }
  return column;
}

}  // namespace

constexpr int CCalendarLunarSolarTerms::g_ArrDCSolarKyureki24Sekki[kSekkiCount] = {
    5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16,  // 0 to 165 degrees
    17, 18, 19, 20, 21, 22, 23, 0,  1,  2,  3,  4,   // 180 to 345 degrees
};

constexpr std::array<double, kSekkiSeriesSize> CCalendarLunarSolarTerms::g_ArrDC24SekkiSla =
    Column(&almara::SeriesTerm::amplitude);
constexpr std::array<double, kSekkiSeriesSize> CCalendarLunarSolarTerms::g_ArrDC24SekkiSlb =
    Column(&almara::SeriesTerm::rate);
constexpr std::array<double, kSekkiSeriesSize> CCalendarLunarSolarTerms::g_ArrDC24SekkiSlc =
    Column(&almara::SeriesTerm::phase);

CCalendarLunarSolarTerms::CCalendarLunarSolarTerms()
    : m_nArrDaysOfMonth{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31} {}

void CCalendarLunarSolarTerms::SetFebruary(double year) {
  m_nArrDaysOfMonth[1] = almara::DaysOfHistoricalMonth(year, 2);
}

int CCalendarLunarSolarTerms::_GetSekkiByYear(double year, tag24SekkiResult* result) {
  const bool inSpan = year >= almara::kFirstSekkiYear && year <= almara::kLastSekkiYear;
  if (result == nullptr || !inSpan) {
    return 0;
  }
  SetFebruary(year);
  almara::FindSekkiOfYear(year, CalendarPlatformApi::PlatformGetTimeZoneValue(), result);
  return 1;
}

int CCalendarLunarSolarTerms::Check24Sekki(int year, int month, int day) {
  if (year >= almara::kFirstSekkiYear && year <= almara::kLastSekkiYear) {
    SetFebruary(year);
  }
  almara::LunarMemo nothingKept;
  return almara::SekkiOf({year, month, day, 0}, CalendarPlatformApi::PlatformGetTimeZoneValue(),
                         nothingKept);
}

double CCalendarLunarSolarTerms::_Sunlongdays(double year, double longitude) {
  m_nArrDaysOfMonth[1] = 29;
  return almara::SunInstantOfYear(year, longitude);
}

double CCalendarLunarSolarTerms::_Ymd2Jd(double year, double month, double day) {
  SetFebruary(year);
  return almara::HistoricalDayNumber(year, month, day);
}

double CCalendarLunarSolarTerms::_deltaT(double year) { return almara::DeltaT(year); }

double CCalendarLunarSolarTerms::_SunLong(double t) { return almara::SekkiSunLongitude(t); }

double CCalendarLunarSolarTerms::_SunMLong(double t) { return almara::SekkiSeriesSum(t); }

double CCalendarLunarSolarTerms::_GetDays2MD(double year, double dayOfYear) {
  SetFebruary(year);
  return almara::MonthDayOfHistoricalYear(year, dayOfYear);
}

double CCalendarLunarSolarTerms::_GetYearDays(double year, double month, double day) {
  SetFebruary(year);
  return almara::DayOfHistoricalYear(year, month, day);
}

double CCalendarLunarSolarTerms::_GetSolarMonthDays(double year, double month) {
  SetFebruary(year);
  return almara::DaysOfHistoricalMonth(year, month);
}
