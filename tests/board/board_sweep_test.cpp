// SPDX-License-Identifier: MIT
//
// What holds for every board: built for every day of 1900 to 2099 in every arrangement, page
// direction and week start, with month intervals and without. The other options change from day to
// day.
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <tuple>
#include <vector>

#include "board/calendar_week_number.h"
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

bool IsDay(const CCalendarItem& item) {
  return item.GetType() >= eCalendarItemDay && item.GetType() <= eCalendarItemTodayBreakDay;
}
bool IsTitle(const CCalendarItem& item) { return item.GetType() == eCalendarItemMonthTitle; }
bool IsDated(const CCalendarItem& item) { return item.GetDate().year != 0; }
bool IsHiddenDay(const CCalendarItem& item) {
  return item.GetType() == eCalendarItemBlank && IsDated(item);
}
bool IsFiller(const CCalendarItem& item) {
  return item.GetType() == eCalendarItemBlank && !IsDated(item);
}
Civil DateOf(const CCalendarItem& item) {
  return {item.GetDate().year, item.GetDate().month, item.GetDate().day};
}

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

// The cells of a board in reading order, and what must hold for them. A check throws the sentence
// that does not hold.
class Checker {
 public:
  Checker(const Board& board, const Request& request, CCalendarWeekNumber& weeks)
      : m_board(board), m_request(request), m_weeks(weeks) {
    for (const tagCalendarRow& row : board.Rows()) {
      for (const CCalendarItem& item : row.items) {
        m_cells.push_back(&item);
      }
    }
    const auto firstDay = std::find_if(m_cells.begin(), m_cells.end(),
                                       [](const CCalendarItem* cell) { return IsDay(*cell); });
    m_firstDay = static_cast<std::size_t>(firstDay - m_cells.begin());
  }

