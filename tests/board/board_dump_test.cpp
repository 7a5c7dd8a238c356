// SPDX-License-Identifier: MIT
//
// What builds write to the standard output, byte for byte.
#include <gtest/gtest.h>

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

// No cell of the strip is visible: its column is that of a hidden break day.
TEST_F(BoardDump, AllRowsAreWrittenVisibleOrNotWithTodayAndEmptyCells) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  m_board.SetMaxColumns(1);
  m_board.SetShowBreakDayOfWeek(false);
  m_board.SetBreakDayOfWeek(1, true);
  CaptureStdout output;
  m_board._BuildCalendar(0, 0, 0);
  EXPECT_EQ(m_board.GetContentRows(), 0);
  EXPECT_EQ(output.Take(), kBlank +
                               "weeknumber = 11\t(4)2024-03-13\t(1)0000-00-00\t(1)0000-00-00"
                               "\t(1)0000-00-00\t(1)0000-00-00\t(1)0000-00-00\t(1)0000-00-00\n" +
                               kBlank);
}

// Its text is written in several pieces, between two rows each.
TEST_F(BoardDump, LongBoardIsWrittenRowForRow) {
  constexpr int kRows = 300;
  m_board.SetMaxRows(kRows);
  CaptureStdout output;
  m_board._BuildCalendar(2024, 3, 13);
  std::string expected = kBlank;
  for (const tagCalendarRow& row : m_board.Rows()) {
    expected += "weeknumber = " + std::to_string(row.weekNumber);
    for (const CCalendarItem& item : row.items) {
      expected += '\t' + item.GetDay();
    }
    expected += '\n';
  }
  EXPECT_EQ(output.Take(), expected + kBlank);
  EXPECT_EQ(m_board.Rows().size(), static_cast<std::size_t>(kRows));
}

TEST_F(BoardDump, RejectedDateWritesTheBoardAgainAndNoneIsTwoBlocksOfLineBreaks) {
  CaptureStdout output;
  m_board._BuildCalendar(2100, 1, 1);
  EXPECT_EQ(output.Take(), kBlank + kBlank);
  m_board._BuildCalendar(2024, 3, 13);
  const std::string first = output.Take();
  m_board._BuildCalendar(1899, 12, 31);
  EXPECT_EQ(output.Take(), first);
}

}  // namespace
