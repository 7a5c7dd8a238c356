// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <limits>

#include "gregorian_days.h"
#include "lunar/calendar_lunar_solar_terms.h"
#include "zone_guard.h"

namespace {

using Terms = std::array<tag24SekkiResult, kSekkiCount>;

Terms TermsOfYear(int year, int zone) {
  const ZoneGuard guard(zone);
  Terms terms{};
  CCalendarLunarSolarTerms calculator;
  EXPECT_EQ(calculator._GetSekkiByYear(year, terms.data()), 1);
  return terms;
}

int TermOfDate(int year, int month, int day, int zone) {
  const ZoneGuard guard(zone);
  return CCalendarLunarSolarTerms().Check24Sekki(year, month, day);
}

void ExpectTerm(const Terms& terms, ESolarKyureki24 sekki, int month, int day, int hour) {
  const tag24SekkiResult& term = terms[static_cast<std::size_t>(sekki)];
  EXPECT_EQ(term.nMonth, month) << sekki;
  EXPECT_EQ(term.nDay, day) << sekki;
  EXPECT_EQ(term.nHour, hour) << sekki;
}

TEST(SekkiOfYear, Year2024AtZone8) {
  const Terms terms = TermsOfYear(2024, 8);
  ExpectTerm(terms, eSekkiMinorCold, 1, 6, 5);
  ExpectTerm(terms, eSekkiSpringEquinox, 3, 20, 11);
  ExpectTerm(terms, eSekkiSummerSolstice, 6, 21, 5);
  ExpectTerm(terms, eSekkiAutumnEquinox, 9, 22, 21);
  ExpectTerm(terms, eSekkiWinterSolstice, 12, 21, 17);
}

TEST(SekkiOfYear, Year2023AtZone8) {
  const Terms terms = TermsOfYear(2023, 8);
  ExpectTerm(terms, eSekkiSpringEquinox, 3, 21, 5);
  ExpectTerm(terms, eSekkiWinterSolstice, 12, 22, 11);
}

TEST(SekkiOfYear, Hour24IsNotCarriedIntoTheNextDay) {
  ExpectTerm(TermsOfYear(2024, 9), eSekkiEndOfHeat, 8, 22, 24);
  EXPECT_EQ(TermOfDate(2024, 8, 22, 9), eSekkiEndOfHeat);
  EXPECT_EQ(TermOfDate(2024, 8, 23, 9), eSekkiNone);
}

TEST(SekkiOfYear, TheZoneMovesADay) {
  ExpectTerm(TermsOfYear(2024, 0), eSekkiSummerSolstice, 6, 20, 21);
  ExpectTerm(TermsOfYear(2024, 8), eSekkiSummerSolstice, 6, 21, 5);
}

TEST(SekkiOfYear, FillsEveryField) {
  const Terms terms = TermsOfYear(2001, 9);
  for (int i = 0; i < kSekkiCount; ++i) {
    const tag24SekkiResult& term = terms[static_cast<std::size_t>(i)];
    EXPECT_EQ(term.dSunLongitude, (285 + 15 * i) % 360);
    EXPECT_EQ(term.nYear, 2001);
    EXPECT_EQ(term.nSekki, i);
    EXPECT_EQ(term.nMonth, i / 2 + 1);
  }
}

TEST(SekkiOfYear, TakesTheYears1800To2099Only) {
  const ZoneGuard guard(8);
  CCalendarLunarSolarTerms calculator;
  Terms terms{};
  Terms untouched{};
  std::memset(terms.data(), 0x5A, sizeof terms);
  std::memset(untouched.data(), 0x5A, sizeof untouched);
  for (const double year : {1799.0, 2100.0, 1799.999, 2099.001, -1e300, 1e300,
                            std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(calculator._GetSekkiByYear(year, terms.data()), 0) << year;
    EXPECT_EQ(std::memcmp(terms.data(), untouched.data(), sizeof terms), 0) << year;
  }
  EXPECT_EQ(calculator._GetSekkiByYear(2000.0, nullptr), 0);
  EXPECT_EQ(calculator._GetSekkiByYear(1800.0, terms.data()), 1);
  EXPECT_EQ(calculator._GetSekkiByYear(2099.0, terms.data()), 1);
}

TEST(SekkiOfYear, ReadsTheZoneAnew) {
  CCalendarLunarSolarTerms calculator;
  Terms terms{};
  {
    const ZoneGuard guard(0);
    calculator._GetSekkiByYear(2024, terms.data());
    EXPECT_EQ(terms[eSekkiSummerSolstice].nDay, 20);
  }
  const ZoneGuard guard(8);
  calculator._GetSekkiByYear(2024, terms.data());
  EXPECT_EQ(terms[eSekkiSummerSolstice].nDay, 21);
}

// 10000 hours are 416 days and 16 hours: December counts on.
TEST(SekkiOfYear, AnUnknownZoneGivesDaysThatDoNotExist) {
  const Terms terms = TermsOfYear(2024, kTimeZoneUnknown);
  for (const tag24SekkiResult& term : terms) {
    EXPECT_GT(term.nMonth * 100 + term.nDay, 1231);
  }
  EXPECT_EQ(terms[0].nMonth, 12);
  EXPECT_EQ(terms[0].nDay, 87);
}

TEST(SekkiOfDate, Year2024AtZone8) {
  EXPECT_EQ(TermOfDate(2024, 3, 20, 8), eSekkiSpringEquinox);
  EXPECT_EQ(TermOfDate(2024, 3, 21, 8), eSekkiNone);
  EXPECT_EQ(TermOfDate(2024, 1, 6, 8), eSekkiMinorCold);
  EXPECT_EQ(TermOfDate(2024, 12, 21, 8), eSekkiWinterSolstice);
}

TEST(SekkiOfDate, SolsticeOf2024FallsADayEarlierInUtc) {
  EXPECT_EQ(TermOfDate(2024, 6, 21, 8), eSekkiSummerSolstice);
  EXPECT_EQ(TermOfDate(2024, 6, 21, 0), eSekkiNone);
  EXPECT_EQ(TermOfDate(2024, 6, 20, 0), eSekkiSummerSolstice);
}

TEST(SekkiOfDate, NoneOutside1800To2099) {
  EXPECT_EQ(TermOfDate(1799, 1, 6, 8), eSekkiNone);
  EXPECT_EQ(TermOfDate(2100, 1, 5, 8), eSekkiNone);
  EXPECT_EQ(TermOfDate(-2147483647 - 1, 1, 5, 8), eSekkiNone);
  EXPECT_EQ(TermOfDate(2147483647, 1, 5, 8), eSekkiNone);
}

TEST(SekkiOfDate, OnBothSidesOfItsYears) {
  int first = 0;
  int last = 0;
  for (int day = 1; day <= 31; ++day) {
    first += TermOfDate(1800, 1, day, 8) == eSekkiMinorCold ? 1 : 0;
    last += TermOfDate(2099, 12, day, 8) == eSekkiWinterSolstice ? 1 : 0;
  }
  EXPECT_EQ(first, 1);
  EXPECT_EQ(last, 1);
}

TEST(SekkiOfDate, NoneOnADateThatDoesNotExist) {
  EXPECT_EQ(TermOfDate(2024, 2, 34, 8), eSekkiNone);  // 5 March, a term
  EXPECT_EQ(TermOfDate(2024, 13, 5, 8), eSekkiNone);
  EXPECT_EQ(TermOfDate(2024, 0, 0, 8), eSekkiNone);
  EXPECT_EQ(TermOfDate(2024, -2147483647 - 1, 2147483647, 8), eSekkiNone);
}

TEST(SekkiConstants, TermByLongitude) {
  for (int e = 0; e < kSekkiCount; ++e) {
    EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDCSolarKyureki24Sekki[e], (e + 5) % 24);
  }
}

TEST(SekkiConstants, ConstantsStandInTheOrderOfTheirSource) {
  EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDC24SekkiSla[0], 36000.7695);
  EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDC24SekkiSla[4], -0.0048);
  EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDC24SekkiSlb[4], 35999.0);
  EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDC24SekkiSlc[4], 268.0);
  EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDC24SekkiSla[17], 0.0004);
  EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDC24SekkiSlb[17], 31557.0);
  EXPECT_EQ(CCalendarLunarSolarTerms::g_ArrDC24SekkiSlc[17], 161.0);
}

