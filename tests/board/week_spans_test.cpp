// SPDX-License-Identifier: MIT
//
// The spans of the week-number column, row by row. Each row of a case is given by its week numbers;
// U is a cell without one.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <tuple>
#include <type_traits>
#include <vector>

#include "board/week_spans.h"
#include "support/board.h"
#include "support/clock.h"

using almara::test::Board;

bool operator==(const tagCalendarWeekSpan& a, const tagCalendarWeekSpan& b) {
  const auto tie = [](const tagCalendarWeekSpan& s) {
    return std::tie(s.weekNumber, s.firstWeekCells, s.secondWeekNumber, s.secondWeekCells,
                    s.cellsWithoutWeek, s.rows);
  };
  return tie(a) == tie(b);
}

std::ostream& operator<<(std::ostream& out, const tagCalendarWeekSpan& s) {
  return out << '{' << s.weekNumber << ", " << s.firstWeekCells << ", " << s.secondWeekNumber
             << ", " << s.secondWeekCells << ", " << s.cellsWithoutWeek << ", " << s.rows << '}';
}

namespace {

constexpr int U = -1;

using Week = std::array<int, 7>;
using Spans = std::vector<tagCalendarWeekSpan>;

constexpr Week AllOf(int week) { return {week, week, week, week, week, week, week}; }

static_assert(sizeof(tagCalendarWeekSpan) == 24 && std::is_standard_layout_v<tagCalendarWeekSpan>);
static_assert(offsetof(tagCalendarWeekSpan, weekNumber) == 0 &&
              offsetof(tagCalendarWeekSpan, firstWeekCells) == 4 &&
              offsetof(tagCalendarWeekSpan, secondWeekNumber) == 8 &&
              offsetof(tagCalendarWeekSpan, secondWeekCells) == 12 &&
              offsetof(tagCalendarWeekSpan, cellsWithoutWeek) == 16 &&
              offsetof(tagCalendarWeekSpan, rows) == 20);

class WeekSpans : public testing::Test {
 protected:
  // The spans of rows of which the given columns are visible, all seven if none is named.
  Spans Of(const std::vector<Week>& weeks,
           const std::vector<int>& columns = {0, 1, 2, 3, 4, 5, 6}) {
    std::vector<tagCalendarRow> rows(weeks.size());
    almara::VisiblePart visible;
    for (std::size_t row = 0; row < weeks.size(); ++row) {
      for (std::size_t column = 0; column < 7; ++column) {
        rows[row].items[column].SetWeekNumber(weeks[row][column]);
      }
      visible.rows[row] = static_cast<int>(row);
    }
    visible.rowCount = static_cast<int>(weeks.size());
    visible.columnCount = static_cast<int>(columns.size());
    std::copy(columns.begin(), columns.end(), visible.columns.begin());
    return almara::JoinWeeks(m_options, rows, visible);
  }

  void SundayFirst() { m_options.SetStartDayOfWeek(eCalendarWeekSunday); }
  void SaturdayFirst() { m_options.SetStartDayOfWeek(eCalendarWeekSaturday); }

