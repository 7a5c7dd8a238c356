// SPDX-License-Identifier: MIT
//
// The content of boards. A row is written as its week number and its cells: "5" a day, "5b" a break
// day, "5*" today, "5*b" today on a break day, "(5)" a kept-back day, "[3]" the title of March, "."
// a filler and "-" an empty cell.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include "support/board.h"
#include "support/capture_stdout.h"
#include "support/clock.h"
#include "support/zone.h"

using almara::PageDirection;
using almara::test::Board;
using almara::test::ScopedZone;
using almara::test::SetToday;

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr EWeekNumberCalc kIso = eWeekNumberCalcIso8601;
constexpr EWeekNumberCalc kFromJan1 = eWeekNumberCalcFromJan1;
constexpr EWeekNumberCalc kFromStart = eWeekNumberCalcFromStartWeek;
constexpr PageDirection kDirections[] = {PageDirection::kNone, PageDirection::kBackward,
                                         PageDirection::kForward};

using Texts = std::vector<std::string>;

std::string Text(const CCalendarItem& item) {
  const CCalendarSolarDate& date = item.GetDate();
  const std::string day = std::to_string(date.day);
  switch (item.GetType()) {
    case eCalendarItemEmpty:
      return "-";
    case eCalendarItemBlank:
      return date.year != 0 ? "(" + day + ")" : ".";
    case eCalendarItemDay:
      return day;
    case eCalendarItemToday:
      return day + "*";
    case eCalendarItemBreakDay:
      return day + "b";
    case eCalendarItemTodayBreakDay:
      return day + "*b";
    case eCalendarItemMonthTitle:
      return "[" + std::to_string(date.month) + "]";
    default:
      return "?";
  }
}

std::string Text(const tagCalendarRow& row) {
  std::string text = std::to_string(row.weekNumber) + " |";
  for (const CCalendarItem& item : row.items) {
    text += " " + Text(item);
  }
  return text;
}

Texts Rows(const Board& board) {
  Texts texts;
  for (const tagCalendarRow& row : board.Rows()) {
    texts.push_back(Text(row));
  }
  return texts;
}

std::string Date(const CCalendarItem& item) {
  const CCalendarSolarDate& d = item.GetDate();
  return std::to_string(d.year) + "-" + std::to_string(d.month) + "-" + std::to_string(d.day);
}

class BoardContent : public testing::Test {
 protected:
  BoardContent() { SetToday(2030, 7, 17); }

  Texts Build(int year, int month, int day, PageDirection direction = PageDirection::kNone) {
    m_board.BuildQuietly(year, month, day, direction);
    return Rows(m_board);
  }

  Board m_board;
};

TEST_F(BoardContent, DefaultBoardAroundAWednesday) {
  SetToday(2024, 3, 13);
  EXPECT_EQ(Build(2024, 3, 13), (Texts{"10 | 4 5 6 7 8 9b 10b", "11 | 11 12 13* 14 15 16b 17b",
                                       "12 | 18 19 20 21 22 23b 24b", "13 | 25 26 27 28 29 30b 31b",
                                       "13 | [4] . . . . . ."}));
  EXPECT_EQ(Date(m_board.Built().content.first), "2024-3-4");
  EXPECT_EQ(Date(m_board.Built().content.last), "2024-3-31");
}

TEST_F(BoardContent, WithoutIntervalsTheDefaultBoardEndsSevenDaysLater) {
  m_board.SetShowMonthInterval(false);
  EXPECT_EQ(Build(2024, 3, 13)[4], "14 | 1 2 3 4 5 6b 7b");
  EXPECT_EQ(Date(m_board.Built().content.last), "2024-4-7");
}

TEST_F(BoardContent, BandKeepsTheColumnOfTheMonthThatBegins) {
  EXPECT_EQ(Build(2024, 2, 28),
            (Texts{"8 | 19 20 21 22 23 24b 25b", "9 | 26 27 28 29 [3] . .", "9 | . . . . 1 2b 3b",
                   "10 | 4 5 6 7 8 9b 10b", "11 | 11 12 13 14 15 16b 17b"}));
  const CCalendarItem& title = m_board.Cell(1, 4);
  EXPECT_EQ(title.GetDay(), "(7)0000-03-01");
  EXPECT_EQ(title.GetDate().dayOfWeek, 0);
  EXPECT_EQ(title.GetWeekNumber(), -1);
  const CCalendarItem& filler = m_board.Cell(1, 5);
  EXPECT_EQ(filler.GetDay(), "(2)0000-00-00");
  EXPECT_EQ(filler.GetWeekNumber(), -1);
}

