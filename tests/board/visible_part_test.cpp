// SPDX-License-Identifier: MIT
//
// Which columns and rows of a built board are visible.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "board/visible_part.h"
#include "support/board.h"
#include "support/clock.h"

using almara::PageDirection;
using almara::test::Board;
using almara::test::SetToday;

namespace {

using Indices = std::vector<int>;

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

Indices Range(int begin, int end) {
  Indices indices;
  for (int i = begin; i < end; ++i) {
    indices.push_back(i);
  }
  return indices;
}

class VisiblePartOfBoard : public testing::Test {
 protected:
  VisiblePartOfBoard() { SetToday(2024, 3, 13); }

  void Build(int year, int month, int day, PageDirection direction = PageDirection::kNone) {
    m_board.BuildQuietly(year, month, day, direction);
  }

  Board m_board;
};

TEST_F(VisiblePartOfBoard, SevenColumnsAreAllVisibleWhereverTodayStands) {
  for (int day = 11; day <= 17; ++day) {
    SetToday(2024, 3, day);
    Build(2024, 3, 13);
    EXPECT_EQ(m_board.VisibleColumns(), Range(0, 7)) << day;
  }
}

struct AroundToday {
  int columns, today, begin;
};

constexpr AroundToday kAroundToday[] = {
    {3, 5, 4},  // 5 - 1; 4 + 3 fits
    {3, 6, 4},  // 5 + 3 does not fit
    {3, 0, 0}, {3, 1, 0}, {3, 2, 1}, {1, 0, 0}, {1, 6, 6}, {2, 1, 0}, {2, 6, 5}, {4, 2, 0},
    {4, 3, 1}, {4, 6, 3}, {6, 3, 0}, {6, 4, 1}, {6, 6, 1}, {7, 0, 0}, {7, 6, 0},
};

TEST_F(VisiblePartOfBoard, NarrowRollingWeeksStandAroundToday) {
  for (const AroundToday& c : kAroundToday) {
    SCOPED_TRACE(testing::Message() << c.columns << " columns, today in " << c.today);
    m_board.SetMaxColumns(c.columns);
    SetToday(2024, 3, 11 + c.today);
    Build(2024, 3, 13);
    ASSERT_EQ(m_board.Built().content.todayColumn, c.today);
    EXPECT_EQ(m_board.VisibleColumns(), Range(c.begin, c.begin + c.columns));
    EXPECT_EQ(m_board.VisibleRows(), Range(0, 5));
  }
}

TEST_F(VisiblePartOfBoard, NothingElseIsNarrowedByMaxColumns) {
  m_board.SetMaxColumns(3);
  for (const int mode : {2, 3, 0, 5}) {
    m_board.SetDispMonth(mode);
    Build(2024, 3, 13);
    EXPECT_EQ(m_board.VisibleColumns(), Range(0, 7)) << mode;
  }
  m_board.SetDispMonth(eDispMonthRollingWeeks);
  SetToday(2024, 5, 1);  // not on the board
  Build(2024, 3, 13);
  EXPECT_EQ(m_board.VisibleColumns(), Range(0, 7));
}

TEST_F(VisiblePartOfBoard, StripShowsItsColumnsFromTheFirst) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  m_board.SetMaxColumns(3);
  Build(2024, 3, 13);
  EXPECT_EQ(m_board.VisibleColumns(), Range(0, 3));
  EXPECT_EQ(m_board.VisibleRows(), Range(0, 1));
}

// The days of a start outside the week are laid out from Monday, but the columns to hide are
// counted from the value as it is set.
TEST_F(VisiblePartOfBoard, HiddenBreakDaysFollowTheStartDayOfWeek) {
  m_board.SetShowBreakDayOfWeek(false);
  struct {
    int start;
    Indices visible;
  } const cases[] = {
      {0, {1, 2, 3, 4, 5}},        //
      {1, {0, 1, 2, 3, 4}},        // Monday to Friday
      {2, {0, 1, 2, 3, 6}},        //
      {6, {2, 3, 4, 5, 6}},        //
      {9, {0, 1, 2, 3, 6}},        // as Tuesday: Friday and Saturday are hidden
      {7, {1, 2, 3, 4, 5}},        // as Sunday
      {-1, {0, 2, 3, 4, 5, 6}},    // below 0 there are no days: only 0, Sunday, is hidden
      {-10, {0, 1, 2, 4, 5, 6}},   // -7 counts as 0 too
      {kMax, {0, 1, 2, 4, 5, 6}},  // wraps after column 0
      {kMin, {0, 1, 3, 4, 5, 6}},  //
  };
  for (const auto& c : cases) {
    m_board.SetStartDayOfWeek(c.start);
    Build(2024, 3, 13);
    EXPECT_EQ(m_board.VisibleColumns(), c.visible) << c.start;
  }
}

TEST_F(VisiblePartOfBoard, HiddenBreakDaysNarrowTheRangeFurther) {
  m_board.SetShowBreakDayOfWeek(false);
  m_board.SetMaxColumns(3);
  SetToday(2024, 3, 16);  // a Saturday
  Build(2024, 3, 13);
  EXPECT_EQ(m_board.VisibleColumns(), Indices{4});
  m_board.SetMaxColumns(1);
  Build(2024, 3, 13);
  EXPECT_EQ(m_board.VisibleColumns(), Indices{});
  EXPECT_EQ(m_board.VisibleRows(), Indices{});
}

TEST_F(VisiblePartOfBoard, HideBreakDayFlagHidesNothing) {
  m_board.SetHideBreakDay(true);
  Build(2024, 3, 13);
  EXPECT_EQ(m_board.VisibleColumns(), Range(0, 7));
  EXPECT_EQ(m_board.VisibleRows(), Range(0, 5));
}

