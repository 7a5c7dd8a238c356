// SPDX-License-Identifier: MIT
//
// The engine's answers against those of the yardstick, the plainest form of the same look-ups, day
// by day over all years for which the engine shares work between days.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"
#include "yardstick/days.h"
#include "yardstick/solar_terms.h"

namespace almara::test {
namespace {

constexpr int kFirstYear = 1799;  // a year beyond those that share work, on each side
constexpr int kLastYear = 2100;

bool operator==(const CCalendarLunarDate& a, const CCalendarLunarDate& b) {
  return a.year == b.year && a.month == b.month && a.day == b.day && a.reserved == b.reserved &&
         a.leap == b.leap;
}

bool HaveEqualBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

class IdentityInZone : public testing::TestWithParam<int> {
 protected:
  void SetUp() override { g_mac_timezone = GetParam(); }
};

TEST_P(IdentityInZone, LunarDatesInOrderAndAtRandom) {
  struct Answer {
    CCalendarSolarDate day;
    CCalendarLunarDate lunar;
  };
  const CCalendarLunarConverter plain;
  std::vector<Answer> answers;
  for (const CCalendarSolarDate& day : DaysOfYears(kFirstYear, kLastYear)) {
    answers.push_back({day, plain.Converter(day)});
  }
  ASSERT_EQ(answers.size(), 110303U);
  for (int order = 0; order < 2; ++order) {
    CCalendarLogic engine;
    for (const auto& [day, lunar] : answers) {
      ASSERT_TRUE(engine.ConverterLunar(day) == lunar)
          << day.year << '-' << day.month << '-' << day.day;
    }
    std::shuffle(answers.begin(), answers.end(), std::mt19937(20240210));
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