TEST_F(BoardContent, PassedWeeksOpenTheBoard) {
  m_board.SetShowMonthInterval(false);
  struct {
    int passed;
    const char* first;
    const char* last;
  } const cases[] = {
      {0, "2024-3-11", "2024-4-14"},
      {4, "2024-2-12", "2024-3-17"},
      {5, "2024-2-5", "2024-3-10"}};  // the week of the focus lies after the last row
  for (const auto& c : cases) {
    m_board.SetPassedWeeks(c.passed);
    EXPECT_EQ(Build(2024, 3, 13).size(), 5U);
    EXPECT_EQ(Date(m_board.Built().content.first), c.first) << c.passed;
    EXPECT_EQ(Date(m_board.Built().content.last), c.last) << c.passed;
  }
}

// Nothing is listed before it, so that it leaves its weekday's column.
TEST_F(BoardContent, NegativePassedWeeksPutTheFocusDateFirst) {
  m_board.SetShowMonthInterval(false);
  m_board.SetPassedWeeks(-1);
  m_board.SetMaxRows(2);
  EXPECT_EQ(Build(2024, 3, 13),
            (Texts{"12 | 13 14 15 16b 17b 18 19", "13 | 20 21 22 23b 24b 25 26"}));
}

TEST_F(BoardContent, RowsOfRollingWeeks) {
  for (const int rows : {1, 60}) {
    m_board.SetMaxRows(rows);
    EXPECT_EQ(Build(2024, 3, 13).size(), static_cast<std::size_t>(rows));
    EXPECT_EQ(m_board.Cell(0, 0).GetDay(), "(3)2024-03-04");
  }
  for (const int rows : {0, -1, -2, kMin, kMin + 1}) {
    m_board.SetMaxRows(rows);
    for (const PageDirection direction : kDirections) {
      EXPECT_EQ(Build(2024, 3, 13, direction).size(), 0U) << rows;
    }
  }
}

TEST_F(BoardContent, StartDayOfWeekOutsideTheWeekLaysOutFromMonday) {
  for (const int start : {7, -1, 8, 100, kMin, kMax}) {
    m_board.SetStartDayOfWeek(start);
    Build(2024, 3, 13);
    EXPECT_EQ(m_board.Cell(1, 2).GetDay(), "(3)2024-03-13") << start;
  }
}

TEST_F(BoardContent, ColumnOfAWeekday) {
  struct {
    int start, day, column;
  } const cases[] = {{0, 0, 0},  {0, 6, 6},   {1, 1, 0},     {1, 0, 6},    {6, 6, 0},
                     {6, 5, 6},  {-1, 1, 0},  {7, 0, 6},     {kMin, 1, 0}, {kMax, 0, 6},
                     {1, 7, -1}, {1, -1, -1}, {1, kMin, -1}, {1, kMax, -1}};
  for (const auto& c : cases) {
    EXPECT_EQ(CCalendarLogicBuild::_GetColumnIndexByDayOfWeek(c.start, c.day), c.column)
        << c.start << ' ' << c.day;
  }
}

TEST_F(BoardContent, PagedBackwardTheFocusWeekIsTheLastRow) {
  EXPECT_EQ(
      Build(2024, 3, 3, PageDirection::kBackward),
      (Texts{"6 | 5 6 7 8 9 10b 11b", "7 | 12 13 14 15 16 17b 18b", "8 | 19 20 21 22 23 24b 25b",
             "9 | 26 27 28 29 [3] . .", "9 | . . . . 1 2b 3b"}));
  EXPECT_EQ(Build(2024, 2, 28, PageDirection::kBackward),
            (Texts{"5 | . . . 1 2 3b 4b", "6 | 5 6 7 8 9 10b 11b", "7 | 12 13 14 15 16 17b 18b",
                   "8 | 19 20 21 22 23 24b 25b", "9 | 26 27 28 29 [3] . ."}));
}

TEST_F(BoardContent, PagedForwardTheFocusWeekIsTheFirstRow) {
  const Texts rows = Build(2024, 3, 25, PageDirection::kForward);
  EXPECT_EQ(rows.front(), "13 | 25 26 27 28 29 30b 31b");
  EXPECT_EQ(rows.back(), "16 | 15 16 17 18 19 20b 21b");
}

TEST_F(BoardContent, PagedForwardTheDaysOfTheWeekBeforeTheFocusAreKeptBack) {
  EXPECT_EQ(Build(2024, 3, 27, PageDirection::kForward)[0], "13 | (25) (26) 27 28 29 30b 31b");
  EXPECT_EQ(Date(m_board.Built().content.first), "2024-3-27");
}