  void CheckAll() const {
    CheckRowCount();
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
      CheckPlace(i);
      CheckDate(i);
      CheckKind(i);
      CheckBand(i);
      CheckWeekNumber(i);
    }
    CheckDaysFollowEachOther();
    CheckRowWeekNumbers();
    CheckEmptyCells();
    CheckFocus();
    CheckFirstAndLastDay();
    CheckToday();
    CheckVisibleColumns();
    CheckVisibleRows();
    CheckShownBoard();
  }

 private:
  static void Expect(bool holds, const char* sentence) {
    if (!holds) {
      throw sentence;
    }
  }

  bool IsStrip() const { return m_request.mode == eDispMonthDayStrip; }
  int ColumnOf(const Civil& day) const { return (DayOfWeek(day) - m_request.start + 7) % 7; }

  int ExpectedRows() const {
    const Civil first{m_request.focus.year, m_request.focus.month, 1};
    switch (m_request.mode) {
      case eDispMonthRollingWeeks:
        return m_request.rows;
      case eDispMonthRollingTail:
        return m_request.direction != kPlain
                   ? 0
                   : std::max(m_request.rows, (ColumnOf(first) + m_request.focus.day + 6) / 7);
      case eDispMonthWholeMonth:
        return (ColumnOf(first) + DaysOfMonth(first.year, first.month) + 6) / 7;
      default:
        return 1;
    }
  }

  void CheckRowCount() const {
    Expect(m_board.Rows().size() == static_cast<std::size_t>(ExpectedRows()),
           "the board has its number of rows");
  }

  void CheckPlace(std::size_t i) const {
    Expect(m_cells[i]->GetRow() == static_cast<int>(i / 7) &&
               m_cells[i]->GetColumn() == static_cast<int>(i % 7),
           "a cell knows its row and column");
  }

  void CheckDate(std::size_t i) const {
    const CCalendarItem& cell = *m_cells[i];
    if (!IsDated(cell)) {
      return;
    }
    const Civil day = DateOf(cell);
    const int weekday = DayOfWeek(day);
    Expect(cell.GetDate().dayOfWeek == (IsDay(cell) ? weekday : 0),
           "a day has its day of week, a hidden one has 0");
    Expect(IsStrip() || (m_request.start + cell.GetColumn()) % 7 == weekday,
           "a day stands in the column of its weekday");
  }

  void CheckKind(std::size_t i) const {
    const CCalendarItem& cell = *m_cells[i];
    if (IsDay(cell)) {
      const bool isToday = DateOf(cell) == m_request.today;
      const bool isBreakDay = m_board.IsBreakDayOfWeek(cell.GetDate().dayOfWeek);
      Expect(cell.GetType() == (isToday
                                    ? (isBreakDay ? eCalendarItemTodayBreakDay : eCalendarItemToday)
                                    : (isBreakDay ? eCalendarItemBreakDay : eCalendarItemDay)),
             "a day has the kind of its day");
    } else {
      Expect(cell.GetType() == eCalendarItemEmpty || (m_request.interval && !IsStrip()),
             "blanks and titles stand on boards with month intervals only");
      Expect(!IsHiddenDay(cell) || i < m_firstDay, "hidden days stand before the first day");
    }
  }

  // A band is a title and six fillers, cut at most by the ends of the board, and stands before
  // the 1st of its month.
  void CheckBand(std::size_t i) const {
    const CCalendarItem& cell = *m_cells[i];
    if (IsTitle(cell)) {
      for (std::size_t k = i + 1; k < std::min(i + 7, m_cells.size()); ++k) {
        Expect(IsFiller(*m_cells[k]), "six fillers follow a title");
      }
      if (i + 7 < m_cells.size()) {
        const CCalendarItem& after = *m_cells[i + 7];
        Expect(IsDay(after) && after.GetDate().day == 1 &&
                   after.GetDate().month == cell.GetDate().month,
               "a band ends before the 1st of its month");
      }
    } else if (IsFiller(cell)) {
      std::size_t begin = i;
      while (begin > 0 && IsFiller(*m_cells[begin])) {
        --begin;
      }
      Expect(i - begin <= 6 && (begin == 0 || IsTitle(*m_cells[begin])),
             "fillers follow a title, or open the board");
    } else if (m_request.interval && !IsStrip() && IsDay(cell) && cell.GetDate().day == 1 &&
               i != m_firstDay) {
      Expect(i >= 7 && IsTitle(*m_cells[i - 7]), "a band stands before a 1st inside the board");
    }
  }

  void CheckWeekNumber(std::size_t i) const {
    const CCalendarSolarDate& date = m_cells[i]->GetDate();
    Expect(m_cells[i]->GetWeekNumber() ==
               m_weeks.GetWeekNumber(date.year, date.month, date.day, m_request.weekRule),
           "a dated cell has its week number, any other -1");
  }

  // Those that the options hide, and the days kept back, included.
  void CheckDaysFollowEachOther() const {
    const CCalendarItem* before = nullptr;
    for (const CCalendarItem* cell : m_cells) {
      if (IsDated(*cell)) {
        Expect(before == nullptr || DateOf(*cell) == NextDay(DateOf(*before)),
               "days follow each other");
        before = cell;
      }
    }
  }

  void CheckRowWeekNumbers() const {
    int expected = 0;
    for (const tagCalendarRow& row : m_board.Rows()) {
      for (const CCalendarItem& item : row.items) {
        expected = item.GetWeekNumber() != -1 ? item.GetWeekNumber() : expected;
      }
      Expect(row.weekNumber == expected,
             "a row has the week number of its last dated cell, or of the row before");
    }
  }

  void CheckEmptyCells() const {
    const auto isEmpty = [](const CCalendarItem* cell) {
      return cell->GetType() == eCalendarItemEmpty;
    };
    const auto firstEmpty = std::find_if(m_cells.begin(), m_cells.end(), isEmpty);
    Expect(std::all_of(firstEmpty, m_cells.end(), isEmpty), "empty cells stand at the end");
    Expect(m_cells.end() - firstEmpty == (IsStrip() ? 7 - m_request.columns : 0),
           "only a strip has empty cells, after its columns");
  }

  // Where the focus stands; with bands in front of it only the row is known.
  void CheckFocus() const {
    const Request& r = m_request;
    const bool plain = r.direction == kPlain;
    if (m_cells.empty()) {
      return;
    }
    if (IsStrip()) {
      const int middle = r.columns / 2 + r.columns % 2 - 1;
      ExpectFocusAt(plain ? middle : r.direction == kBackward ? r.columns - 1 : 0);
    } else if (r.mode == eDispMonthWholeMonth && !(r.interval && r.direction == kBackward)) {
      ExpectMonthFrom(ColumnOf({r.focus.year, r.focus.month, 1}),
                      DaysOfMonth(r.focus.year, r.focus.month));
    } else if (r.mode == eDispMonthRollingTail) {
      ExpectMonthFrom(ColumnOf({r.focus.year, r.focus.month, 1}), r.focus.day);
    } else if (r.mode == eDispMonthRollingWeeks && r.direction == kBackward) {
      ExpectFocusAt(7 * (r.rows - 1) + ColumnOf(r.focus));
    } else if (r.mode == eDispMonthRollingWeeks && r.direction == kForward) {
      ExpectFocusAt(ColumnOf(r.focus));
    } else if (r.mode == eDispMonthRollingWeeks && !r.interval && r.passed < r.rows) {
      ExpectFocusAt(7 * r.passed + ColumnOf(r.focus));
    }
  }

  void ExpectFocusAt(int index) const {
    Expect(DateOf(*m_cells[static_cast<std::size_t>(index)]) == m_request.focus,
           "the focus stands in its place");
  }

  void ExpectMonthFrom(int index, int days) const {
    for (int day = 1; day <= days; ++day) {
      const Civil expected{m_request.focus.year, m_request.focus.month, day};
      Expect(DateOf(*m_cells[static_cast<std::size_t>(index + day - 1)]) == expected,
             "the days of the month stand in their places");
    }
  }

  void CheckFirstAndLastDay() const {
    const bool anyDay = m_firstDay < m_cells.size();
    Expect(IsDay(m_board.Built().content.first) == anyDay &&
               IsDay(m_board.Built().content.last) == anyDay,
           "a board with days has a first and a last one");
    if (!anyDay) {
      return;
    }
    const auto lastDay = std::find_if(m_cells.rbegin(), m_cells.rend(),
                                      [](const CCalendarItem* cell) { return IsDay(*cell); });
    Expect(DateOf(m_board.Built().content.first) == DateOf(*m_cells[m_firstDay]) &&
               DateOf(m_board.Built().content.last) == DateOf(**lastDay),
           "they are the first and the last day shown");
  }

  void CheckToday() const {
    int column = -1;
    for (const CCalendarItem* cell : m_cells) {
      column = IsDay(*cell) && DateOf(*cell) == m_request.today ? cell->GetColumn() : column;
    }
    Expect(
        m_board.Built().content.todayColumn == column && m_board.IsTodayInBoard() == (column != -1),
        "today is noted with its column");
  }

  void CheckVisibleColumns() const {
    int begin = 0;
    int end = 7;
    if (IsStrip()) {
      end = m_request.columns;
    } else if (m_request.mode == eDispMonthRollingWeeks && m_board.IsTodayInBoard()) {
      begin = std::min(std::max(m_board.Built().content.todayColumn - m_request.columns / 2, 0),
                       7 - m_request.columns);
      end = begin + m_request.columns;
    }
    std::vector<int> expected;
    for (int column = begin; column < end; ++column) {
      if (m_request.showBreakDays || !m_board.IsBreakDayOfWeek((m_request.start + column) % 7)) {
        expected.push_back(column);
      }
    }
    Expect(m_board.VisibleColumns() == expected, "the columns are visible that must be");
  }

  void CheckVisibleRows() const {
    std::vector<int> expected;
    for (std::size_t row = 0; row < std::min<std::size_t>(m_board.Rows().size(), 50); ++row) {
      bool keeps = false;
      for (const int column : m_board.VisibleColumns()) {
        const ECalendarItem type = m_board.Cell(row, static_cast<std::size_t>(column)).GetType();
        keeps = keeps || m_request.showBreakDays ||
                (type != eCalendarItemBlank && type != eCalendarItemBreakDay &&
                 type != eCalendarItemTodayBreakDay);
      }
      if (keeps) {
        expected.push_back(static_cast<int>(row));
      }
    }
    Expect(m_board.VisibleRows() == expected, "the rows are visible that must be");
  }

  void CheckShownBoard() const {
    const ShownBoard shown = Read(m_board);
    for (const tagWeekNumberSpan& span : shown.spans) {
      Expect(span.rows <= 3, "a span has one to three rows");
    }
    for (const char* broken :
         {FirstBroken(shown), BrokenHeadings(shown, m_request.mode, m_request.start)}) {
      Expect(broken == nullptr, broken);
    }
  }

  const Board& m_board;
  const Request& m_request;
  CCalendarWeekNumber& m_weeks;
  std::vector<const CCalendarItem*> m_cells;
  std::size_t m_firstDay;
};

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
  CCalendarWeekNumber weeks;
  for (Civil focus = kFirstDay; focus.year < 2100; focus = NextDay(focus)) {
    for (int start = 0; start <= 6; ++start) {
      const Request request = RequestFor(focus, mode, interval, direction, start);
      Build(board, request);
      try {
        Checker(board, request, weeks).CheckAll();
      } catch (const char* sentence) {
        FAIL() << "Does not hold: " << sentence << ". " << Text(request);
      }
    }
  }
}

}  // namespace

}  // namespace almara::test