  CCalendarConfig m_options;
};

TEST_F(WeekSpans, NoVisibleRowNoSpan) {
  Of({AllOf(9)});
  EXPECT_EQ(Of({}), Spans{});
}

TEST_F(WeekSpans, RowsOfOneWeekAreASpanEachWhateverTheStartDay) {
  for (int start = 0; start <= 6; ++start) {
    m_options.SetStartDayOfWeek(start);
    EXPECT_EQ(
        Of({AllOf(9), AllOf(10), AllOf(11), AllOf(12)}),
        (Spans{{9, 7, 0, 0, 0, 1}, {10, 7, 0, 0, 0, 1}, {11, 7, 0, 0, 0, 1}, {12, 7, 0, 0, 0, 1}}))
        << start;
  }
}

TEST_F(WeekSpans, FirstRowThatEndsWithAWeekStandsAlone) {
  for (const int start : {1, 0, 6}) {
    m_options.SetStartDayOfWeek(start);
    for (const int week : {1, 9}) {
      EXPECT_EQ(Of({{U, U, U, U, week, week, week}, AllOf(week + 1)}),
                (Spans{{week, 3, 0, 0, 4, 1}, {week + 1, 7, 0, 0, 0, 1}}));
    }
  }
}

TEST_F(WeekSpans, LaterRowThatEndsWithAWeekStandsAloneFromMondayOnly) {
  const std::vector<Week> weeks = {AllOf(8), {U, U, U, U, 9, 9, 9}, AllOf(10)};
  EXPECT_EQ(Of(weeks), (Spans{{8, 7, 0, 0, 0, 1}, {9, 3, 0, 0, 4, 1}, {10, 7, 0, 0, 0, 1}}));
  // Otherwise it goes on in the next row, where week 10 becomes the second one.
  for (const int start : {0, 6, 8}) {
    m_options.SetStartDayOfWeek(start);
    EXPECT_EQ(Of(weeks), (Spans{{8, 7, 0, 0, 0, 1}, {9, 3, 10, 7, 4, 2}})) << start;
  }
}

TEST_F(WeekSpans, WeekCutByABandIsPutTogether) {
  const std::vector<Week> weeks = {
      AllOf(8), {9, 9, 9, 9, U, U, U}, {U, U, U, U, 9, 9, 9}, AllOf(10)};
  const Spans expected = {{8, 7, 0, 0, 0, 1}, {9, 7, 0, 0, 7, 2}, {10, 7, 0, 0, 0, 1}};
  EXPECT_EQ(Of(weeks), expected);
  SaturdayFirst();
  EXPECT_EQ(Of(weeks), expected);
}

TEST_F(WeekSpans, BandRowIsPutToTheRowBelow) {
  EXPECT_EQ(Of({AllOf(8), AllOf(U), AllOf(9)}), (Spans{{8, 7, 0, 0, 0, 1}, {9, 7, 0, 0, 7, 2}}));
  EXPECT_EQ(Of({AllOf(U), AllOf(9)}), (Spans{{9, 7, 0, 0, 7, 2}}));
}

TEST_F(WeekSpans, BandRowAtTheEndIsPutToTheSpanAbove) {
  EXPECT_EQ(Of({AllOf(8), AllOf(9), AllOf(U)}), (Spans{{8, 7, 0, 0, 0, 1}, {9, 7, 0, 0, 0, 2}}));
  EXPECT_EQ(Of({{9, 9, 9, 9, U, U, U}, {U, U, U, U, 9, 9, 9}, AllOf(U)}),
            (Spans{{9, 7, 0, 0, 7, 3}}));
}

TEST_F(WeekSpans, OnlyRowWithoutWeeksIsASpanOfItsOwn) {
  EXPECT_EQ(Of({AllOf(U)}), (Spans{{0, 0, 0, 0, 7, 1}}));
}

TEST_F(WeekSpans, TwoRowsWithoutWeeksAreOneSpan) {
  EXPECT_EQ(Of({AllOf(U), AllOf(U)}), (Spans{{0, 0, 0, 0, 14, 2}}));
  EXPECT_EQ(Of({AllOf(U), AllOf(U), AllOf(9)}), (Spans{{0, 0, 0, 0, 14, 2}, {9, 7, 0, 0, 0, 1}}));
  EXPECT_EQ(Of({AllOf(8), AllOf(U), AllOf(U)}), (Spans{{8, 7, 0, 0, 0, 1}, {0, 0, 0, 0, 14, 2}}));
}

TEST_F(WeekSpans, LastRowIsAlwaysClosed) {
  EXPECT_EQ(Of({AllOf(8), {9, 9, 9, U, U, U, U}}), (Spans{{8, 7, 0, 0, 0, 1}, {9, 3, 0, 0, 4, 1}}));
  EXPECT_EQ(Of({{9, 9, 9, U, U, U, U}, {U, U, U, U, U, U, U}}), (Spans{{9, 3, 0, 0, 11, 2}}));
  SundayFirst();
  EXPECT_EQ(Of({AllOf(8), {U, 9, 9, 9, 9, 9, 9}}), (Spans{{8, 7, 0, 0, 0, 1}, {9, 6, 0, 0, 1, 1}}));
}

TEST_F(WeekSpans, FirstRowThatEndsWithoutAWeekGoesOn) {
  EXPECT_EQ(Of({{9, 9, 9, U, U, U, U}, {U, U, U, 9, 9, 9, 9}, AllOf(10)}),
            (Spans{{9, 7, 0, 0, 7, 2}, {10, 7, 0, 0, 0, 1}}));
}

TEST_F(WeekSpans, SpanHoldsTwoRowsAtMost) {
  EXPECT_EQ(Of({{9, 9, U, U, U, U, U}, AllOf(U), {U, U, 9, 9, 9, 9, 9}}),
            (Spans{{9, 2, 0, 0, 12, 2}, {9, 5, 0, 0, 2, 1}}));
}

TEST_F(WeekSpans, RowOfTwoWeeksHasBoth) {
  SaturdayFirst();
  EXPECT_EQ(Of({{9, 9, 10, 10, 10, 10, 10}}), (Spans{{9, 2, 10, 5, 0, 1}}));
  EXPECT_EQ(Of({{9, 9, 10, 10, 10, 10, 10}, {10, 10, 11, 11, 11, 11, 11}}),
            (Spans{{9, 2, 10, 5, 0, 1}, {10, 2, 11, 5, 0, 1}}));
}

TEST_F(WeekSpans, ThirdWeekOfARowCountsNowhere) {
  EXPECT_EQ(Of({{8, 9, 9, 10, 10, 10, 9}}), (Spans{{8, 1, 9, 3, 0, 1}}));
}

TEST_F(WeekSpans, LeadingSundayGivesWayToTheWeekOfTheRow) {
  SundayFirst();
  EXPECT_EQ(Of({{9, 10, 10, 10, 10, 10, 10}}), (Spans{{10, 1, 0, 6, 0, 1}}));
  EXPECT_EQ(Of({{9, 10, 10, U, U, U, U}, {U, U, U, 10, 10, 10, 10}}), (Spans{{10, 1, 0, 6, 7, 2}}));
  EXPECT_EQ(Of({{9, 9, 10, 10, 10, 10, 10}}), (Spans{{9, 2, 10, 5, 0, 1}}));  // two do not
  EXPECT_EQ(Of({{9, U, U, U, U, U, U}}), (Spans{{9, 1, 0, 0, 6, 1}}));  // nor one without a second
}

TEST_F(WeekSpans, LeadingSundayStaysUnderAnyOtherRuleOrStartDay) {
  struct {
    int rule, start;
  } const cases[] = {{0, 0}, {2, 0}, {-1, 0}, {1, 1}, {1, 6}, {1, 7}};  // 7 is no Sunday here
  for (const auto& c : cases) {
    m_options.SetWeekNumberCalcType(c.rule);
    m_options.SetStartDayOfWeek(c.start);
    EXPECT_EQ(Of({{9, 10, 10, 10, 10, 10, 10}}), (Spans{{9, 1, 10, 6, 0, 1}}))
        << c.rule << ' ' << c.start;
  }
}

TEST_F(WeekSpans, FirstWeekOfANewYearWinsInOneRow) {
  SaturdayFirst();
  EXPECT_EQ(Of({{52, 52, 1, 1, 1, 1, 1}}), (Spans{{1, 2, 1, 5, 0, 1}}));
  SundayFirst();
  EXPECT_EQ(Of({{52, 1, 1, 1, 1, 1, 1}}), (Spans{{1, 1, 0, 6, 0, 1}}));
  m_options.SetWeekNumberCalcType(eWeekNumberCalcFromJan1);
  EXPECT_EQ(Of({{53, 1, 1, 1, 1, 1, 1}}), (Spans{{1, 1, 1, 6, 0, 1}}));
}

TEST_F(WeekSpans, NewYearAfterABandDividesTheSpan) {
  const std::vector<Week> weeks = {{53, 53, 53, U, U, U, U}, {U, U, U, 1, 1, 1, 1}};
  EXPECT_EQ(Of(weeks), (Spans{{53, 3, 0, 4, 7, 1}, {1, 3, 0, 4, 7, 1}}));
  SundayFirst();
  EXPECT_EQ(Of(weeks), (Spans{{53, 3, 0, 4, 7, 1}, {1, 3, 0, 4, 7, 1}}));
}

// As many cells of a week as there are columns make no row of one week where a second week follows.
TEST_F(WeekSpans, NewYearAfterAFullWeekDividesTheSpanToo) {
  EXPECT_EQ(Of({{52, 52, 52, 52, U, U, U}, {52, 52, 52, 1, 1, 1, 1}}),
            (Spans{{52, 7, 0, 4, 3, 1}, {1, 7, 0, 4, 3, 1}}));
}

// The first of the two is written as it was counted, without the Sunday's giving way.
TEST_F(WeekSpans, DividedSpanOfASundayIsNotAdjusted) {
  SundayFirst();
  EXPECT_EQ(Of({{52, U, U, U, U, U, U}, {U, 1, 1, 1, 1, 1, 1}}),
            (Spans{{52, 1, 0, 6, 7, 1}, {1, 1, 0, 6, 7, 1}}));
}

TEST_F(WeekSpans, TwoRowsOfTwoWeeksOfOneYearStayASpan) {
  EXPECT_EQ(Of({{9, 9, 9, U, U, U, U}, {U, U, U, 10, 10, 10, 10}}), (Spans{{9, 3, 10, 4, 7, 2}}));
}

TEST_F(WeekSpans, RowOfTwoWeeksThatEndsWithoutAWeekGoesOn) {
  SaturdayFirst();
  EXPECT_EQ(Of({{9, 9, 10, 10, U, U, U}, {U, U, U, U, 10, 10, 10}}), (Spans{{9, 2, 10, 5, 7, 2}}));
  EXPECT_EQ(Of({{9, 9, 10, 10, 10, 10, 0}, AllOf(10)}), (Spans{{9, 2, 10, 11, 1, 2}}));
  EXPECT_EQ(Of({{9, 9, 10, 10, 10, 10, 1}, AllOf(10)}),
            (Spans{{9, 2, 10, 4, 0, 1}, {10, 7, 0, 0, 0, 1}}));
}

TEST_F(WeekSpans, Week53AsTheSecondClosesTheRow) {
  const std::vector<Week> weeks = {{52, 52, 53, 53, U, U, U}, {U, U, U, U, 1, 1, 1}};
  const Spans expected = {{52, 2, 53, 2, 3, 1}, {1, 3, 0, 0, 4, 1}};
  EXPECT_EQ(Of(weeks), expected);  // from Monday
  SaturdayFirst();
  EXPECT_EQ(Of(weeks), expected);
  // Any other second week does not.
  EXPECT_EQ(Of({{51, 51, 52, 52, U, U, U}, {U, U, U, U, 52, 52, 52}}),
            (Spans{{51, 2, 52, 5, 7, 2}}));
}

TEST_F(WeekSpans, Week53AsTheFirstDoesNotCloseTheRow) {
  EXPECT_EQ(Of({{53, 53, U, U, U, U, U}, {U, U, 53, 53, 53, 53, 53}}),
            (Spans{{53, 7, 0, 0, 7, 2}}));
}

TEST_F(WeekSpans, NumbersBelow1CountAsNone) {
  EXPECT_EQ(Of({{0, -5, 9, 9, 9, 9, 9}}), (Spans{{9, 5, 0, 0, 2, 1}}));
  EXPECT_EQ(Of({{1, 1, 1, 1, 1, 1, 1}}), (Spans{{1, 7, 0, 0, 0, 1}}));
}

TEST_F(WeekSpans, OnlyVisibleCellsAreCounted) {
  EXPECT_EQ(Of({{9, 9, 9, 9, 9, 10, 10}}, {0, 1, 2, 3, 4}), (Spans{{9, 5, 0, 0, 0, 1}}));
  EXPECT_EQ(Of({{8, 9, 9, 9, 9, 9, U}}, {1, 2, 3, 4, 5}), (Spans{{9, 5, 0, 0, 0, 1}}));
}

// With the columns 2 to 6 visible, the cell asked for the end of the row is that of column 4.
TEST_F(WeekSpans, EndOfTheRowIsTheBoardColumnOfTheVisibleCount) {
  const std::vector<int> columns = {2, 3, 4, 5, 6};
  // Column 4 has no week although the last visible cell has one: the row goes on.
  EXPECT_EQ(Of({AllOf(8), {U, U, U, U, U, 9, 9}, AllOf(10)}, columns),
            (Spans{{8, 5, 0, 0, 0, 1}, {9, 2, 10, 5, 3, 2}}));
  // Column 4 has one although the last visible cell has none: the row stands alone.
  EXPECT_EQ(Of({AllOf(8), {9, 9, 9, 9, 9, U, U}, AllOf(10)}, columns),
            (Spans{{8, 5, 0, 0, 0, 1}, {9, 3, 0, 0, 2, 1}, {10, 5, 0, 0, 0, 1}}));
  // One visible column asks column 0.
  EXPECT_EQ(Of({AllOf(8), {9, U, U, U, U, U, U}, {U, U, U, U, U, U, 9}}, {6}),
            (Spans{{8, 1, 0, 0, 0, 1}, {9, 1, 0, 0, 1, 2}}));
}

// Built boards.
class SpansOfBoards : public testing::Test {
 protected:
  SpansOfBoards() { almara::test::SetToday(2030, 7, 17); }

  Spans Build(int year, int month, int day) {
    m_board.BuildQuietly(year, month, day);
    return m_board.Built().spans;
  }

  Board m_board;
};

// The row of fillers under 1 June, a Saturday, is hidden.
TEST_F(SpansOfBoards, HiddenRowsAreSkipped) {
  m_board.SetMaxRows(6);
  m_board.SetShowBreakDayOfWeek(false);
  EXPECT_EQ(Build(2024, 5, 22), (Spans{{20, 5, 0, 0, 0, 1},
                                       {21, 5, 0, 0, 0, 1},
                                       {22, 5, 0, 0, 0, 1},
                                       {23, 5, 0, 0, 0, 1},
                                       {24, 5, 0, 0, 0, 1}}));
}

}  // namespace