TEST_F(BoardContent, PagedForwardWithoutIntervalsTheyAreShown) {
  m_board.SetShowMonthInterval(false);
  EXPECT_EQ(Build(2024, 3, 27, PageDirection::kForward)[0], "13 | 25 26 27 28 29 30b 31b");
  EXPECT_EQ(Date(m_board.Built().content.first), "2024-3-25");
}

// A kept-back 1st of a month brings no band, wherever it stands.
TEST_F(BoardContent, KeptBackFirstDayBringsNoBand) {
  EXPECT_EQ(Build(2024, 3, 2, PageDirection::kForward)[0], "9 | (26) (27) (28) (29) (1) 2b 3b");
}

// 2024-02-31 is looked for as it was passed and not found, so that the bands push it off the board.
TEST_F(BoardContent, FocusThatTheMonthLacksLeavesItsBandsUncut) {
  EXPECT_EQ(Build(2024, 2, 31, PageDirection::kBackward),
            (Texts{"5 | 29 30 31 [2] . . .", "5 | . . . 1 2 3b 4b", "6 | 5 6 7 8 9 10b 11b",
                   "7 | 12 13 14 15 16 17b 18b", "8 | 19 20 21 22 23 24b 25b"}));
  EXPECT_EQ(Build(2024, 3, 2, PageDirection::kBackward)[0], "6 | 5 6 7 8 9 10b 11b");
}

TEST_F(BoardContent, RollingTailShowsTheMonthFromItsFirstWeekAndRunsOn) {
  m_board.SetDispMonth(eDispMonthRollingTail);
  m_board.SetMaxRows(7);
  const Texts march = {"9 | (26) (27) (28) (29) 1 2b 3b",
                       "10 | 4 5 6 7 8 9b 10b",
                       "11 | 11 12 13 14 15 16b 17b",
                       "12 | 18 19 20 21 22 23b 24b",
                       "13 | 25 26 27 28 29 30b 31b",
                       "13 | [4] . . . . . .",
                       "14 | 1 2 3 4 5 6b 7b"};
  for (const int day : {1, 31}) {
    EXPECT_EQ(Build(2024, 3, day), march) << day;
  }
  m_board.SetShowMonthInterval(false);
  EXPECT_EQ(Build(2024, 3, 13)[0], "9 | 26 27 28 29 1 2b 3b");
}

TEST_F(BoardContent, RollingTailReachesTheWeekOfTheFocusWhateverTheRows) {
  m_board.SetDispMonth(eDispMonthRollingTail);
  struct {
    int rows, day;
    std::size_t built;
  } const cases[] = {{1, 1, 1},  {1, 3, 1},  {1, 4, 2},  // the Monday opens row 2
                     {1, 31, 5}, {0, 13, 3}, {-9, 13, 3}, {4, 13, 4}};
  for (const auto& c : cases) {
    m_board.SetMaxRows(c.rows);
    EXPECT_EQ(Build(2024, 3, c.day).size(), c.built) << c.rows << " rows, day " << c.day;
  }
}

TEST_F(BoardContent, RollingTailWithAPageDirectionHasNoRows) {
  m_board.SetDispMonth(eDispMonthRollingTail);
  SetToday(2024, 3, 13);
  for (const PageDirection direction : {PageDirection::kBackward, PageDirection::kForward}) {
    EXPECT_EQ(Build(2024, 3, 13, direction), Texts{});
    EXPECT_FALSE(m_board.IsTodayInBoard());
    EXPECT_EQ(m_board.Built().content.todayColumn, -1);
    EXPECT_EQ(m_board.Built().content.first.GetType(), eCalendarItemEmpty);
    EXPECT_EQ(m_board.Built().content.last.GetType(), eCalendarItemEmpty);
  }
}

TEST_F(BoardContent, WholeMonthHidesTheDaysBeforeIt) {
  m_board.SetDispMonth(eDispMonthWholeMonth);
  SetToday(2024, 2, 29);
  EXPECT_EQ(Build(2024, 3, 13), (Texts{"9 | (26) (27) (28) (29) 1 2b 3b", "10 | 4 5 6 7 8 9b 10b",
                                       "11 | 11 12 13 14 15 16b 17b", "12 | 18 19 20 21 22 23b 24b",
                                       "13 | 25 26 27 28 29 30b 31b"}));
  const CCalendarItem& keptBack = m_board.Cell(0, 1);
  EXPECT_EQ(keptBack.GetDay(), "(2)2024-02-27");
  EXPECT_EQ(keptBack.GetDate().dayOfWeek, 0);  // a Tuesday
  EXPECT_EQ(keptBack.GetWeekNumber(), 9);
  EXPECT_EQ(Date(m_board.Built().content.first), "2024-3-1");
  EXPECT_FALSE(m_board.IsTodayInBoard());
  m_board.SetShowMonthInterval(false);
  EXPECT_EQ(Build(2024, 3, 13)[0], "9 | 26 27 28 29* 1 2b 3b");
  EXPECT_EQ(m_board.Cell(0, 1).GetDate().dayOfWeek, 2);
  EXPECT_EQ(m_board.Built().content.todayColumn, 3);
}

