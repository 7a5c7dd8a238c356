// SPDX-License-Identifier: MIT
//
// Today's board in the zone and at the time of the environment.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <vector>

#include "support/capture_stdout.h"
#include "support/civil.h"

using almara::test::CaptureStdout;
using almara::test::Civil;
using almara::test::DayOfWeek;
using almara::test::NextDay;

namespace {

bool IsDay(const tagCalendarCell& cell) { return cell.type >= 3 && cell.type <= 6; }

std::vector<tagCalendarCell> Days() {
  std::vector<tagCalendarCell> days;
  for (std::int32_t row = 0; row < GetContentRows(); ++row) {
    for (std::int32_t column = 0; column < GetContentColumns(); ++column) {
      const tagCalendarCell cell = GetContentItem(row, column);
      if (IsDay(cell)) {
        days.push_back(cell);
      }
    }
  }
  return days;
}

class Zone : public testing::Test {
 protected:
  CaptureStdout m_output;
};

TEST_F(Zone, TodayIsTheLocalDate) {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  const CCalendarSolarDate today = GetToday();
  EXPECT_EQ(today.year, local->tm_year + 1900);
  EXPECT_EQ(today.month, local->tm_mon + 1);
  EXPECT_EQ(today.day, local->tm_mday);
  EXPECT_EQ(today.dayOfWeek, DayOfWeek({today.year, today.month, today.day}));
}

TEST_F(Zone, DaysFollowEachOtherInTheColumnsOfTheirWeekdays) {
  for (const std::int32_t mode : {1, 2, 3}) {
    SetDispMonth(mode);
    InitCalendarLogicDt(eLanguageEng);
    for (int page = 0; page < 3; ++page) {
      const std::vector<tagCalendarCell> days = Days();
      ASSERT_GE(days.size(), 21U);
      for (std::size_t i = 0; i < days.size(); ++i) {
        const Civil day{days[i].year, days[i].month, days[i].day};
        EXPECT_EQ(days[i].dayOfWeek, DayOfWeek(day)) << day;
        EXPECT_EQ(GetCalendarWeekByColumns(days[i].column), days[i].dayOfWeek) << day;
        if (i > 0) {
          EXPECT_EQ(day, NextDay({days[i - 1].year, days[i - 1].month, days[i - 1].day}));
        }
      }
      if (mode != 2) {
        GotoNextPage();
      }
    }
  }
}

TEST_F(Zone, TodayIsMarkedOnce) {
  InitCalendarLogicDt(eLanguageEng);
  EXPECT_TRUE(IsTodayInBoard());
  int marked = 0;
  const CCalendarSolarDate today = GetToday();
  for (const tagCalendarCell& cell : Days()) {
    if (cell.type == eCalendarItemToday || cell.type == eCalendarItemTodayBreakDay) {
      ++marked;
      EXPECT_EQ(cell.day, today.day);
      EXPECT_EQ(cell.dayOfWeek, today.dayOfWeek);
    }
  }
  EXPECT_EQ(marked, 1);
}

}  // namespace
