// SPDX-License-Identifier: MIT
//
// Dates in zones that change their clocks. The day must not depend on them, except where a zone
// left out a midnight of its standard time.
#include <gtest/gtest.h>

#include <algorithm>

#include "date/calendar_platform_api.h"
#include "support/civil.h"
#include "support/zone.h"

using almara::test::AddDays;
using almara::test::Civil;
using almara::test::DayOfWeek;
using almara::test::kZones;
using almara::test::NextDay;
using almara::test::ScopedZone;

namespace {

struct Fixed {
  Civil date;
  int week;
};

Fixed Fix(Civil date) {
  int week = -1;
  CalendarPlatformApi::FixDateAndGetWeek(date.year, date.month, date.day, week);
  return {date, week};
}

Civil Offset(Civil date, int days) {
  const CCalendarSolarDate result =
      CalendarPlatformApi::GetNewDateByOffsetDays({date.year, date.month, date.day, 0}, days);
  return {result.year, result.month, result.day};
}

class EveryZone : public testing::TestWithParam<const char*> {};

std::string NameOfZone(const testing::TestParamInfo<const char*>& zone) {
  std::string name = zone.param;
  std::replace(name.begin(), name.end(), '/', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(DateZones, EveryZone, testing::ValuesIn(kZones), NameOfZone);

TEST_P(EveryZone, DaysOf2024StayThemselves) {
  const ScopedZone zone(GetParam());
  for (Civil day{2024, 1, 1}; day.year == 2024; day = NextDay(day)) {
    const Fixed fixed = Fix(day);
    ASSERT_EQ(fixed.date, day);
    ASSERT_EQ(fixed.week, DayOfWeek(day)) << day;
  }
}

TEST_P(EveryZone, OffsetsCrossEveryChangeOfTheClocks) {
  const ScopedZone zone(GetParam());
  for (Civil day{2024, 1, 1}; day.year == 2024; day = NextDay(day)) {
    for (const int offset : {-183, -42, -1, 1, 42, 183}) {
      ASSERT_EQ(Offset(day, offset), AddDays(day, offset)) << day << ' ' << offset;
    }
  }
}

TEST(DateZones, ApiaHasNo30December2011) {
  const ScopedZone zone("Pacific/Apia");
  EXPECT_EQ(Fix({2011, 12, 29}).date, (Civil{2011, 12, 29}));
  EXPECT_EQ(Fix({2011, 12, 29}).week, 4);
  EXPECT_EQ(Offset({2011, 12, 29}, 1), (Civil{2011, 12, 31}));
  EXPECT_EQ(Offset({2011, 12, 28}, 2), (Civil{2011, 12, 31}));
  EXPECT_EQ(Offset({2012, 1, 1}, -1), (Civil{2011, 12, 31}));
  EXPECT_EQ(Offset({2012, 1, 1}, -2), (Civil{2011, 12, 29}));
  EXPECT_EQ(Fix({2012, 1, 1}).date, (Civil{2012, 1, 1}));
  EXPECT_EQ(Fix({2012, 1, 1}).week, 0);
}

// The standard time nearest to that summer day is the one from before the change, 24 hours behind.
TEST(DateZones, TheDayAfterApiasMissingOneIsTakenForTheNext) {
  const ScopedZone zone("Pacific/Apia");
  EXPECT_EQ(Fix({2011, 12, 31}).date, (Civil{2012, 1, 1}));
  EXPECT_EQ(Offset({2011, 12, 31}, -1), (Civil{2011, 12, 31}));
}

// The system chooses one of the neighbours by the call it had before.
TEST(DateZones, AskedForItsMissingDayApiaGivesANeighbour) {
  const ScopedZone zone("Pacific/Apia");
  Fix({2011, 12, 28});
  EXPECT_EQ(Fix({2011, 12, 30}).date, (Civil{2011, 12, 29}));
  EXPECT_EQ(Fix({2011, 12, 30}).date, (Civil{2011, 12, 29}));
  Fix({2012, 1, 2});
  EXPECT_EQ(Fix({2011, 12, 30}).date, (Civil{2011, 12, 31}));
  EXPECT_EQ(Fix({2011, 12, 30}).date, (Civil{2011, 12, 31}));
}

// Daylight saving that begins at midnight leaves out that midnight; standard time does not.
TEST(DateZones, DaylightSavingThatBeginsAtMidnightKeepsTheDay) {
  struct {
    const char* zone;
    Civil day;
  } const cases[] = {{"America/Sao_Paulo", {2017, 10, 15}},
                     {"Asia/Beirut", {2024, 3, 31}},
                     {"America/Havana", {2024, 3, 10}},
                     {"America/Asuncion", {2023, 10, 1}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.zone);
    const ScopedZone zone(c.zone);
    EXPECT_EQ(Fix(c.day).date, c.day);
    EXPECT_EQ(Offset(c.day, -1), AddDays(c.day, -1));
    EXPECT_EQ(Offset(c.day, 1), AddDays(c.day, 1));
    EXPECT_EQ(Offset(AddDays(c.day, -1), 1), c.day);
  }
}

// Known limit: the data of these zones call winter time daylight saving, an hour behind standard
// time, so standard midnight is the evening before.
TEST(DateZones, DublinShiftsItsWinterDaysBackByOne) {
  const ScopedZone zone("Europe/Dublin");
  const Fixed winter = Fix({2024, 1, 15});
  EXPECT_EQ(winter.date, (Civil{2024, 1, 14}));
  EXPECT_EQ(winter.week, 0);
  EXPECT_EQ(Offset({2024, 1, 15}, 1), (Civil{2024, 1, 15}));

  const Fixed summer = Fix({2024, 7, 15});
  EXPECT_EQ(summer.date, (Civil{2024, 7, 15}));
  EXPECT_EQ(summer.week, 1);

  // The clocks of 2024 change on 31 March and 27 October at 1:00 UTC.
  EXPECT_EQ(Fix({2024, 3, 31}).date, (Civil{2024, 3, 30}));
  EXPECT_EQ(Fix({2024, 4, 1}).date, (Civil{2024, 4, 1}));
  EXPECT_EQ(Fix({2024, 10, 27}).date, (Civil{2024, 10, 27}));
  EXPECT_EQ(Fix({2024, 10, 28}).date, (Civil{2024, 10, 27}));
}

TEST(DateZones, CasablancaShiftsTheDaysOfRamadanBackByOne) {
  const ScopedZone zone("Africa/Casablanca");
  EXPECT_EQ(Fix({2024, 3, 10}).date, (Civil{2024, 3, 10}));  // the clocks go back on this day
  EXPECT_EQ(Fix({2024, 3, 11}).date, (Civil{2024, 3, 10}));
  EXPECT_EQ(Fix({2024, 4, 14}).date, (Civil{2024, 4, 13}));
  EXPECT_EQ(Fix({2024, 4, 15}).date, (Civil{2024, 4, 15}));
}

// Known limit: where standard time itself was put forward at midnight, that midnight never was, and
// a failed conversion stands for the second before the epoch.
TEST(DateZones, MidnightLeftOutByANewStandardTimeGivesTheEpoch) {
  const ScopedZone zone("Australia/Lord_Howe");
  const Fixed fixed = Fix({1981, 3, 1});
  EXPECT_EQ(fixed.date, (Civil{1970, 1, 1}));  // 9:59:59 there
  EXPECT_EQ(fixed.week, 4);
  EXPECT_EQ(Fix({1981, 2, 28}).date, (Civil{1981, 2, 28}));
  EXPECT_EQ(Fix({1981, 3, 2}).date, (Civil{1981, 3, 2}));
  EXPECT_EQ(Offset({1981, 2, 28}, 1), (Civil{1981, 3, 1}));
}

}  // namespace