TEST_F(BoardContent, WholeMonthThatBeginsInColumn0HasNoLeadingDays) {
  m_board.SetDispMonth(eDispMonthWholeMonth);
  const Texts april = Build(2024, 4, 15);
  ASSERT_EQ(april.size(), 5U);
  EXPECT_EQ(april[0], "14 | 1 2 3 4 5 6b 7b");
  EXPECT_EQ(april[4], "18 | 29 30 [5] . . . .");
  m_board.SetShowMonthInterval(false);
  EXPECT_EQ(Build(2024, 4, 15)[4], "18 | 29 30 1 2 3 4b 5b");  // days after it are never kept back
}

TEST_F(BoardContent, RowsOfWholeMonths) {
  m_board.SetDispMonth(eDispMonthWholeMonth);
  struct {
    int year, month, start;
    std::size_t rows;
  } const cases[] = {{2021, 2, 1, 4},   // 28 days from a Monday
                     {2021, 2, 0, 5},   //
                     {2024, 9, 1, 6},   // 30 days from a Sunday
                     {2024, 6, 1, 5},   // 30 days from a Saturday: 35 cells
                     {2024, 12, 1, 6},  // 31 days from a Sunday
                     {2024, 3, 1, 5}};  // 31 days from a Friday: 35 cells
  for (const auto& c : cases) {
    m_board.SetStartDayOfWeek(c.start);
    for (const PageDirection direction : kDirections) {
      for (const int maxRows : {1, 60, kMin, kMax}) {
        m_board.SetMaxRows(maxRows);
        EXPECT_EQ(Build(c.year, c.month, 15, direction).size(), c.rows)
            << c.year << '-' << c.month << ' ' << c.start;
      }
    }
  }
}

// The page direction that an earlier command left is in force here too.
TEST_F(BoardContent, WholeMonthWithDirectionBackwardLosesItsFirstWeek) {
  m_board.SetDispMonth(eDispMonthWholeMonth);
  const Texts april = Build(2024, 4, 1, PageDirection::kBackward);
  ASSERT_EQ(april.size(), 5U);
  EXPECT_EQ(april[0], "15 | 8 9 10 11 12 13b 14b");
  EXPECT_EQ(april[4], "18 | . . 1 2 3 4b 5b");
}

TEST_F(BoardContent, WholeMonthWithDirectionForwardIsThePlainOne) {
  m_board.SetDispMonth(eDispMonthWholeMonth);
  for (const int day : {1, 15, 30}) {
    EXPECT_EQ(Build(2024, 4, day, PageDirection::kForward), Build(2024, 4, day)) << day;
  }
  EXPECT_EQ(Build(2024, 1, 31, PageDirection::kForward), Build(2024, 1, 31));  // lists two bands
}

// On the 31st the list runs over two months' beginnings, and both bands are cut from the front.
TEST_F(BoardContent, WholeMonthWithDirectionBackwardLosesARowForEachBandListed) {
  m_board.SetDispMonth(eDispMonthWholeMonth);
  EXPECT_EQ(Build(2024, 1, 31, PageDirection::kBackward)[0], "3 | 15 16 17 18 19 20b 21b");
  EXPECT_EQ(Build(2024, 1, 1, PageDirection::kBackward)[0], "2 | 8 9 10 11 12 13b 14b");
}

TEST_F(BoardContent, StripHasTheFocusInItsMiddle) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  SetToday(2024, 3, 13);
  struct {
    int columns;
    const char* row;
  } const cases[] = {{7, "11 | 10b 11 12 13* 14 15 16b"},
                     {6, "11 | 11 12 13* 14 15 16b -"},
                     {3, "11 | 12 13* 14 - - - -"},
                     {2, "11 | 13* 14 - - - - -"},
                     {1, "11 | 13* - - - - - -"}};
  for (const auto& c : cases) {
    m_board.SetMaxColumns(c.columns);
    EXPECT_EQ(Build(2024, 3, 13), Texts{c.row}) << c.columns;
  }
}

