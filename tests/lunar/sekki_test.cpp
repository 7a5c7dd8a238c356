// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <cstddef>

#include "date/calendar_platform_api.h"
#include "gregorian_days.h"
#include "lunar/historical_year.h"
#include "lunar/julian_date.h"
#include "lunar/sekki_longitude.h"
#include "lunar/sekki_lookup.h"
#include "lunar/sekki_year.h"

namespace almara::test {
namespace {

using Terms = std::array<tag24SekkiResult, kSekkiCount>;

Terms TermsOfYear(int year, int zone) {
  Terms terms{};
  FindSekkiOfYear(year, zone, terms.data());
  return terms;
}

ESolarKyureki24 TermOfDate(int year, int month, int day, int zone) {
  LunarMemo memo;
  return SekkiOf({year, month, day, 0}, zone, memo);
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

// Less than 66 seconds before midnight of UTC-5, and after it in dynamical time.
TEST(SekkiOfYear, DynamicalTimeWouldMoveADay) {
  EXPECT_EQ(TermOfDate(2008, 3, 4, -5), eSekkiAwakeningOfInsects);
  EXPECT_EQ(TermOfDate(2008, 3, 5, -5), eSekkiNone);
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

// Nothing is worked out for these years: a table of zeroes would name month 0, day 0 a term.
TEST(SekkiOfDate, NoneOutside1800To2099) {
  for (const int year : {1799, 2100, -2147483647 - 1, 2147483647}) {
    EXPECT_EQ(TermOfDate(year, 1, 6, 8), eSekkiNone) << year;
    EXPECT_EQ(TermOfDate(year, 1, 5, 8), eSekkiNone) << year;
    EXPECT_EQ(TermOfDate(year, 0, 0, 8), eSekkiNone) << year;
  }
  int first = 0;
  int last = 0;
  for (int day = 1; day <= 31; ++day) {
    first += TermOfDate(1800, 1, day, 8) == eSekkiMinorCold ? 1 : 0;
    last += TermOfDate(2099, 12, day, 8) == eSekkiWinterSolstice ? 1 : 0;
    EXPECT_EQ(TermOfDate(1799, 12, day, 8), eSekkiNone);
    EXPECT_EQ(TermOfDate(2100, 1, day, 8), eSekkiNone);
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

struct SunLongitude {
  double days;
  double sum;
  double apparent;
};

// Sums of the series, worked out apart from this code.
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
    EXPECT_NEAR(SekkiSeriesSum(expected.days), expected.sum, 1e-9);
    EXPECT_NEAR(SekkiSunLongitude(expected.days), expected.apparent, 1e-9);
  }
}

// The correction may push a sum close to 0 or 360 over the end.
TEST(SekkiLongitude, LiesWithinOneTurn) {
  for (int i = -400000; i <= 400000; ++i) {
    const double longitude = SekkiSunLongitude(i * 0.0913);
    ASSERT_TRUE(longitude >= 0 && longitude < 360) << i;
  }
}

// So far away that a double holds no more than every 512th degree.
TEST(SekkiLongitude, ASumThatRoundingCarriesBeyondTheTurnIsBroughtBack) {
  for (const double days : {3.3116549769566285e18, 1.044172087301109e17}) {
    const double sum = SekkiSeriesSum(days);
    EXPECT_TRUE(sum < 0 || sum > 361) << sum;
    const double longitude = SekkiSunLongitude(days);
    EXPECT_TRUE(longitude >= 0 && longitude < 360) << longitude;
  }
}

TEST(SekkiInstant, CountsFromOneOnTheFirstOfJanuary) {
  // The spring equinox of 2000: 20 March, 7:35 UT, which is day 80.
  EXPECT_NEAR(SunInstantOfYear(2000, 0), 80 + (7 + 35 / 60.0) / 24 + 64 / 86400.0, 0.004);
}

// The search steps over whole days and must not step over the crossing. The Sun is fastest in
// January, where a longitude below that of the start is nearly a year away.
TEST(SekkiInstant, IsWhereTheSunReachesTheLongitude) {
  for (int year = 1800; year <= 2099; ++year) {
    const double start = HistoricalDayNumber(year, 1, 0) - 2451544.5;
    for (int longitude = 0; longitude < 360; ++longitude) {
      const double day = SunInstantOfYear(year, longitude);
      ASSERT_TRUE(day > 0 && day < 367) << year << ' ' << longitude;
      const double sun = SekkiSunLongitude(start + day);
      const double off = sun > 270 && longitude < 90 ? sun - 360 - longitude : sun - longitude;
      ASSERT_NEAR(off, 0, 1e-6) << year << ' ' << longitude;
    }
  }
}

TEST(SekkiDeltaT, IsAStraightLine) {
  EXPECT_EQ(DeltaT(1990), 58);
  EXPECT_DOUBLE_EQ(DeltaT(2024), 72.96);
}

TEST(HistoricalYear, ChangesFromTheJulianCalendarToTheGregorian) {
  EXPECT_EQ(HistoricalDayNumber(1582, 10, 4), 2299159.0);
  EXPECT_EQ(HistoricalDayNumber(1582, 10, 15), 2299160.0);
  EXPECT_EQ(HistoricalDayNumber(1500, 3, 1), 2268992.0);
  EXPECT_EQ(HistoricalDayNumber(1600, 1, 1), 2305447.0);
  EXPECT_EQ(HistoricalDayNumber(1700, 3, 1), 2342031.0);
}

TEST(HistoricalYear, CountsDaysAsTheLunarDatesDo) {
  ForEachDay(1800, 2099, [](CCalendarSolarDate date) {
    ASSERT_EQ(HistoricalDayNumber(date.year, date.month, date.day),
              DayCount(date.year, date.month, date.day))
        << Text(date);
  });
}

TEST(HistoricalYear, MonthAndDayOfADayOfTheYear) {
  EXPECT_EQ(MonthDayOfHistoricalYear(2024, 60), 229);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 60), 301);
  EXPECT_EQ(MonthDayOfHistoricalYear(1900, 60), 301);  // Gregorian: not a leap year
  EXPECT_EQ(MonthDayOfHistoricalYear(1500, 60), 229);  // Julian: a leap year
  EXPECT_EQ(MonthDayOfHistoricalYear(1582, 60), 301);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 1), 101);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 31), 131);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 32), 201);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 60.5), 301.5);
}