struct SunLongitude {
  double days;
  double sum;
  double apparent;
};

// Sums of the printed series, worked out apart from this code.
constexpr SunLongitude kSunLongitudes[] = {
    {-73050.5, 278.39669684521505, 278.38838071798347},
    {-36525.0, 279.6442595342014, 279.643271344682},
    {0.0, 280.37736249876195, 280.36773056894936},
    {0.5, 280.8870850089993, 280.8774518074336},
    {8766.25, 280.80907417455455, 280.8016675653958},
    {36159.0, 280.3475884740328, 280.34102365386747},
};

TEST(SekkiLongitude, IsTheSumOfTheSeriesAndItsCorrection) {
  for (const SunLongitude& expected : kSunLongitudes) {
    EXPECT_NEAR(CCalendarLunarSolarTerms::_SunMLong(expected.days), expected.sum, 1e-9);
    EXPECT_NEAR(CCalendarLunarSolarTerms::_SunLong(expected.days), expected.apparent, 1e-9);
  }
}

// The correction may push a sum close to 0 or 360 over the end.
TEST(SekkiLongitude, LiesWithinOneTurn) {
  for (int i = -400000; i <= 400000; ++i) {
    const double longitude = CCalendarLunarSolarTerms::_SunLong(i * 0.0913);
    ASSERT_TRUE(longitude >= 0 && longitude < 360) << i;
  }
}