TEST_F(BoardContent, StripPagedForwardBeginsAndPagedBackwardEndsWithTheFocus) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  EXPECT_EQ(Build(2024, 3, 13, PageDirection::kForward), Texts{"12 | 13 14 15 16b 17b 18 19"});
  EXPECT_EQ(Build(2024, 3, 13, PageDirection::kBackward), Texts{"11 | 7 8 9b 10b 11 12 13"});
  m_board.SetMaxColumns(3);
  EXPECT_EQ(Build(2024, 3, 13, PageDirection::kForward), Texts{"11 | 13 14 15 - - - -"});
  EXPECT_EQ(Build(2024, 3, 13, PageDirection::kBackward), Texts{"11 | 11 12 13 - - - -"});
}

TEST_F(BoardContent, StripCrossesAMonthWithoutABand) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  EXPECT_EQ(Build(2024, 2, 29), Texts{"9 | 26 27 28 29 1 2b 3b"});
}

TEST_F(BoardContent, AnyOtherModeIsAnEmptyBoard) {
  Build(2024, 3, 13);  // leaves nothing behind
  for (const int mode : {0, 5, kMin, kMax}) {
    m_board.SetDispMonth(mode);
    for (const PageDirection direction : kDirections) {
      EXPECT_EQ(Build(2024, 3, 13, direction), Texts{}) << mode;
      EXPECT_EQ(m_board.Built().content.first.GetDay(), "(1)0000-00-00");
      EXPECT_EQ(m_board.Built().content.last.GetDay(), "(1)0000-00-00");
    }
  }
}

TEST_F(BoardContent, KindsOfDays) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  m_board.SetBreakDayOfWeek(eCalendarWeekWednesday, true);
  m_board.SetBreakDayOfWeek(eCalendarWeekSunday, false);
  SetToday(2024, 3, 13);
  EXPECT_EQ(Build(2024, 3, 13), Texts{"11 | 10 11 12 13*b 14 15 16b"});
  SetToday(2024, 3, 11);
  EXPECT_EQ(Build(2024, 3, 13), Texts{"11 | 10 11* 12 13b 14 15 16b"});
}

TEST_F(BoardContent, TodayIsNotedWithItsColumn) {
  SetToday(2024, 3, 16);
  Build(2024, 3, 13);
  EXPECT_TRUE(m_board.IsTodayInBoard());
  EXPECT_EQ(m_board.Built().content.todayColumn, 5);
  SetToday(2024, 3, 3);  // the day before the board
  Build(2024, 3, 13);
  EXPECT_FALSE(m_board.IsTodayInBoard());
  EXPECT_EQ(m_board.Built().content.todayColumn, -1);
}

// They are copied before the cell has its week number.
TEST_F(BoardContent, FirstAndLastDateItemsAreCells) {
  Build(2024, 3, 13);
  const CCalendarItem& first = m_board.Built().content.first;
  const CCalendarItem& last = m_board.Built().content.last;
  EXPECT_EQ(first.GetDay(), "(3)2024-03-04");
  EXPECT_EQ(first.GetWeekNumber(), -1);
  EXPECT_EQ(last.GetDay(), "(5)2024-03-31");
  EXPECT_EQ(last.GetRow(), 3);
  EXPECT_EQ(last.GetColumn(), 6);
}

struct Range {
  int year, month, day;
  bool accepted;
};

constexpr Range kRanges[] = {
    {1900, 1, 1, true},    {1899, 12, 31, false},     {2099, 12, 31, true},
    {2100, 1, 1, false},   {2024, 0, 5, false},       {2024, 13, 5, false},
    {2024, 2, 0, false},   {2024, 2, 31, true},       {2024, 2, 32, false},
    {2024, -1, -1, false}, {kMin, kMin, kMin, false}, {kMax, kMax, kMax, false},
    {0, 0, 0, false},  // only the whole build takes it for today
};

TEST_F(BoardContent, DatesOutOfRangeAreRejectedAndLeaveEverything) {
  SetToday(2024, 3, 13);
  for (const Range& c : kRanges) {
    SCOPED_TRACE(testing::Message() << c.year << '-' << c.month << '-' << c.day);
    const Texts before = Build(2024, 3, 13);
    m_board.BuildQuietly(c.year, c.month, c.day);
    const CCalendarSolarDate focus = m_board.GetContentDate();
    EXPECT_EQ(std::tie(focus.year, focus.month, focus.day) == std::tie(c.year, c.month, c.day),
              c.accepted);
    if (!c.accepted) {
      EXPECT_EQ(Rows(m_board), before);
      EXPECT_EQ(std::tie(focus.year, focus.month, focus.day), std::make_tuple(2024, 3, 13));
      EXPECT_TRUE(m_board.IsTodayInBoard());
      EXPECT_EQ(m_board.Built().content.todayColumn, 2);
      EXPECT_EQ(Date(m_board.Built().content.first), "2024-3-4");
      EXPECT_EQ(Date(m_board.Built().content.last), "2024-3-31");
    }
  }
}