// Columns of a strip are not its weekdays, but they are hidden as if they were.
TEST_F(VisiblePartOfBoard, StripHidesTheColumnsOfAWeekBoard) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  m_board.SetShowBreakDayOfWeek(false);
  Build(2024, 3, 13);  // Sunday 10 March in column 0
  EXPECT_EQ(m_board.VisibleColumns(), Range(0, 5));
  EXPECT_EQ(m_board.Cell(0, 0).GetDate().day, 10);
}

TEST_F(VisiblePartOfBoard, AllDaysAreBreakDays) {
  m_board.SetShowBreakDayOfWeek(false);
  for (int day = 0; day <= 6; ++day) {
    m_board.SetBreakDayOfWeek(day, true);
  }
  Build(2024, 3, 13);
  EXPECT_EQ(m_board.VisibleColumns(), Indices{});
  EXPECT_EQ(m_board.VisibleRows(), Indices{});
  EXPECT_EQ(m_board.Rows().size(), 5U);
  EXPECT_EQ(m_board.GetWeekNumberCount(), 0);
}

TEST_F(VisiblePartOfBoard, FiftyRowsAreVisibleAtMost) {
  for (const int rows : {50, 51, 60}) {
    m_board.SetMaxRows(rows);
    Build(2024, 3, 13);
    EXPECT_EQ(m_board.Rows().size(), static_cast<std::size_t>(rows));
    EXPECT_EQ(m_board.VisibleRows(), Range(0, 50));
  }
  // They are the first of the board, before any is hidden.
  m_board.SetShowBreakDayOfWeek(false);
  Build(2024, 3, 13);
  EXPECT_LT(m_board.VisibleRows().size(), 50U);
  EXPECT_LT(m_board.VisibleRows().back(), 50);
}

// The last row is a band from its title on.
TEST_F(VisiblePartOfBoard, TitleKeepsARow) {
  for (const bool show : {true, false}) {
    m_board.SetShowBreakDayOfWeek(show);
    Build(2024, 3, 13);
    EXPECT_EQ(m_board.VisibleRows(), Range(0, 5)) << show;
  }
}

// June 2024 begins on a Saturday: its title stands in a hidden column.
TEST_F(VisiblePartOfBoard, RowOfFillersGoesWithoutBreakDays) {
  m_board.SetMaxRows(6);
  Build(2024, 5, 22);  // rows from 13 May, the band from 1 June's column on
  ASSERT_EQ(m_board.Cell(2, 5).GetType(), eCalendarItemMonthTitle);
  EXPECT_EQ(m_board.VisibleRows(), Range(0, 6));
  m_board.SetShowBreakDayOfWeek(false);
  Build(2024, 5, 22);
  EXPECT_EQ(m_board.VisibleRows(), (Indices{0, 1, 2, 4, 5}));
}

// September 2024 begins on a Sunday, which is hidden.
TEST_F(VisiblePartOfBoard, TitleInAHiddenFirstColumnKeepsNoRow) {
  m_board.SetStartDayOfWeek(eCalendarWeekSunday);
  m_board.SetShowBreakDayOfWeek(false);
  Build(2024, 8, 21);
  ASSERT_EQ(m_board.Cell(3, 0).GetType(), eCalendarItemMonthTitle);
  EXPECT_EQ(m_board.VisibleRows(), (Indices{0, 1, 2, 4}));
}

// A break day may stand in a visible column of a strip; today on one keeps the row no more.
TEST_F(VisiblePartOfBoard, RowOfBreakDaysGoesWithoutBreakDays) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  m_board.SetShowBreakDayOfWeek(false);
  m_board.SetMaxColumns(2);
  SetToday(2024, 3, 16);
  Build(2024, 3, 16);  // Saturday, today, and Sunday in the columns of Monday and Tuesday
  EXPECT_EQ(m_board.VisibleColumns(), Range(0, 2));
  EXPECT_EQ(m_board.VisibleRows(), Indices{});
  Build(2024, 3, 15);  // Friday and Saturday
  EXPECT_EQ(m_board.VisibleRows(), Range(0, 1));
  m_board.SetShowBreakDayOfWeek(true);
  Build(2024, 3, 16);
  EXPECT_EQ(m_board.VisibleRows(), Range(0, 1));
}

TEST_F(VisiblePartOfBoard, EachKindKeepsOrLosesARow) {
  m_board.SetShowBreakDayOfWeek(false);
  const bool keeps[] = {false, true, false, true, true, false, false, true};
  for (ECalendarItem kind = eCalendarItemEmpty; kind <= eCalendarItemMonthTitle; ++kind) {
    almara::BoardContent content;
    content.rows.resize(1);
    for (CCalendarItem& item : content.rows[0].items) {
      item.SetType(eCalendarItemBlank);
    }
    content.rows[0].items[4].SetType(kind);
    content.rows[0].items[5].SetType(eCalendarItemDay);  // in a hidden column
    EXPECT_EQ(almara::ChooseVisiblePart(m_board, content).rowCount, keeps[kind] ? 1 : 0) << kind;
  }
}

TEST_F(VisiblePartOfBoard, RejectedDateIsLaidOutAgainFromTheRowsBefore) {
  Build(2024, 3, 13);
  m_board.SetShowBreakDayOfWeek(false);
  Build(1899, 12, 31);
  EXPECT_EQ(m_board.VisibleColumns(), Range(0, 5));
  EXPECT_EQ(m_board.Rows().size(), 5U);
  m_board.SetMaxColumns(3);
  Build(2024, 2, 32);
  EXPECT_EQ(m_board.VisibleColumns(), (Indices{1, 2, 3}));
  EXPECT_EQ(m_board.Built().spans[0].firstWeekCells, 3);
}

}  // namespace
