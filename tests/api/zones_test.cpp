// SPDX-License-Identifier: MIT
//
// Today's board in the zone and at the time of the environment.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "support/capture_stdout.h"
#include "support/civil.h"
#include "support/exported_board.h"

using almara::test::CaptureStdout;
using almara::test::DayOfWeek;
using almara::test::ReadExportedBoard;
using almara::test::ShownBoard;

namespace {

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
  for (const EDispMonth mode : {1, 2, 3}) {
    SetDispMonth(mode);
    InitCalendarLogicDt(eLanguageEng);
    for (int page = 0; page < 3; ++page) {
      const ShownBoard board = ReadExportedBoard();
      EXPECT_GE(std::count_if(board.cells.begin(), board.cells.end(), almara::test::IsDay), 21);
      EXPECT_STREQ(almara::test::FirstBroken(board), nullptr);
      EXPECT_STREQ(almara::test::BrokenHeadings(board, mode, eCalendarWeekMonday), nullptr);
      if (mode != eDispMonthRollingTail) {
        GotoNextPage();
      }
    }
  }
}

TEST_F(Zone, TodayIsMarkedOnce) {
  InitCalendarLogicDt(eLanguageEng);
  const ShownBoard board = ReadExportedBoard();
  EXPECT_TRUE(board.hasToday);
  const auto marked = std::find_if(board.cells.begin(), board.cells.end(), almara::test::IsToday);
  ASSERT_NE(marked, board.cells.end());
  EXPECT_EQ(marked->day, GetToday().day);
  EXPECT_EQ(marked->dayOfWeek, GetToday().dayOfWeek);
  EXPECT_TRUE(std::none_of(marked + 1, board.cells.end(), almara::test::IsToday));
}

}  // namespace