TEST_F(BoardContent, DayThatTheMonthLacksCountsOnAndTheFocusStaysAsPassed) {
  m_board.SetDispMonth(eDispMonthDayStrip);
  EXPECT_EQ(Build(2023, 2, 31), Texts{"10 | 28 1 2 3 4b 5b 6"});
  EXPECT_EQ(m_board.Cell(0, 3).GetDay(), "(3)2023-03-03");
  EXPECT_EQ(m_board.GetContentDate().year, 2023);
  EXPECT_EQ(m_board.GetContentDate().month, 2);
  EXPECT_EQ(m_board.GetContentDate().day, 31);
}

TEST_F(BoardContent, WholeMonthOfADayThatTheMonthLacksIsTheNextMonth) {
  m_board.SetDispMonth(eDispMonthWholeMonth);
  EXPECT_EQ(Build(2023, 2, 31), Build(2023, 3, 3));
}

TEST_F(BoardContent, EndsOfTheYearsRunOverIntoTheNextOnes) {
  m_board.SetShowMonthInterval(false);
  EXPECT_EQ(Build(1900, 1, 1)[0], "0 | 25 26 27 28 29 30b 31b");
  EXPECT_EQ(Date(m_board.Built().content.first), "1899-12-25");
  EXPECT_EQ(m_board.Cell(0, 0).GetWeekNumber(), -1);  // no week numbers before 1900
  const Texts last = Build(2099, 12, 31);
  EXPECT_EQ(last[1], "53 | 28 29 30 31 1 2b 3b");
  EXPECT_EQ(last[2], "53 | 4 5 6 7 8 9b 10b");
  EXPECT_EQ(Date(m_board.Built().content.last), "2100-1-24");
}

TEST_F(BoardContent, RowWeekNumberIsThatOfItsLastDatedCell) {
  m_board.SetStartDayOfWeek(eCalendarWeekSunday);
  EXPECT_EQ(Build(2024, 3, 13)[0], "10 | 3b 4 5 6 7 8 9b");
  EXPECT_EQ(m_board.Cell(0, 0).GetWeekNumber(), 9);
  m_board.SetStartDayOfWeek(eCalendarWeekMonday);
  EXPECT_EQ(Build(2024, 2, 28)[1], "9 | 26 27 28 29 [3] . .");
}

TEST_F(BoardContent, RowWithoutAWeekNumberRepeatsTheRowBefore) {
  EXPECT_EQ(Build(2024, 3, 25, PageDirection::kForward)[1], "13 | [4] . . . . . .");
}

TEST_F(BoardContent, FirstRowWithoutAWeekNumberHas0) {
  EXPECT_EQ(Build(2024, 4, 28, PageDirection::kBackward)[0], "0 | [4] . . . . . .");
}

class ShownWeek : public BoardContent {
 protected:
  ShownWeek() {
    SetToday(2024, 11, 20);
    m_board.SetDispMonth(eDispMonthDayStrip);
    m_board.SetMaxColumns(1);
  }

  int Of(int year, int month, int day, int startWeek, EWeekNumberCalc type) {
    m_board.SetStartWeekNumber(startWeek);
    m_board.SetWeekNumberCalcType(type);
    Build(year, month, day);
    return m_board.Cell(0, 0).GetWeekNumber();
  }
};

TEST_F(ShownWeek, StartWeekReads1AndEarlierWeeksStay) {
  EXPECT_EQ(Of(2024, 3, 4, 1, kIso), 10);
  EXPECT_EQ(Of(2024, 3, 4, 10, kIso), 1);
  EXPECT_EQ(Of(2024, 3, 11, 10, kIso), 2);
  EXPECT_EQ(Of(2024, 3, 3, 10, kIso), 9);  // the week before
  EXPECT_EQ(Of(2024, 3, 4, 0, kIso), 11);
  EXPECT_EQ(Of(2024, 3, 4, -3, kIso), 14);
  EXPECT_EQ(Of(2024, 3, 4, kMax, kIso), 10);
  EXPECT_EQ(Of(2024, 3, 4, kMin, kIso), -2147483637);  // 10 + 1 + 2^31 wraps
}