// So far away that a double holds no more than every 512th degree.
TEST(SekkiLongitude, ASumThatRoundingCarriesBeyondTheTurnIsBroughtBack) {
  for (const double days : {3.3116549769566285e18, 1.044172087301109e17}) {
    const double mean = CCalendarLunarSolarTerms::_SunMLong(days);
    EXPECT_TRUE(mean < 0 || mean > 361) << mean;
    const double longitude = CCalendarLunarSolarTerms::_SunLong(days);
    EXPECT_TRUE(longitude >= 0 && longitude < 360) << longitude;
  }
}

TEST(SekkiDayNumber, ChangesFromTheJulianCalendarToTheGregorian) {
  CCalendarLunarSolarTerms calculator;
  EXPECT_EQ(calculator._Ymd2Jd(1582, 10, 4), 2299159.0);
  EXPECT_EQ(calculator._Ymd2Jd(1582, 10, 15), 2299160.0);
  EXPECT_EQ(calculator._Ymd2Jd(1500, 3, 1), 2268992.0);
}

TEST(SekkiDayNumber, IsTheJulianDayAtNoonMinusOne) {
  CCalendarLunarSolarTerms calculator;
  EXPECT_EQ(calculator._Ymd2Jd(2000, 1, 1), 2451544.0);
  EXPECT_EQ(calculator._Ymd2Jd(1900, 1, 1), 2415020.0);
  EXPECT_EQ(calculator._Ymd2Jd(2024, 3, 1) - calculator._Ymd2Jd(2024, 1, 0), 61);
  EXPECT_EQ(calculator._Ymd2Jd(2023, 3, 1) - calculator._Ymd2Jd(2023, 1, 0), 60);
}

TEST(SekkiDayNumber, EqualsTheDayCountOfTheConverter) {
  CCalendarLunarSolarTerms calculator;
  ForEachDay(1800, 2099, [&](CCalendarSolarDate date) {
    ASSERT_EQ(calculator._Ymd2Jd(date.year, date.month, date.day),
              CCalendarLunarConverter::_YMDT2JD(date.year, date.month, date.day, 0, 0, 0))
        << Text(date);
  });
}

TEST(SekkiDeltaT, IsAStraightLine) {
  EXPECT_EQ(CCalendarLunarSolarTerms::_deltaT(1990), 58);
  EXPECT_DOUBLE_EQ(CCalendarLunarSolarTerms::_deltaT(2024), 72.96);
}

