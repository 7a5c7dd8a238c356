// SPDX-License-Identifier: MIT
//
// Every day of 1900 to 2099 in every kind of zone.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "date/calendar_platform_api.h"
#include "support/civil.h"
#include "support/zone.h"

using almara::test::AddDays;
using almara::test::Civil;
using almara::test::DayOfWeek;
using almara::test::kFirstDay;
using almara::test::kZones;
using almara::test::NextDay;
using almara::test::ScopedZone;

namespace {

// Days whose midnight of standard time these zones left out, and the one after Apia's missing day.
const std::map<std::string, std::vector<Civil>> kDaysWithoutMidnight = {
    {"America/St_Johns", {{1935, 3, 30}}},
    {"Australia/Lord_Howe", {{1981, 3, 1}}},
    {"Pacific/Apia", {{1950, 1, 1}, {2011, 12, 30}, {2011, 12, 31}}},
};

std::vector<Civil> DaysThatChange() {
  std::vector<Civil> days;
  for (Civil day = kFirstDay; day.year < 2100; day = NextDay(day)) {
    Civil fixed = day;
    int week = -1;
    CalendarPlatformApi::FixDateAndGetWeek(fixed.year, fixed.month, fixed.day, week);
    if (fixed != day || week != DayOfWeek(day)) {
      days.push_back(day);
    }
  }
  return days;
}

TEST(DateSweep, EveryDayStaysItselfExceptTheOnesWithoutMidnight) {
  for (const char* name : kZones) {
    SCOPED_TRACE(name);
    const ScopedZone zone(name);
    const auto expected = kDaysWithoutMidnight.find(name);
    EXPECT_EQ(DaysThatChange(),
              expected != kDaysWithoutMidnight.end() ? expected->second : std::vector<Civil>{});
  }
}

// In zones without a change of standard time, every day is reached from every other.
TEST(DateSweep, OffsetsReachTheDayThatCountingReaches) {
  for (const char* name : {"UTC", "America/New_York", "Europe/Berlin"}) {
    SCOPED_TRACE(name);
    const ScopedZone zone(name);
    for (Civil day = kFirstDay; day.year < 2100; day = NextDay(day)) {
      for (const int offset : {-42, -7, -1, 1, 7, 42}) {
        const CCalendarSolarDate found =
            CalendarPlatformApi::GetNewDateByOffsetDays({day.year, day.month, day.day, 0}, offset);
        const Civil expected = AddDays(day, offset);
        ASSERT_EQ((Civil{found.year, found.month, found.day}), expected) << day << ' ' << offset;
        ASSERT_EQ(found.dayOfWeek, DayOfWeek(expected)) << day << ' ' << offset;
      }
    }
  }
}

}  // namespace