TEST_F(ShownWeek, WeeksOfTheNextYearGoOnUnderType2) {
  // 31 December 2025 is week 53, counted from 1 January.
  EXPECT_EQ(Of(2025, 1, 1, 36, kFromStart), 18);
  EXPECT_EQ(Of(2024, 12, 31, 36, kFromStart),
            18);  // no added 1 after the turn of the year: week 18 again
  EXPECT_EQ(Of(2024, 12, 29, 36, kFromStart), 17);
  EXPECT_EQ(Of(2025, 2, 2, 36, kFromStart), 22);  // week 5 lies more than 30 weeks before week 36
  EXPECT_EQ(Of(2025, 2, 3, 36, kFromStart), 6);   // week 6 does not
  EXPECT_EQ(Of(2025, 2, 3, 37, kFromStart), 22);
  EXPECT_EQ(Of(2025, 1, 1, 31, kFromStart), 1);  // 31 - 30 is not above week 1
  EXPECT_EQ(Of(2025, 1, 1, 32, kFromStart), 22);
  EXPECT_EQ(Of(2025, 9, 1, 36, kFromStart), 1);  // week 36
}

TEST_F(ShownWeek, OnlyTheYearAfterTodaysGoesOnAndUnderNoOtherType) {
  for (const int year : {2023, 2024, 2026}) {
    EXPECT_EQ(Of(year, 1, 1, 36, kFromStart), 1) << year;
  }
  for (const int type : {kFromJan1, kIso, 3, -1}) {
    EXPECT_EQ(Of(2025, 1, 1, 36, type), 1) << type;
  }
  SetToday(2025, 1, 1);
  EXPECT_EQ(Of(2025, 1, 1, 36, kFromStart), 1);
  EXPECT_EQ(Of(2026, 1, 1, 36, kFromStart), 18);
}

TEST_F(ShownWeek, LastWeekIsThatOfTheCellsOwnYear) {
  SetToday(2011, 11, 20);
  EXPECT_EQ(Of(2012, 1, 2, 40, kFromStart),
            54 + 2 - 40);  // 2012 ends with week 54, 2011 with week 53
}

TEST_F(ShownWeek, StartWeekOfMinus1OrLessNumbersUndatedCells) {
  const auto undated = [this](int startWeek) {
    Of(2024, 3, 4, startWeek, kIso);
    return m_board.Cell(0, 1).GetWeekNumber();
  };
  EXPECT_EQ(undated(1), -1);
  EXPECT_EQ(undated(0), -1);
  EXPECT_EQ(undated(-1), 1);
  EXPECT_EQ(undated(-5), 5);
}

TEST_F(ShownWeek, UndatedCellsThatAreNumberedTakePartInTheSpans) {
  m_board.SetStartWeekNumber(-1);
  m_board.SetDispMonth(eDispMonthRollingWeeks);
  m_board.SetMaxColumns(7);
  EXPECT_EQ(Build(2024, 3, 13)[4], "1 | [4] . . . . . .");
  ASSERT_EQ(m_board.GetWeekNumberCount(), 5);
  EXPECT_EQ(m_board.GetWeekNumberItem(4).weekNumber, 1);
  EXPECT_EQ(m_board.GetWeekNumberItem(4).cellsWithoutWeek, 0);
}

// 53 + 6 - 60: a number that says that there is none.
TEST_F(ShownWeek, NumberThatComesOutAsMinus1IsNoneForTheRow) {
  EXPECT_EQ(Of(2025, 2, 5, 60, kFromStart), -1);
  EXPECT_EQ(m_board.Rows()[0].weekNumber, 0);
  EXPECT_EQ(Of(2025, 1, 29, 60, kFromStart), -2);
  EXPECT_EQ(m_board.Rows()[0].weekNumber, -2);
}

TEST_F(BoardContent, ContentOfTodayIsAPlainBuild) {
  SetToday(2024, 3, 13);
  std::vector<tagCalendarRow> rows;
  EXPECT_EQ(m_board._BuildContentOfToday(rows), 1);
  EXPECT_EQ(Text(rows[1]), "11 | 11 12 13* 14 15 16b 17b");
}

// The steps of a build, called one by one.
class Steps : public CCalendarLogicBuild {
 public:
  using CCalendarLogicBuild::m_board;
  using CCalendarLogicBuild::s_ArrDaysOfSolarMonth;
};