TEST(SekkiInstant, CountsFromOneOnTheFirstOfJanuary) {
  CCalendarLunarSolarTerms calculator;
  // The spring equinox of 2000: 20 March, 7:35 UT, which is day 80.
  EXPECT_NEAR(calculator._Sunlongdays(2000, 0), 80 + (7 + 35 / 60.0) / 24 + 64 / 86400.0, 0.004);
  EXPECT_NEAR(CCalendarLunarSolarTerms::_SunLong(calculator._Ymd2Jd(2000, 1, 0) - 2451544.5 +
                                                 calculator._Sunlongdays(2000, 90)),
              90, 1e-6);
}

// What _Sunlongdays leaves behind in the table of months.
class TableOfMonths : public CCalendarLunarSolarTerms {
 public:
  const int* Days() const { return m_nArrDaysOfMonth; }
};

TEST(SekkiTableOfMonths, FebruaryIs28AtFirstAnd29AfterASearch) {
  TableOfMonths table;
  EXPECT_EQ(table.Days()[0], 31);
  EXPECT_EQ(table.Days()[1], 28);
  EXPECT_EQ(table.Days()[11], 31);
  table._Sunlongdays(2023, 90);
  EXPECT_EQ(table.Days()[1], 29);
  EXPECT_EQ(table._GetDays2MD(2023, 60), 301);
  EXPECT_EQ(table.Days()[1], 28);
}

TEST(DaysOfYear, ToMonthAndDay) {
  CCalendarLunarSolarTerms calculator;
  EXPECT_EQ(calculator._GetDays2MD(2024, 60), 229);
  EXPECT_EQ(calculator._GetDays2MD(2023, 60), 301);
  EXPECT_EQ(calculator._GetDays2MD(1900, 60), 301);  // Gregorian: not a leap year
  EXPECT_EQ(calculator._GetDays2MD(1500, 60), 229);  // Julian: a leap year
  EXPECT_EQ(calculator._GetDays2MD(1582, 60), 301);
  EXPECT_EQ(calculator._GetDays2MD(2023, 1), 101);
  EXPECT_EQ(calculator._GetDays2MD(2023, 31), 131);
  EXPECT_EQ(calculator._GetDays2MD(2023, 32), 201);
}

TEST(DaysOfYear, CountOnBehindDecemberAndBackBeforeJanuary) {
  CCalendarLunarSolarTerms calculator;
  EXPECT_EQ(calculator._GetDays2MD(2023, 365), 1231);
  EXPECT_EQ(calculator._GetDays2MD(2023, 366), 1232);
  EXPECT_EQ(calculator._GetDays2MD(2023, 367), 1233);
  EXPECT_EQ(calculator._GetDays2MD(2023, 0), 100);
  EXPECT_EQ(calculator._GetDays2MD(2023, -5), 95);
}

TEST(DaysOfYear, KeepAFraction) {
  EXPECT_EQ(CCalendarLunarSolarTerms()._GetDays2MD(2023, 60.5), 301.5);
}

TEST(DaysOfYear, FromADate) {
  CCalendarLunarSolarTerms calculator;
  EXPECT_EQ(calculator._GetYearDays(2024, 3, 1), 61);
  EXPECT_EQ(calculator._GetYearDays(2023, 3, 1), 60);
  EXPECT_EQ(calculator._GetYearDays(2023, 1, 17), 17);
  EXPECT_EQ(calculator._GetYearDays(2023, 0, 17), 17);
  EXPECT_EQ(calculator._GetYearDays(2023, 12, 31), 365);
}

TEST(DaysOfYear, OfAMonth) {
  CCalendarLunarSolarTerms calculator;
  EXPECT_EQ(calculator._GetSolarMonthDays(2100, 2), 28);
  EXPECT_EQ(calculator._GetSolarMonthDays(2000, 2), 29);
  EXPECT_EQ(calculator._GetSolarMonthDays(2023, 1), 31);
  EXPECT_EQ(calculator._GetSolarMonthDays(2023, 4), 30);
  EXPECT_EQ(calculator._GetSolarMonthDays(2023, 12), 31);
}

}  // namespace
