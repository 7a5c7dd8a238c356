// SPDX-License-Identifier: MIT
#include "date/calendar_platform_api.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <tuple>

#include "support/clock.h"
#include "support/zone.h"

using almara::test::ScopedZone;
using almara::test::SetNow;
using almara::test::SetToday;

namespace {

constexpr std::time_t kNoLocalTime = std::numeric_limits<std::time_t>::max();
// The year whose tm_year is the greatest int; no later year can be told.
constexpr std::int32_t kLastTellableYear = -2147481749;

const std::int32_t g_zoneAtLoad = g_mac_timezone;

struct Today {
  int year = 1;
  int month = 2;
  int day = 3;
  int week = 4;
};

struct DateCase {
  int year, month, day;
  int fixedYear, fixedMonth, fixedDay, fixedWeek;
};

constexpr DateCase kDateCases[] = {
    {2024, 2, 29, 2024, 2, 29, 4},    // a leap day is a day
    {2024, 2, 30, 2024, 3, 1, 5},     //
    {2023, 2, 31, 2023, 3, 3, 5},     //
    {2024, 1, 32, 2024, 2, 1, 4},     //
    {2024, 3, 0, 2024, 2, 29, 4},     // day 0 is the last day of the month before
    {2024, 3, -1, 2024, 2, 28, 3},    //
    {2023, 13, 1, 2024, 1, 1, 1},     // month 13 is January of the next year
    {2024, 0, 15, 2023, 12, 15, 5},   // month 0 is December of the year before
    {2024, -1, 15, 2023, 11, 15, 3},  //
    {1900, 2, 29, 1900, 3, 1, 4},     // no leap year
    {2000, 2, 29, 2000, 2, 29, 2},    // a leap year
    {2099, 12, 31, 2099, 12, 31, 4},  //
    {0, 1, 1, 0, 1, 1, 6},            //
};

TEST(FixDateAndGetWeek, NormalisesAndTellsTheWeekday) {
  for (const DateCase& c : kDateCases) {
    SCOPED_TRACE(testing::Message() << c.year << '-' << c.month << '-' << c.day);
    int year = c.year;
    int month = c.month;
    int day = c.day;
    int week = 99;  // is not read
    CalendarPlatformApi::FixDateAndGetWeek(year, month, day, week);
    EXPECT_EQ(std::tie(year, month, day, week),
              std::tie(c.fixedYear, c.fixedMonth, c.fixedDay, c.fixedWeek));
  }
}

// The far ends of the ints overflow inside the system's conversion: the result is the second before
// the epoch, and nothing worse.
TEST(FixDateAndGetWeek, AFailedConversionGivesTheSecondBeforeTheEpoch) {
  int year = kLastTellableYear;
  int month = 12;
  int day = 32;  // would be a year that no tm can hold
  int week = 0;
  CalendarPlatformApi::FixDateAndGetWeek(year, month, day, week);
  EXPECT_EQ(std::tie(year, month, day, week), std::make_tuple(1969, 12, 31, 3));
}

struct OffsetCase {
  int year, month, day, offset;
  int newYear, newMonth, newDay, newWeek;
};

constexpr OffsetCase kOffsetCases[] = {
    {2024, 1, 1, -1, 2023, 12, 31, 0},        //
    {2024, 1, 1, 366, 2025, 1, 1, 3},         // 2024 has 366 days
    {2023, 1, 1, 365, 2024, 1, 1, 1},         // 2023 has 365
    {2024, 2, 30, 1, 2024, 3, 2, 6},          // the date is normalised first
    {2024, 3, 1, -1, 2024, 2, 29, 4},         //
    {2000, 1, 1, 24855, 2068, 1, 19, 4},      // the last offset whose seconds fit 32 bits
    {2000, 1, 1, 24856, 1931, 12, 14, 1},     // the seconds wrap
    {2000, 1, 1, -24855, 1931, 12, 14, 1},    //
    {2000, 1, 1, -24856, 2068, 1, 18, 3},     //
    {2000, 1, 1, -2147483648, 2000, 1, 1, 6}  // 2^31 days are a multiple of 2^32 seconds
};

TEST(GetNewDateByOffsetDays, GivesTheDayByRecordAndByParameters) {
  for (const OffsetCase& c : kOffsetCases) {
    SCOPED_TRACE(testing::Message()
                 << c.year << '-' << c.month << '-' << c.day << " and " << c.offset << " days");
    // The incoming day of the week, of a record too, is not read.
    const CCalendarSolarDate date =
        CalendarPlatformApi::GetNewDateByOffsetDays({c.year, c.month, c.day, 6}, c.offset);
    CCalendarSolarDate byParameters{};
    EXPECT_TRUE(CalendarPlatformApi::GetNewDateByOffsetDays(
        c.year, c.month, c.day, c.offset, byParameters.year, byParameters.month, byParameters.day,
        byParameters.dayOfWeek));
    for (const CCalendarSolarDate& d : {date, byParameters}) {
      EXPECT_EQ(std::tie(d.year, d.month, d.day, d.dayOfWeek),
                std::tie(c.newYear, c.newMonth, c.newDay, c.newWeek));
    }
  }
}

TEST(GetNewDateByOffsetDays, WhenTheSystemCannotConvertTheRecordIsAllZeroAndParametersStay) {
  const CCalendarSolarDate date =
      CalendarPlatformApi::GetNewDateByOffsetDays({kLastTellableYear, 12, 31, 5}, 1);
  EXPECT_EQ(std::tie(date.year, date.month, date.day, date.dayOfWeek), std::make_tuple(0, 0, 0, 0));
  Today kept;
  EXPECT_TRUE(CalendarPlatformApi::GetNewDateByOffsetDays(kLastTellableYear, 12, 31, 1, kept.year,
                                                          kept.month, kept.day, kept.week));
  EXPECT_EQ(std::tie(kept.year, kept.month, kept.day, kept.week), std::make_tuple(1, 2, 3, 4));
}

Today GetToday() {
  Today today;
  CalendarPlatformApi::GetTodayDate(today.year, today.month, today.day, today.week);
  return today;
}

TEST(GetTodayDate, IsTheLocalDateWithItsWeekday) {
  SetNow(1709251199);  // 2024-02-29 23:59:59 UTC
  Today today = GetToday();
  EXPECT_EQ(std::tie(today.year, today.month, today.day, today.week),
            std::make_tuple(2024, 2, 29, 4));
  const ScopedZone shanghai("Asia/Shanghai");
  today = GetToday();
  EXPECT_EQ(std::tie(today.year, today.month, today.day, today.week),
            std::make_tuple(2024, 3, 1, 5));
}

TEST(GetTodayDate, FollowsTheZoneOfAHostThatOnlySetsTheVariable) {
  SetNow(1709251199);  // 2024-02-29 23:59:59 UTC
  const ScopedZone zone("UTC");
  EXPECT_EQ(GetToday().day, 29);
  setenv("TZ", "Asia/Shanghai", 1);
  EXPECT_EQ(GetToday().day, 1);
}

TEST(GetTodayDate, KeepsItsParametersWhenThereIsNoLocalTime) {
  SetNow(kNoLocalTime);
  const Today today = GetToday();
  EXPECT_EQ(std::tie(today.year, today.month, today.day, today.week), std::make_tuple(1, 2, 3, 4));
}

TEST(TimeZoneValue, IsTheSentinelUntilSomethingSetsIt) { EXPECT_EQ(g_zoneAtLoad, 10000); }

TEST(TimeZoneValue, IsHandedOutAsItIs) {
  for (const std::int32_t hours : {kTimeZoneUnknown, 0, 9, -3}) {
    g_mac_timezone = hours;
    EXPECT_EQ(CalendarPlatformApi::PlatformGetTimeZoneValue(), static_cast<double>(hours));
  }
}

struct ZoneCase {
  const char* zone;
  int month;  // of 2024, on the 15th
  int hours;
};

constexpr ZoneCase kZoneCases[] = {
    {"UTC", 1, 0},
    {"Asia/Shanghai", 1, 8},
    {"Asia/Kolkata", 1, 5},          // +5:30
    {"Pacific/Chatham", 7, 12},      // +12:45
    {"Pacific/Kiritimati", 1, 14},   // the easternmost
    {"NOWHERE+3:30", 1, -3},         // -3:30, not -4
    {"America/St_Johns", 1, -3},     // -3:30 in winter
    {"America/St_Johns", 7, -2},     // -2:30 in summer
    {"Pacific/Marquesas", 1, -9},    // -9:30
    {"NOWHERE+0:45", 1, 0},          //
    {"America/New_York", 1, -5},     //
    {"America/New_York", 7, -4},     //
    {"Australia/Lord_Howe", 1, 11},  // in summer
    {"Australia/Lord_Howe", 7, 10},  // +10:30, half an hour less
};

TEST(MachineOffsetHours, IsTheOffsetOfTheMomentTruncatedTowardZero) {
  for (const ZoneCase& c : kZoneCases) {
    SCOPED_TRACE(testing::Message() << c.zone << ", month " << c.month);
    const ScopedZone zone(c.zone);
    SetToday(2024, c.month, 15);
    EXPECT_EQ(almara::MachineOffsetHours(), c.hours);
  }
}

TEST(MachineOffsetHours, IsUnknownWhenThereIsNoLocalTime) {
  SetNow(kNoLocalTime);
  EXPECT_EQ(almara::MachineOffsetHours(), kTimeZoneUnknown);
}

TEST(Today, IsTheDateOrAllZeroes) {
  SetToday(2024, 3, 13);
  const CCalendarSolarDate today = almara::Today();
  EXPECT_EQ(std::tie(today.year, today.month, today.day, today.dayOfWeek),
            std::make_tuple(2024, 3, 13, 3));
  SetNow(kNoLocalTime);
  const CCalendarSolarDate none = almara::Today();
  EXPECT_EQ(std::tie(none.year, none.month, none.day, none.dayOfWeek), std::make_tuple(0, 0, 0, 0));
}

}  // namespace
