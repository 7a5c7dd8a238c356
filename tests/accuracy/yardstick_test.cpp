// SPDX-License-Identifier: MIT
//
// Whether the yardstick of the accuracy report is straight: the ephemeris against published
// instants, the calendar made from it against published calendars.
#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "accuracy/deviations.h"
#include "accuracy/ephemeris.h"
#include "accuracy/month_rule.h"
#include "accuracy/text.h"

namespace almara_accuracy {

namespace {

constexpr double kSecondsPerDay = 86400;

double MomentOf(almara_test::Civil date, int hour, int minute, int second) {
  return almara_test::DayNumber(date) + (hour * 3600 + minute * 60 + second) / kSecondsPerDay;
}

std::size_t Index(almara_test::Civil date) {
  return static_cast<std::size_t>(almara_test::DayNumber(date));
}

const Ephemeris& SharedEphemeris() {
  static const Ephemeris ephemeris = ComputeEphemeris();
  return ephemeris;
}

LunarDates DatesAt(Zone zone) {
  return DatesByRule(SharedEphemeris().newMoons, SharedEphemeris().terms, zone);
}

// Jean Meeus, Astronomical Algorithms, example 27.a: 1962-06-21 21:24:42 dynamical time by the full
// theory; delta T was 34 seconds then.
TEST(Ephemeris, HasTheSummerSolsticeOf1962) {
  const double expected = MomentOf({1962, 6, 21}, 21, 24, 8);
  double seconds = kSecondsPerDay;
  for (const SolarTerm& term : SharedEphemeris().terms) {
    if (term.longitude == 90 && std::fabs(term.moment - expected) < 1) {
      seconds = (term.moment - expected) * kSecondsPerDay;
    }
  }
  EXPECT_NEAR(seconds, 0, 5);
}

// The same book, example 49.a: 1977-02-18 03:37:42 dynamical time, good to 17 seconds; delta T was
// 48 seconds then.
TEST(Ephemeris, HasTheNewMoonOfFebruary1977) {
  const double expected = MomentOf({1977, 2, 18}, 3, 36, 54);
  double seconds = kSecondsPerDay;
  for (const double moment : SharedEphemeris().newMoons) {
    if (std::fabs(moment - expected) < 1) {
      seconds = (moment - expected) * kSecondsPerDay;
    }
  }
  EXPECT_NEAR(seconds, 0, 17);
}

TEST(Ephemeris, HasEveryNewMoonAndTermOnce) {
  const std::vector<double>& moons = SharedEphemeris().newMoons;
  for (std::size_t k = 1; k < moons.size(); ++k) {
    const double days = moons[k] - moons[k - 1];
    EXPECT_TRUE(days > 29.2 && days < 29.9) << ClockText(moons[k]);
  }
  const std::vector<SolarTerm>& terms = SharedEphemeris().terms;
  for (std::size_t k = 1; k < terms.size(); ++k) {
    const double days = terms[k].moment - terms[k - 1].moment;
    EXPECT_TRUE(days > 14.6 && days < 15.9) << ClockText(terms[k].moment);
    EXPECT_EQ(terms[k].longitude, (terms[k - 1].longitude + 15) % 360);
  }
}

// The leap months of China's published calendars, as year:month.
constexpr const char* kPublishedLeapMonths =
    "1900:8 1903:5 1906:4 1909:2 1911:6 1914:5 1917:2 1919:7 1922:5 1925:4 1928:2 1930:6 1933:5 "
    "1936:3 1938:7 1941:6 1944:4 1947:2 1949:7 1952:5 1955:3 1957:8 1960:6 1963:4 1966:3 1968:7 "
    "1971:5 1974:4 1976:8 1979:6 1982:4 1984:10 1987:6 1990:5 1993:3 1995:8 1998:5 2001:4 2004:2 "
    "2006:7 2009:5 2012:4 2014:9 2017:6 2020:4 2023:2 2025:6 2028:5 2031:3 2033:11 2036:6 2039:5 "
    "2042:2 2044:7 2047:5 2050:3 2052:8 2055:6 2058:4 2061:3 2063:7 2066:5 2069:4 2071:8 2074:6 "
    "2077:4 2080:3 2082:7 2085:5 2088:4 2090:8 2093:6 2096:4 2099:2";

TEST(MonthRule, PlacesThePublishedLeapMonths) {
  std::ostringstream leapMonths;
  for (const LunarDate& date : DatesAt(8)) {
    if (date.leap != 0 && date.day == 1) {
      leapMonths << (leapMonths.tellp() > 0 ? " " : "") << date.year << ':' << date.month;
    }
  }
  EXPECT_EQ(leapMonths.str(), kPublishedLeapMonths);
}

// New year's days that China, Korea and Vietnam kept, where they differ.
TEST(MonthRule, PlacesThePublishedNewYearsDays) {
  const struct {
    Zone zone;
    almara_test::Civil day;
  } kCases[] = {
      {8, {1985, 2, 20}}, {7, {1985, 1, 21}},  // a month apart
      {8, {1997, 2, 7}},  {9, {1997, 2, 8}},  {8, {2007, 2, 18}}, {7, {2007, 2, 17}},
      {8, {2024, 2, 10}}, {9, {2024, 2, 10}}, {7, {2024, 2, 10}},
  };
  for (const auto& c : kCases) {
    const LunarDates dates = DatesAt(c.zone);
    const LunarDate& date = dates[Index(c.day)];
    EXPECT_EQ(LunarText(date), LunarText({c.day.year, 1, 0, 1}))
        << ZoneText(c.zone) << " on " << c.day;
  }
}

// Two equal calendars of which one gets other dates.
std::vector<DeviationSpan> DeviationsWith(
    const std::vector<std::pair<almara_test::Civil, LunarDate>>& changes) {
  const LunarDates dates(kDays, LunarDate{2000, 1, 0, 1});
  LunarDates changed = dates;
  for (const auto& [day, date] : changes) {
    changed[Index(day)] = date;
  }
  return FindDeviations(changed, dates);
}

TEST(Deviations, AreNoneBetweenEqualCalendars) { EXPECT_TRUE(DeviationsWith({}).empty()); }

TEST(Deviations, EndWhereTheKindChangesAndAtAGap) {
  const auto spans = DeviationsWith({
      {{1900, 1, 1}, {2000, 1, 0, 2}},    // another day
      {{1900, 1, 2}, {2000, 1, 0, 2}},    //
      {{1900, 1, 3}, {2000, 1, 1, 1}},    // leap in one of them only
      {{1900, 1, 5}, {2000, 2, 0, 1}},    // another month, behind a gap
      {{2099, 12, 31}, {2001, 1, 0, 1}},  // another year
  });
  ASSERT_EQ(spans.size(), 4U);
  EXPECT_EQ(CountDays(spans), 5);
  EXPECT_EQ(Length(spans[0]), 2);
  EXPECT_EQ(spans[0].deviation, Deviation::kDay);
  EXPECT_EQ(spans[1].first, 2);
  EXPECT_EQ(spans[1].deviation, Deviation::kMonth);
  EXPECT_EQ(spans[2].first, 4);
  EXPECT_EQ(spans[2].deviation, Deviation::kMonth);
  EXPECT_EQ(spans[3].last, kDays - 1);
  EXPECT_EQ(spans[3].deviation, Deviation::kYear);
}

TEST(Errors, AreSummarizedBySize) {
  const ErrorSummary summary = Summarize({{10, 3}, {20, -7}, {30, 1}});
  EXPECT_EQ(summary.count, 3U);
  EXPECT_EQ(summary.median, 3);
  EXPECT_EQ(summary.worst.seconds, -7);
  EXPECT_EQ(summary.worst.moment, 20);
}

TEST(Text, ShowsDatesAndMoments) {
  EXPECT_EQ(DateText(0), "1900-01-01");
  EXPECT_EQ(DateText(-1), "1899-12-31");
  EXPECT_EQ(DateText(kDays - 1), "2099-12-31");
  EXPECT_EQ(DateText(almara_test::DayNumber({2000, 2, 29})), "2000-02-29");
  EXPECT_EQ(ClockText(LocalMoment(MomentOf({2089, 9, 4}, 15, 59, 4) + 1e-6, 8)),
            "2089-09-04 23:59:04");
}

}  // namespace

}  // namespace almara_accuracy
