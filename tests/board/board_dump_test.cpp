// SPDX-License-Identifier: MIT
//
// What builds write to the standard output, byte for byte.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "support/board.h"
#include "support/capture_stdout.h"
#include "support/clock.h"

using almara::test::Board;
using almara::test::CaptureStdout;
using almara::test::SetToday;

namespace {

const std::string kBlank = "\n\n\n\n\n";

class BoardDump : public testing::Test {
 protected:
  BoardDump() { SetToday(2024, 3, 13); }

  Board m_board;
};

TEST_F(BoardDump, BoardWithoutRowsIsTwoBlocksOfLineBreaks) {
  CaptureStdout output;
  m_board._PaintCalendarLog();
  EXPECT_EQ(output.Take(), "\n\n\n\n\n\n\n\n\n\n");
}

TEST_F(BoardDump, EveryRowHasItsWeekNumberAndSevenCells) {
  m_board.SetMaxRows(3);
  CaptureStdout output;
  m_board._BuildCalendar(2024, 2, 26);
  EXPECT_EQ(output.Take(),
            kBlank +
                "weeknumber = 8\t(3)2024-02-19\t(3)2024-02-20\t(3)2024-02-21\t(3)2024-02-22"
                "\t(3)2024-02-23\t(5)2024-02-24\t(5)2024-02-25\n"
                "weeknumber = 9\t(3)2024-02-26\t(3)2024-02-27\t(3)2024-02-28\t(3)2024-02-29"
                "\t(7)0000-03-01\t(2)0000-00-00\t(2)0000-00-00\n"
                "weeknumber = 9\t(2)0000-00-00\t(2)0000-00-00\t(2)0000-00-00\t(2)0000-00-00"
                "\t(3)2024-03-01\t(5)2024-03-02\t(5)2024-03-03\n" +
                kBlank);
}

TEST_F(BoardDump, HiddenDaysTodayAndEmptyCells) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  m_board.SetMaxColumns(2);
  CaptureStdout output;
  m_board._BuildCalendar(0, 0, 0);
  EXPECT_EQ(output.Take(), kBlank +
                               "weeknumber = 11\t(4)2024-03-13\t(3)2024-03-14\t(1)0000-00-00"
                               "\t(1)0000-00-00\t(1)0000-00-00\t(1)0000-00-00\t(1)0000-00-00\n" +
                               kBlank);
  m_board.SetDispMonth(eDispMonthWholeMonth);
  m_board._BuildCalendar(2024, 3, 1);
  const std::string text = output.Take();
  EXPECT_EQ(text.substr(0, text.find('\n', 5)),
            kBlank +
                "weeknumber = 9\t(2)2024-02-26\t(2)2024-02-27\t(2)2024-02-28\t(2)2024-02-29"
                "\t(3)2024-03-01\t(5)2024-03-02\t(5)2024-03-03");
}

TEST_F(BoardDump, AllRowsAreWrittenVisibleOrNot) {
  m_board.SetMaxRows(60);
  m_board.SetMaxColumns(1);
  m_board.SetShowBreakDayOfWeek(false);
  CaptureStdout output;
  m_board._BuildCalendar(2024, 3, 13);
  std::size_t rows = 0;
  const std::string text = output.Take();
  for (std::size_t at = text.find("weeknumber"); at != std::string::npos;
       at = text.find("weeknumber", at + 1)) {
    ++rows;
  }
  EXPECT_EQ(rows, 60U);
}

TEST_F(BoardDump, RejectedDateWritesTheBoardAgain) {
  CaptureStdout output;
  m_board._BuildCalendar(2024, 3, 13);
  const std::string first = output.Take();
  m_board._BuildCalendar(2024, 3, 32);
  EXPECT_EQ(output.Take(), first);
  m_board._BuildCalendar(1899, 12, 31);
  EXPECT_EQ(output.Take(), first);
}

TEST_F(BoardDump, RejectedDateBeforeTheFirstBuildWritesAnEmptyBoard) {
  CaptureStdout output;
  m_board._BuildCalendar(2100, 1, 1);
  EXPECT_EQ(output.Take(), kBlank + kBlank);
}

TEST_F(BoardDump, KeepsItsPlaceAmongTheTextOfTheHost) {
  m_board.SetDispMonth(0);
  CaptureStdout output;
  std::fputs("before|", stdout);
  m_board._BuildCalendar(2024, 3, 13);
  std::fputs("|behind", stdout);
  EXPECT_EQ(output.Take(), "before|" + kBlank + kBlank + "|behind");
}

TEST_F(BoardDump, ContentAloneWritesNothing) {
  CaptureStdout output;
  m_board.BuildQuietly(2024, 3, 13);
  EXPECT_EQ(output.Take(), "");
}

}  // namespace
