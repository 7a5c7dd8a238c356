// SPDX-License-Identifier: MIT
//
// The engine's answers against those of the yardstick, the plainest form of the same look-ups, day
// by day over all years for which the engine shares work between days.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"
#include "lunar/julian_date.h"
#include "lunar/lunar_quarter.h"
#include "yardstick/days.h"
#include "yardstick/solar_terms.h"

namespace almara::test {
namespace {

constexpr int kFirstYear = 1799;  // a year beyond those that share work, on each side
constexpr int kLastYear = 2100;
constexpr int kCorrectedYear = 2017;  // holds the dates whose lunar date is fixed

bool operator==(const CCalendarLunarDate& a, const CCalendarLunarDate& b) {
  return a.year == b.year && a.month == b.month && a.day == b.day && a.reserved == b.reserved &&
         a.leap == b.leap;
}

bool HaveEqualBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

class IdentityInZone : public testing::TestWithParam<int> {
 protected:
  void SetUp() override { g_mac_timezone = GetParam(); }
};

// How far the instants found from two days of a quarter differ, and how near any of them comes to
// midnight, where it would move a month by a day. Both in seconds.
class Margins {
 public:
  void Add(const LunarQuarter& quarter) {
    const bool sameQuarter = std::fabs(quarter.terms[0].time - m_first.terms[0].time) < 1;
    if (!sameQuarter) {
      m_first = quarter;
    }
    for (std::size_t i = 0; i < quarter.terms.size(); ++i) {
      AddInstant(quarter.terms[i].time, m_first.terms[i].time);
    }
    for (std::size_t i = 0; i < quarter.moons.size(); ++i) {
      AddInstant(quarter.moons[i], m_first.moons[i]);
    }
  }

  double LargestDifference() const { return m_largestDifference; }
  double NearestToMidnight() const { return m_nearestToMidnight; }

 private:
  static constexpr double kSecondsPerDay = 86400;

  void AddInstant(double instant, double sameOfFirstDay) {
    const double difference = std::fabs(instant - sameOfFirstDay) * kSecondsPerDay;
    const double toMidnight = std::fabs(instant - std::round(instant)) * kSecondsPerDay;
    m_largestDifference = std::max(m_largestDifference, difference);
    m_nearestToMidnight = std::min(m_nearestToMidnight, toMidnight);
  }

  LunarQuarter m_first{};
  double m_largestDifference = 0;
  double m_nearestToMidnight = kSecondsPerDay;
};

TEST_P(IdentityInZone, LunarDates) {
  CCalendarLogic engine;
  CCalendarLunarConverter plain;
  Margins margins;
  int checked = 0;
  for (const CCalendarSolarDate& day : DaysOfYears(kFirstYear, kLastYear)) {
    const double dayCount = DayCount(day.year, day.month, day.day);
    const auto quarter = FindLunarQuarter(dayCount, GetParam());
    ASSERT_TRUE(quarter.has_value());
    margins.Add(*quarter);
    const CCalendarLunarDate expected =
        day.year == kCorrectedYear ? plain.Converter(day) : LunarDateInQuarter(*quarter, dayCount);
    ASSERT_TRUE(engine.ConverterLunar(day) == expected)
        << day.year << '-' << day.month << '-' << day.day;
    ++checked;
  }
  EXPECT_EQ(checked, 110303);

  std::printf("largest difference %.3f s, nearest to midnight %.3f s\n",
              margins.LargestDifference(), margins.NearestToMidnight());
  EXPECT_LT(2 * margins.LargestDifference(), margins.NearestToMidnight());
}

TEST_P(IdentityInZone, LunarDatesInRandomOrder) {
  CCalendarLogic engine;
  CCalendarLunarConverter plain;
  const auto days = Shuffled(DaysOfYears(kFirstYear, kLastYear));
  for (std::size_t i = 0; i < days.size(); i += 10) {
    ASSERT_TRUE(engine.ConverterLunar(days[i]) == plain.Converter(days[i]))
        << days[i].year << '-' << days[i].month << '-' << days[i].day;
  }
}

TEST_P(IdentityInZone, SolarTermTables) {
  CCalendarLunarSolarTerms terms;
  for (int year = 1800; year <= 2099; ++year) {
    tag24SekkiResult fast[kSekkiCount]{};
    tag24SekkiResult plain[kSekkiCount]{};
    ASSERT_EQ(terms._GetSekkiByYear(year, fast), 1);
    yardstick::GetSekkiByYear(year, plain);
    for (int i = 0; i < kSekkiCount; ++i) {
      ASSERT_EQ(fast[i].dSunLongitude, plain[i].dSunLongitude) << year << ' ' << i;
      ASSERT_EQ(fast[i].nYear, plain[i].nYear) << year << ' ' << i;
      ASSERT_EQ(fast[i].nMonth, plain[i].nMonth) << year << ' ' << i;
      ASSERT_EQ(fast[i].nDay, plain[i].nDay) << year << ' ' << i;
      ASSERT_EQ(fast[i].nHour, plain[i].nHour) << year << ' ' << i;
      ASSERT_EQ(fast[i].nSekki, plain[i].nSekki) << year << ' ' << i;
    }
  }
}

TEST_P(IdentityInZone, SolarTermsOfDays) {
  CCalendarLogic engine;
  tag24SekkiResult plain[kSekkiCount]{};
  for (const CCalendarSolarDate& day : DaysOfYears(kFirstYear, kLastYear)) {
    const bool inSpan = day.year >= 1800 && day.year <= 2099;
    if (inSpan && day.month == 1 && day.day == 1) {
      yardstick::GetSekkiByYear(day.year, plain);
    }
    ESolarKyureki24 expected = eSekkiNone;
    for (int i = kSekkiCount; inSpan && i-- > 0;) {
      if (plain[i].nMonth == day.month && plain[i].nDay == day.day) {
        expected = i;
      }
    }
    ASSERT_EQ(engine.Check24Sekki(day), expected) << day.year << '-' << day.month << '-' << day.day;
  }
}

std::string NameOfZone(const testing::TestParamInfo<int>& zone) {
  return (zone.param < 0 ? "West" : "East") + std::to_string(std::abs(zone.param));
}

INSTANTIATE_TEST_SUITE_P(Zones, IdentityInZone, testing::Range(-12, 15), NameOfZone);

TEST(Identity, InstantsOfSolarTermsHaveTheSameBits) {
  CCalendarLunarSolarTerms terms;
  for (int year = 1800; year <= 2099; ++year) {
    for (int longitude = 0; longitude < 360; longitude += 15) {
      ASSERT_TRUE(HaveEqualBits(terms._Sunlongdays(year, longitude),
                                yardstick::Sunlongdays(year, longitude)))
          << year << ' ' << longitude;
    }
  }
}

}  // namespace
}  // namespace almara::test
