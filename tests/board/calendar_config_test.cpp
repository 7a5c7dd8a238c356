// SPDX-License-Identifier: MIT
#include "board/calendar_config.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr char kDefaultKey[] = "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1";

TEST(CalendarConfig, Defaults) {
  const CCalendarConfig config;
  EXPECT_EQ(config.GetDispMonth(), 1);
  EXPECT_EQ(config.GetMaxRows(), 5);
  EXPECT_EQ(config.GetMaxColumns(), 7);
  EXPECT_EQ(config.GetPassedWeeks(), 1);
  EXPECT_EQ(config.GetStartDayOfWeek(), 1);
  EXPECT_EQ(config.GetStartWeekNumber(), 1);
  EXPECT_FALSE(config.IsHideBreakDay());
  EXPECT_TRUE(config.IsShowMonthInterval());
  for (int day = 0; day < 7; ++day) {
    EXPECT_EQ(config.IsBreakDayOfWeek(day), day == 0 || day == 6) << day;
  }
  EXPECT_TRUE(config.IsShowBreakDayOfWeek());
  EXPECT_EQ(config.GetWeekNumberCalcType(), 1);
  EXPECT_EQ(config.GetConfigKey(), kDefaultKey);
}

TEST(CalendarConfig, SettersOfIntsStoreWhateverTheyAreGiven) {
  CCalendarConfig config;
  for (const int value : {0, 1, 4, 5, -1, 60, kMin, kMax}) {
    config.SetDispMonth(value);
    EXPECT_EQ(config.GetDispMonth(), value);
    config.SetMaxRows(value);
    EXPECT_EQ(config.GetMaxRows(), value);
    config.SetPassedWeeks(value);
    EXPECT_EQ(config.GetPassedWeeks(), value);
    config.SetStartDayOfWeek(value);
    EXPECT_EQ(config.GetStartDayOfWeek(), value);
    config.SetStartWeekNumber(value);
    EXPECT_EQ(config.GetStartWeekNumber(), value);
    config.SetWeekNumberCalcType(value);
    EXPECT_EQ(config.GetWeekNumberCalcType(), value);
  }
}

TEST(CalendarConfig, FlagsAreStored) {
  CCalendarConfig config;
  for (const bool flag : {true, false, true}) {
    config.SetHideBreakDay(flag);
    EXPECT_EQ(config.IsHideBreakDay(), flag);
    config.SetShowMonthInterval(flag);
    EXPECT_EQ(config.IsShowMonthInterval(), flag);
    config.SetShowBreakDayOfWeek(flag);
    EXPECT_EQ(config.IsShowBreakDayOfWeek(), flag);
  }
}

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
}

TEST(CalendarConfig, BreakDaysAreSetAndTakenAwayOneByOne) {
  CCalendarConfig config;
  for (int day = 0; day < 7; ++day) {
    config.SetBreakDayOfWeek(day, true);
    EXPECT_TRUE(config.IsBreakDayOfWeek(day));
    config.SetBreakDayOfWeek(day, false);
    EXPECT_FALSE(config.IsBreakDayOfWeek(day));
  }
}

TEST(CalendarConfig, ADayOutsideTheWeekIsNoBreakDayAndCannotBecomeOne) {
  CCalendarConfig config;
  for (const int day : {7, -1, 8, kMin, kMax}) {
    config.SetBreakDayOfWeek(day, true);
    EXPECT_FALSE(config.IsBreakDayOfWeek(day)) << day;
    EXPECT_EQ(config.GetConfigKey(), kDefaultKey) << day;
  }
}

TEST(CalendarConfig, KeyHoldsEachValueInItsPlace) {
  struct {
    void (*set)(CCalendarConfig&);
    const char* key;
  } const cases[] = {
      {[](CCalendarConfig& c) { c.SetDispMonth(3); }, "3-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetMaxRows(6); }, "1-6-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetMaxColumns(4); }, "1-5-4-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetPassedWeeks(2); }, "1-5-7-2-1-1-0-1-1-(0-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetStartDayOfWeek(6); }, "1-5-7-1-6-1-0-1-1-(0-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetStartWeekNumber(10); },
       "1-5-7-1-1-10-0-1-1-(0-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetHideBreakDay(true); }, "1-5-7-1-1-1-1-1-1-(0-0-0-0-0-1-1)-1"},
      // The rule for week numbers stands between the two flags.
      {[](CCalendarConfig& c) { c.SetWeekNumberCalcType(2); },
       "1-5-7-1-1-1-0-2-1-(0-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetShowMonthInterval(false); },
       "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-1"},
      // Monday to Saturday, then Sunday.
      {[](CCalendarConfig& c) { c.SetBreakDayOfWeek(1, true); },
       "1-5-7-1-1-1-0-1-1-(1-0-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetBreakDayOfWeek(2, true); },
       "1-5-7-1-1-1-0-1-1-(0-1-0-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetBreakDayOfWeek(3, true); },
       "1-5-7-1-1-1-0-1-1-(0-0-1-0-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetBreakDayOfWeek(4, true); },
       "1-5-7-1-1-1-0-1-1-(0-0-0-1-0-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetBreakDayOfWeek(5, true); },
       "1-5-7-1-1-1-0-1-1-(0-0-0-0-1-1-1)-1"},
      {[](CCalendarConfig& c) { c.SetBreakDayOfWeek(6, false); },
       "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-0-1)-1"},
      {[](CCalendarConfig& c) { c.SetBreakDayOfWeek(0, false); },
       "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-0)-1"},
      {[](CCalendarConfig& c) { c.SetShowBreakDayOfWeek(false); },
       "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-0"},
  };
  for (const auto& c : cases) {
    CCalendarConfig config;
    c.set(config);
    EXPECT_EQ(config.GetConfigKey(), c.key);
  }
}

TEST(CalendarConfig, KeyHoldsTheLongestValuesInFull) {
  CCalendarConfig config;
  config.SetDispMonth(kMin);
  config.SetMaxRows(kMin);
  config.SetPassedWeeks(kMin);
  config.SetStartDayOfWeek(kMin);
  config.SetStartWeekNumber(kMin);
  config.SetWeekNumberCalcType(kMin);
  EXPECT_EQ(config.GetConfigKey(),
            "-2147483648--2147483648-7--2147483648--2147483648--2147483648-0--2147483648-1-"
            "(0-0-0-0-0-1-1)-1");
}

}  // namespace
