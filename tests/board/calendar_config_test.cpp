// SPDX-License-Identifier: MIT
#include "board/calendar_config.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <string>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr char kDefaultKey[] = "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1";

TEST(CalendarConfig, Defaults) { EXPECT_EQ(CCalendarConfig().GetConfigKey(), kDefaultKey); }

TEST(CalendarConfig, MaxColumnsTakesOneToSevenAndIgnoresTheRest) {
  CCalendarConfig config;
  config.SetMaxColumns(4);
  for (const int ignored : {0, 8, -3, kMin, kMax}) {
    config.SetMaxColumns(ignored);
    EXPECT_EQ(config.GetMaxColumns(), 4) << ignored;
  }
  for (int columns = 1; columns <= 7; ++columns) {
    config.SetMaxColumns(columns);
    EXPECT_EQ(config.GetMaxColumns(), columns);
  }
  config.SetMaxColumns(4);
  EXPECT_EQ(config.GetConfigKey(), "1-5-4-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1");
}

TEST(CalendarConfig, ADayOutsideTheWeekIsNoBreakDayAndCannotBecomeOne) {
  CCalendarConfig config;
  for (const int day : {7, -1, 8, kMin, kMax}) {
    config.SetBreakDayOfWeek(day, true);
    EXPECT_FALSE(config.IsBreakDayOfWeek(day)) << day;
    EXPECT_EQ(config.GetConfigKey(), kDefaultKey) << day;
  }
}

struct IntOption {
  void (CCalendarConfig::*set)(int);
  int (CCalendarConfig::*get)() const;
  const char* keyOf9;
};

// The rule for week numbers stands between the two flags.
constexpr IntOption kIntOptions[] = {
    {&CCalendarConfig::SetDispMonth, &CCalendarConfig::GetDispMonth,
     "9-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1"},
    {&CCalendarConfig::SetMaxRows, &CCalendarConfig::GetMaxRows,
     "1-9-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1"},
    {&CCalendarConfig::SetPassedWeeks, &CCalendarConfig::GetPassedWeeks,
     "1-5-7-9-1-1-0-1-1-(0-0-0-0-0-1-1)-1"},
    {&CCalendarConfig::SetStartDayOfWeek, &CCalendarConfig::GetStartDayOfWeek,
     "1-5-7-1-9-1-0-1-1-(0-0-0-0-0-1-1)-1"},
    {&CCalendarConfig::SetStartWeekNumber, &CCalendarConfig::GetStartWeekNumber,
     "1-5-7-1-1-9-0-1-1-(0-0-0-0-0-1-1)-1"},
    {&CCalendarConfig::SetWeekNumberCalcType, &CCalendarConfig::GetWeekNumberCalcType,
     "1-5-7-1-1-1-0-9-1-(0-0-0-0-0-1-1)-1"}};

TEST(CalendarConfig, IntsAreStoredAsGivenAndHaveTheirPlaceInTheKey) {
  CCalendarConfig extreme;
  for (const IntOption& option : kIntOptions) {
    CCalendarConfig config;
    (config.*option.set)(9);
    EXPECT_EQ((config.*option.get)(), 9);
    EXPECT_EQ(config.GetConfigKey(), option.keyOf9);
    (extreme.*option.set)(kMin);
    EXPECT_EQ((extreme.*option.get)(), kMin);
  }
  EXPECT_EQ(extreme.GetConfigKey(),
            "-2147483648--2147483648-7--2147483648--2147483648--2147483648-0--2147483648-1-"
            "(0-0-0-0-0-1-1)-1");
}

struct FlagOption {
  void (CCalendarConfig::*set)(bool);
  bool (CCalendarConfig::*get)() const;
  const char* keyOfTrue;
  const char* keyOfFalse;
};

constexpr FlagOption kFlagOptions[] = {
    {&CCalendarConfig::SetHideBreakDay, &CCalendarConfig::IsHideBreakDay,
     "1-5-7-1-1-1-1-1-1-(0-0-0-0-0-1-1)-1", kDefaultKey},
    {&CCalendarConfig::SetShowMonthInterval, &CCalendarConfig::IsShowMonthInterval, kDefaultKey,
     "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-1"},
    {&CCalendarConfig::SetShowBreakDayOfWeek, &CCalendarConfig::IsShowBreakDayOfWeek, kDefaultKey,
     "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-0"}};

TEST(CalendarConfig, FlagsAreStoredAndHaveTheirPlaceInTheKey) {
  for (const FlagOption& option : kFlagOptions) {
    CCalendarConfig config;
    for (const bool flag : {true, false, true}) {
      (config.*option.set)(flag);
      EXPECT_EQ((config.*option.get)(), flag);
      EXPECT_EQ(config.GetConfigKey(), flag ? option.keyOfTrue : option.keyOfFalse);
    }
  }
}

// Monday to Saturday, then Sunday.
TEST(CalendarConfig, KeyHoldsTheBreakDaysFromMonday) {
  CCalendarConfig config;
  config.SetBreakDayOfWeek(0, false);
  config.SetBreakDayOfWeek(6, false);
  for (int day = 0; day < 7; ++day) {
    config.SetBreakDayOfWeek(day, true);
    EXPECT_TRUE(config.IsBreakDayOfWeek(day));
    std::string key = "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-0-0)-1";
    key[static_cast<std::size_t>(19 + (day + 6) % 7 * 2)] = '1';
    EXPECT_EQ(config.GetConfigKey(), key);
    config.SetBreakDayOfWeek(day, false);
    EXPECT_FALSE(config.IsBreakDayOfWeek(day));
  }
}

}  // namespace