TEST(BoardSteps, OneByOneGiveTheBoardOfAWholeBuild) {
  SetToday(2024, 3, 13);
  almara::test::CaptureStdout output;
  Steps whole;
  whole._BuildCalendar(2024, 2, 28);
  const std::string text = output.Take();
  Steps steps;
  EXPECT_EQ(steps._BuildContent(2024, 2, 28, steps.m_board.content.rows), 1);
  steps._CalcRowColumnIndex();
  steps._CalcRowSpanByWeekNumber();
  EXPECT_EQ(output.Take(), "");
  steps._PaintCalendarLog();
  EXPECT_EQ(output.Take(), text);
  EXPECT_EQ(steps.m_board.visible.rows, whole.m_board.visible.rows);
  EXPECT_EQ(steps.m_board.visible.rowCount, 5);
  EXPECT_EQ(steps.m_board.visible.columns, whole.m_board.visible.columns);
  EXPECT_EQ(steps.m_board.spans.size(), whole.m_board.spans.size());
  EXPECT_EQ(steps.m_board.spans.size(), 4U);
}

TEST(BoardSteps, ListIsPutTogetherAroundTheFocusOfTheBoard) {
  Steps steps;
  std::vector<tagCalendarRow> rows;
  steps._BuildContent(2024, 3, 3, rows);
  almara::DateList source;
  for (int day = 29; day <= 31; ++day) {
    source.push_back(CCalendarSolarDateEx::RealDay({2024, 2, day, 0}));
  }
  source[1] = CCalendarSolarDateEx::RealDay({2024, 3, 1, 5});
  source[2] = CCalendarSolarDateEx::RealDay({2024, 3, 3, 0});
  almara::DateList display;
  steps._MakeDateListWithType(source, display, 2, 0);
  EXPECT_EQ(display.size(), 10U);
  steps._MakeDateListWithType(source, display, 2, 0, PageDirection::kBackward);
  EXPECT_EQ(display.size(), 3U);
}

TEST(BoardSteps, DaysOfTheMonthsOfACommonYear) {
  int days = 0;
  for (const int ofMonth : Steps::s_ArrDaysOfSolarMonth) {
    days += ofMonth;
  }
  EXPECT_EQ(days, 365);
}

TEST_F(BoardContent, BuildFillsTheRowsThatItIsGiven) {
  std::vector<tagCalendarRow> rows(3);
  EXPECT_EQ(m_board._BuildContent(2024, 3, 13, rows), 1);
  EXPECT_EQ(rows.size(), 5U);
  EXPECT_TRUE(m_board.Rows().empty());
  EXPECT_EQ(m_board._BuildContent(1899, 3, 13, rows), 0);
  EXPECT_EQ(rows.size(), 5U);
  EXPECT_EQ(m_board.GetContentDate().year, 2024);
}

// Boards over the changes of the clocks of every kind of zone are the boards of UTC.
TEST_F(BoardContent, ChangesOfTheClocksMoveNoDay) {
  for (EDispMonth mode = eDispMonthRollingWeeks; mode <= eDispMonthDayStrip; ++mode) {
    m_board.SetDispMonth(mode);
    for (const int month : {3, 4, 9, 10, 11}) {
      for (const int day : {1, 15, 31}) {
        for (const PageDirection direction : kDirections) {
          const Texts expected = Build(2024, month, day, direction);
          for (const char* name : almara::test::kZones) {
            const ScopedZone zone(name);
            ASSERT_EQ(Build(2024, month, day, direction), expected)
                << name << " mode " << mode << ' ' << month << '-' << day;
          }
        }
      }
    }
  }
}

TEST_F(BoardContent, ApiasBoardGoesOnAfterItsMissingDay) {
  const ScopedZone zone("Pacific/Apia");
  m_board.SetShowMonthInterval(false);
  m_board.SetMaxRows(3);
  EXPECT_EQ(Build(2011, 12, 28), (Texts{"51 | 19 20 21 22 23 24b 25b", "1 | 26 27 28 29 31b 1b 2",
                                        "2 | 3 4 5 6 7b 8b 9"}));
}

// Known limit: each look at a winter day there steps back by one, and the focus is looked at twice.
TEST_F(BoardContent, DublinInWinterShowsADayTwiceAndLeavesOneOut) {
  const ScopedZone zone("Europe/Dublin");
  m_board.SetDispMonth(eDispMonthDayStrip);
  EXPECT_EQ(Build(2024, 1, 16), Texts{"3 | 11 12 13b 15 15 16 17"});
  EXPECT_EQ(Build(2024, 7, 16), Texts{"29 | 13b 14b 15 16 17 18 19"});
}

}  // namespace