TEST(HistoricalYear, DaysCountOnAfterDecemberAndBackBeforeJanuary) {
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 365), 1231);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 366), 1232);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 367), 1233);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, 0), 100);
  EXPECT_EQ(MonthDayOfHistoricalYear(2023, -5), 95);
}

TEST(HistoricalYear, DayOfTheYearOfADate) {
  EXPECT_EQ(DayOfHistoricalYear(2024, 3, 1), 61);
  EXPECT_EQ(DayOfHistoricalYear(2023, 3, 1), 60);
  EXPECT_EQ(DayOfHistoricalYear(2023, 12, 31), 365);
  EXPECT_EQ(DayOfHistoricalYear(2023, 0, 17), 17);
  EXPECT_EQ(DayOfHistoricalYear(2023, 13, 31), 365);
}

TEST(HistoricalYear, DaysOfAMonth) {
  EXPECT_EQ(DaysOfHistoricalMonth(2100, 2), 28);
  EXPECT_EQ(DaysOfHistoricalMonth(1500, 2), 29);
  EXPECT_EQ(DaysOfHistoricalMonth(2023, 1), 31);
  EXPECT_EQ(DaysOfHistoricalMonth(2023, 4), 30);
  EXPECT_EQ(DaysOfHistoricalMonth(2023, 13), 31);
}

}  // namespace
}  // namespace almara::test
