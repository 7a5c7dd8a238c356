// SPDX-License-Identifier: MIT
//
// The classes of the lunar calendar, which hand on to its functions: that each member reaches its
// function, with the zone of the moment, and keeps the state that it is described to keep.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "gregorian_days.h"
#include "lunar/calendar_lunar_solar_terms.h"
#include "lunar/ecliptic_longitude.h"
#include "lunar/historical_year.h"
#include "lunar/longitude_search.h"
#include "zone_guard.h"

namespace almara::test {
namespace {

using Converter = CCalendarLunarConverter;

TEST(ConverterClass, HandsOn) {
  const ZoneGuard guard(9);
  EXPECT_EQ(Text(Converter().Converter({2024, 2, 10, 3})), "2024-1-1");
  EXPECT_EQ(Converter::_YMDT2JD(2000, 1, 1, 6, 30, 36), DayCount(2000, 1, 1, 6, 30, 36));
  tagSolarKyurekiYMDT date{};
  EXPECT_EQ(Converter::_JD2YMDT(2451544.75, &date), 1);
  EXPECT_EQ(date.year * 10000 + date.month * 100 + date.day, 20000101);
  EXPECT_EQ(date.hour, 18);
  EXPECT_EQ(Converter::_NORMALIZATION_ANGLE(-360), 360);
  EXPECT_EQ(Converter::_LONGITUDE_SUN(0.24), SunLongitude(0.24));
  EXPECT_EQ(Converter::_LONGITUDE_MOON(0.24), MoonLongitude(0.24));
  tagSolarKyurekiNibun nibun{};
  EXPECT_EQ(Converter::_before_nibun(2460400, &nibun), 1);
  EXPECT_EQ(nibun.time, SolsticeOrEquinoxBefore(2460400, 9)->time);
  EXPECT_EQ(nibun.longitude, 0);
  tagSolarKyurekiChu chu{};
  EXPECT_EQ(Converter::_calc_chu(2460380, &chu), 1);
  EXPECT_EQ(chu.time, PrincipalTermBefore(2460380, 9)->time);
  EXPECT_EQ(chu.longitude, 330);
  EXPECT_EQ(Converter::_calc_saku(2460380), NewMoonBefore(2460380, 9));
}

TEST(ConverterClass, WritesNothingToNullAndNothingWhereASearchDoesNotSettle) {
  EXPECT_EQ(Converter::_JD2YMDT(2451544, nullptr), 0);
  EXPECT_EQ(Converter::_before_nibun(2451544, nullptr), 0);
  EXPECT_EQ(Converter::_calc_chu(2451544, nullptr), 0);
  tagSolarKyurekiChu chu{1, 2};
  EXPECT_EQ(Converter::_calc_chu(2e9, &chu), 0);
  EXPECT_EQ(chu.time, 1);
  EXPECT_EQ(chu.longitude, 2);
}

TEST(ConverterClass, HoldsTheFixedDatesAsText) {
  struct Table : Converter {
    using Converter::m_mapLunarDateCorrection;
  };
  const auto dates = Table().m_mapLunarDateCorrection;
  EXPECT_EQ(dates.size(), 30U);
  EXPECT_EQ(dates.at("2017-02-26"), "2017-02-01");
  EXPECT_EQ(dates.at("2017-02-28"), "2017-02-03");
  EXPECT_EQ(dates.at("2017-03-01"), "2017-02-04");
  EXPECT_EQ(dates.at("2017-03-27"), "2017-02-30");
}

TEST(SolarTermsClass, HandsOnAndReadsTheZoneAnew) {
  CCalendarLunarSolarTerms terms;
  tag24SekkiResult results[kSekkiCount]{};
  for (const int zone : {0, 8}) {
    const ZoneGuard guard(zone);
    const int day = zone == 0 ? 20 : 21;
    EXPECT_EQ(terms._GetSekkiByYear(2024, results), 1);
    EXPECT_EQ(results[eSekkiSummerSolstice].nDay, day);
    EXPECT_EQ(terms.Check24Sekki(2024, 6, day), eSekkiSummerSolstice);
    EXPECT_EQ(terms.Check24Sekki(2024, 6, 41 - day), eSekkiNone);
  }
  EXPECT_EQ(terms._Sunlongdays(2000, 90), SunInstantOfYear(2000, 90));
  EXPECT_EQ(terms._Ymd2Jd(2000, 1, 1), 2451544.0);
  EXPECT_EQ(CCalendarLunarSolarTerms::_deltaT(1990), 58);
  EXPECT_EQ(CCalendarLunarSolarTerms::_SunLong(0.5), SekkiSunLongitude(0.5));
  EXPECT_EQ(CCalendarLunarSolarTerms::_SunMLong(0.5), SekkiSeriesSum(0.5));
  EXPECT_EQ(terms._GetDays2MD(2024, 60), 229);
  EXPECT_EQ(terms._GetYearDays(2024, 3, 1), 61);
  EXPECT_EQ(terms._GetSolarMonthDays(2000, 2), 29);
}

TEST(SolarTermsClass, TakesTheYears1800To2099Only) {
  const ZoneGuard guard(8);
  CCalendarLunarSolarTerms calculator;
  tag24SekkiResult terms[kSekkiCount];
  tag24SekkiResult untouched[kSekkiCount];
  std::memset(terms, 0x5A, sizeof terms);
  std::memset(untouched, 0x5A, sizeof untouched);
  for (const double year : {1799.0, 2100.0, 1799.999, 2099.001, -1e300, 1e300,
                            std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(calculator._GetSekkiByYear(year, terms), 0) << year;
    EXPECT_EQ(std::memcmp(terms, untouched, sizeof terms), 0) << year;
  }
  EXPECT_EQ(calculator._GetSekkiByYear(2000.0, nullptr), 0);
  EXPECT_EQ(calculator._GetSekkiByYear(1800.0, terms), 1);
  EXPECT_EQ(calculator._GetSekkiByYear(2099.0, terms), 1);
}

TEST(SolarTermsClass, HoldsTheConstants) {
  using Terms = CCalendarLunarSolarTerms;
  for (int e = 0; e < kSekkiCount; ++e) {
    EXPECT_EQ(Terms::g_ArrDCSolarKyureki24Sekki[e], (e + 5) % 24);
  }
  EXPECT_EQ(Terms::g_ArrDC24SekkiSla[0], 36000.7695);
  EXPECT_EQ(Terms::g_ArrDC24SekkiSla[4], -0.0048);
  EXPECT_EQ(Terms::g_ArrDC24SekkiSlb[4], 35999.0);
  EXPECT_EQ(Terms::g_ArrDC24SekkiSlc[4], 268.0);
  EXPECT_EQ(Terms::g_ArrDC24SekkiSla[17], 0.0004);
  EXPECT_EQ(Terms::g_ArrDC24SekkiSlb[17], 31557.0);
  EXPECT_EQ(Terms::g_ArrDC24SekkiSlc[17], 161.0);
}

TEST(SolarTermsClass, FebruaryIsThatOfTheYearWorkedOnLast) {
  struct Table : CCalendarLunarSolarTerms {
    int February() const { return m_nArrDaysOfMonth[1]; }
    int SumOfDays() const {
      int sum = 0;
      for (const int days : m_nArrDaysOfMonth) {
        sum += days;
      }
      return sum;
    }
  } table;
  EXPECT_EQ(table.SumOfDays(), 365);
  tag24SekkiResult results[kSekkiCount]{};
  const auto after = [&table](auto work) {
    work();
    return table.February();
  };
  EXPECT_EQ(after([&] { table._Sunlongdays(2023, 90); }), 29);  // whatever the year
  EXPECT_EQ(after([&] { table._GetDays2MD(2023, 60); }), 28);
  EXPECT_EQ(after([&] { table._GetYearDays(2024, 3, 1); }), 29);
  EXPECT_EQ(after([&] { table._GetSolarMonthDays(2023, 2); }), 28);
  EXPECT_EQ(after([&] { table.Check24Sekki(2024, 1, 1); }), 29);
  EXPECT_EQ(after([&] { table._Ymd2Jd(1900, 1, 1); }), 28);
  EXPECT_EQ(after([&] { table._GetSekkiByYear(2024, results); }), 29);
  EXPECT_EQ(after([&] { table._Ymd2Jd(2023, 1, 1); }), 28);
  EXPECT_EQ(after([&] { table.Check24Sekki(1604, 1, 1); }), 28);  // outside its years
  EXPECT_EQ(after([&] { table.Check24Sekki(2104, 1, 1); }), 28);
  EXPECT_EQ(table.SumOfDays(), 365);
}

}  // namespace
}  // namespace almara::test
