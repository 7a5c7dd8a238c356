// SPDX-License-Identifier: MIT
#include "navigator.h"

#include <algorithm>
#include <cstdlib>

#include "board_host.h"

namespace almara::viewer {
namespace {

bool PagesByMonth(EDispMonth mode) {
  return mode == eDispMonthRollingTail || mode == eDispMonthWholeMonth;
}

// Whether the day would follow the shown ones: on a board of few rows a month interval can take the
// place of the day that the board was built for.
bool MonthIntervalHides(const BoardSnapshot& board, CivilDate date) {
  const std::vector<CivilDate> days = ShownDays(board);
  return !days.empty() && days.back() < date;
}

}  // namespace

Navigator::Navigator(const BoardOptions& options) : m_options(options) {
  Read();
  SelectNearest(DateOf(m_board.contentDate));
}

void Navigator::MoveDays(int direction) {
  const std::vector<CivilDate> days = ShownDays(m_board);
  const auto at = std::find(days.begin(), days.end(), m_selected);
  if (at == days.end()) {
    return;
  }
  if (direction > 0 ? at + 1 != days.end() : at != days.begin()) {
    m_selected = *(at + direction);
    return;
  }
  const CivilDate target = AddDays(m_selected, direction);
  if (TurnPage(direction)) {
    SelectNearest(target);
  }
}

void Navigator::MoveWeeks(int direction) {
  const CivilDate target = AddDays(m_selected, 7 * direction);
  if (FindDay(m_board, target) != nullptr || TurnPage(direction)) {
    SelectNearest(target);
  }
}

bool Navigator::Page(int direction) {
  const std::vector<CivilDate> before = ShownDays(m_board);
  if (!TurnPage(direction)) {
    return false;
  }
  const std::vector<CivilDate> after = ShownDays(m_board);
  if (PagesByMonth(m_options.mode)) {
    SelectNearest(AddMonths(m_selected, direction));
  } else if (!before.empty() && !after.empty()) {
    SelectNearest(AddDays(m_selected, DayNumber(after.front()) - DayNumber(before.front())));
  }
  return true;
}

void Navigator::MoveYears(int years) { Select(AddMonths(m_selected, 12 * years)); }

void Navigator::GoToFirstOfMonth() { Select({m_selected.year, m_selected.month, 1}); }

void Navigator::GoToLastOfMonth() {
  const int lastDay = DaysInMonth(m_selected.year, m_selected.month);
  Select({m_selected.year, m_selected.month, lastDay});
}

bool Navigator::GoToToday() {
  const CivilDate today = DateOf(m_board.today);
  if (!IsInCalendar(today)) {
    return false;
  }
  GoTo(today);
  return true;
}

void Navigator::GoTo(CivilDate date) {
  m_selected = date;
  Rebuild();
}

void Navigator::Select(CivilDate date) {
  if (FindDay(m_board, date) != nullptr) {
    m_selected = date;
  } else {
    GoTo(date);
  }
}

void Navigator::NextMode() {
  m_options.mode =
      m_options.mode == eDispMonthDayStrip ? eDispMonthRollingWeeks : m_options.mode + 1;
  Rebuild();
}

void Navigator::ToggleBreakDays() {
  m_options.hideBreakDays = !m_options.hideBreakDays;
  Rebuild();
}

void Navigator::ToggleIntervals() {
  m_options.monthIntervals = !m_options.monthIntervals;
  Rebuild();
}

void Navigator::NextFirstDay() {
  m_options.firstDay = (m_options.firstDay + 1) % 7;
  Rebuild();
}

bool Navigator::ChangeRows(int difference) {
  const int rows = m_options.rows + difference;
  if (!HasRows(m_options.mode) || rows < 1 || rows > kMostRows) {
    return false;
  }
  m_options.rows = rows;
  m_options.passedWeeks = std::min(m_options.passedWeeks, rows - 1);
  Rebuild();
  return true;
}

bool Navigator::RefreshToday() {
  if (ReadToday() == DateOf(m_board.today)) {
    return false;
  }
  Rebuild();
  return true;
}

void Navigator::Read() { m_board = ReadBoard(m_options); }

void Navigator::Rebuild() {
  ApplyOptions(m_options);
  ShowDate(m_options, m_selected);
  Read();
  if (FindDay(m_board, m_selected) == nullptr && MonthIntervalHides(m_board, m_selected)) {
    TurnPage(1);
  }
  SelectNearest(m_selected);
}

bool Navigator::TurnPage(int direction) {
  const std::vector<CivilDate> before = ShownDays(m_board);
  TakeStep({direction > 0 ? Step::Kind::kNext : Step::Kind::kPrevious, 0});
  Read();
  return ShownDays(m_board) != before;
}

void Navigator::SelectNearest(CivilDate date) {
  const std::vector<CivilDate> days = ShownDays(m_board);
  const auto nearest = std::min_element(days.begin(), days.end(), [date](CivilDate a, CivilDate b) {
    return std::abs(DayNumber(a) - DayNumber(date)) < std::abs(DayNumber(b) - DayNumber(date));
  });
  m_selected = nearest == days.end() ? date : *nearest;
}

}  // namespace almara::viewer
