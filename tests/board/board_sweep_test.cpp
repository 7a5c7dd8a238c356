// SPDX-License-Identifier: MIT
//
// What holds for every board, and where its focus stands: built for every day of 1900 to 2099 in
// every arrangement, page direction and week start, with month intervals and without. The other
// options change from day to day.
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <tuple>
#include <vector>

#include "support/board.h"
#include "support/board_invariants.h"
#include "support/civil.h"
#include "support/clock.h"

namespace almara::test {

namespace {

constexpr int kSecondsPerDay = 86400;
constexpr int kUnixDayOf1900 = -25567;

constexpr int kPlain = static_cast<int>(PageDirection::kNone);
constexpr int kBackward = static_cast<int>(PageDirection::kBackward);
constexpr int kForward = static_cast<int>(PageDirection::kForward);

// Options and circumstances of one board.
struct Request {
  int mode, direction, start;
  bool interval;
  Civil focus;
  int rows, passed, columns;
  EWeekNumberCalc weekRule;
  bool showBreakDays;
  Civil today;
};

ShownBoard Read(const Board& board) {
  ShownBoard shown;
  shown.rows = board.GetContentRows();
  shown.columns = board.GetContentColumns();
  for (int row = 0; row < shown.rows; ++row) {
    for (int column = 0; column < shown.columns; ++column) {
      const CCalendarItem cell = board.GetContentItem(row, column);
      const CCalendarSolarDate& date = cell.GetDate();
      shown.cells.push_back({date.year, date.month, date.day, date.dayOfWeek, cell.GetWeekNumber(),
                             cell.GetRow(), cell.GetColumn(), cell.GetType()});
    }
  }
  for (int i = 0; i < board.GetWeekNumberCount(); ++i) {
    const tagCalendarWeekSpan span = board.GetWeekNumberItem(i);
    shown.spans.push_back({span.weekNumber, span.secondWeekNumber, span.rows});
  }
  for (int column = 0; column < shown.columns; ++column) {
    shown.headings.push_back(board.GetCalendarWeekByColumns(column));
  }
  shown.focus = board.GetContentDate();
  shown.hasToday = board.IsTodayInBoard();
  return shown;
}

int ColumnOf(const Request& r, const Civil& day) { return (DayOfWeek(day) - r.start + 7) % 7; }

int ExpectedRows(const Request& r) {
  const int lead = ColumnOf(r, {r.focus.year, r.focus.month, 1});
  switch (r.mode) {
    case eDispMonthRollingWeeks:
      return r.rows;
    case eDispMonthRollingTail:
      return r.direction != kPlain ? 0 : std::max(r.rows, (lead + r.focus.day + 6) / 7);
    case eDispMonthWholeMonth:
      return (lead + DaysOfMonth(r.focus.year, r.focus.month) + 6) / 7;
    default:
      return 1;
  }
}

// The place of the focus, counted from the board's first cell; -1 where month intervals in front of
// it make it depend on more than the request.
int ExpectedPlace(const Request& r) {
  switch (r.mode) {
    case eDispMonthDayStrip:
      return r.direction == kPlain      ? r.columns / 2 + r.columns % 2 - 1
             : r.direction == kBackward ? r.columns - 1
                                        : 0;
    case eDispMonthRollingWeeks:
      return r.direction == kBackward           ? 7 * (r.rows - 1) + ColumnOf(r, r.focus)
             : r.direction == kForward          ? ColumnOf(r, r.focus)
             : r.interval || r.passed >= r.rows ? -1
                                                : 7 * r.passed + ColumnOf(r, r.focus);
    default:
      return r.interval && r.direction == kBackward
                 ? -1
                 : ColumnOf(r, {r.focus.year, r.focus.month, 1}) + r.focus.day - 1;
  }
}

// The first sentence that does not hold, or nullptr.
const char* FirstBroken(const Board& board, const Request& r) {
  if (board.Rows().size() != static_cast<std::size_t>(ExpectedRows(r))) {
    return "the board has its number of rows";
  }
  const int place = ExpectedPlace(r);
  if (place >= 0 && !board.Rows().empty()) {
    const CCalendarSolarDate& date =
        board.Cell(static_cast<std::size_t>(place / 7), static_cast<std::size_t>(place % 7))
            .GetDate();
    if (Civil{date.year, date.month, date.day} != r.focus) {
      return "the focus stands in its place";
    }
  }
  const ShownBoard shown = Read(board);
  for (const tagCalendarCell& cell : shown.cells) {
    if (IsDay(cell) && r.mode != eDispMonthDayStrip &&
        (r.start + cell.column) % 7 != cell.dayOfWeek) {
      return "a day stands in the column of its day of the week";
    }
  }
  const char* broken = FirstBroken(shown);
  return broken != nullptr ? broken : BrokenHeadings(shown, r.mode, r.start);
}

std::string Text(const Request& r) {
  const auto date = [](const Civil& d) {
    return std::to_string(d.year) + "-" + std::to_string(d.month) + "-" + std::to_string(d.day);
  };
  return "focus " + date(r.focus) + ", today " + date(r.today) + ", mode " +
         std::to_string(r.mode) + ", direction " + std::to_string(r.direction) + ", start " +
         std::to_string(r.start) + ", intervals " + std::to_string(r.interval) + ", rows " +
         std::to_string(r.rows) + ", passed " + std::to_string(r.passed) + ", columns " +
         std::to_string(r.columns) + ", rule " + std::to_string(r.weekRule) + ", break days " +
         std::to_string(r.showBreakDays);
}

void Build(Board& board, const Request& r) {
  SetNow(std::time_t{DayNumber(r.today) + kUnixDayOf1900} * kSecondsPerDay + kSecondsPerDay / 2);
  board.SetDispMonth(r.mode);
  board.SetStartDayOfWeek(r.start);
  board.SetShowMonthInterval(r.interval);
  board.SetMaxRows(r.rows);
  board.SetPassedWeeks(r.passed);
  board.SetMaxColumns(r.columns);
  board.SetWeekNumberCalcType(r.weekRule);
  board.SetShowBreakDayOfWeek(r.showBreakDays);
  board.BuildQuietly(r.focus.year, r.focus.month, r.focus.day,
                     static_cast<PageDirection>(r.direction));
}

// Options that change from day to day, so that all meet all weekdays and places in the month.
Request RequestFor(const Civil& focus, int mode, bool interval, int direction, int start) {
  constexpr int kRows[] = {5, 6, 1, 8, 2};
  constexpr int kDaysToToday[] = {0, 1, -3, 17, -40, 400, 6};
  const int n = DayNumber(focus) + start;
  Request r{};
  r.mode = mode;
  r.direction = direction;
  r.start = start;
  r.interval = interval;
  r.focus = focus;
  r.rows = kRows[n % 5];
  r.passed = n / 5 % 4;
  r.columns = n / 3 % 7 + 1;
  r.weekRule = n % 3;
  r.showBreakDays = n % 4 != 0;
  r.today = AddDays(focus, kDaysToToday[n % 7]);
  return r;
}

class BoardSweep : public testing::TestWithParam<std::tuple<int, bool, int>> {};

std::string NameOf(const testing::TestParamInfo<std::tuple<int, bool, int>>& info) {
  constexpr const char* kModes[] = {"", "RollingWeeks", "RollingTail", "WholeMonth", "DayStrip"};
  constexpr const char* kDirections[] = {"Plain", "Backward", "Forward"};
  return std::string(kModes[std::get<0>(info.param)]) + kDirections[std::get<2>(info.param)] +
         (std::get<1>(info.param) ? "WithIntervals" : "WithoutIntervals");
}

INSTANTIATE_TEST_SUITE_P(EveryDay, BoardSweep,
                         testing::Combine(testing::Values(1, 2, 3, 4), testing::Bool(),
                                          testing::Values(kPlain, kBackward, kForward)),
                         NameOf);

TEST_P(BoardSweep, HoldsWhatHoldsForEveryBoard) {
  const auto [mode, interval, direction] = GetParam();
  Board board;
  for (Civil focus = kFirstDay; focus.year < 2100; focus = NextDay(focus)) {
    for (int start = 0; start <= 6; ++start) {
      const Request request = RequestFor(focus, mode, interval, direction, start);
      Build(board, request);
      const char* broken = FirstBroken(board, request);
      ASSERT_EQ(broken, nullptr) << broken << ". " << Text(request);
    }
  }
}

}  // namespace

}  // namespace almara::test
