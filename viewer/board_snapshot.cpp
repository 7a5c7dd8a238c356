// SPDX-License-Identifier: MIT
#include "board_snapshot.h"

#include <algorithm>

namespace almara::viewer {

bool ShowsDay(const tagCalendarCell& cell) {
  return cell.type >= eCalendarItemDay && cell.type <= eCalendarItemTodayBreakDay;
}

bool IsToday(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemToday || cell.type == eCalendarItemTodayBreakDay;
}

bool IsBreakDay(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemBreakDay || cell.type == eCalendarItemTodayBreakDay;
}

bool IsInterval(const tagCalendarCell& cell) {
  // A blank with a date is a day of the month before, kept back; one without is a filler.
  return cell.type == eCalendarItemMonthTitle ||
         (cell.type == eCalendarItemBlank && cell.year == 0);
}

CivilDate DateOf(const tagCalendarCell& cell) { return {cell.year, cell.month, cell.day}; }

CivilDate DateOf(const CCalendarSolarDate& date) { return {date.year, date.month, date.day}; }

std::vector<CivilDate> ShownDays(const BoardSnapshot& board) {
  std::vector<CivilDate> days;
  for (const auto& row : board.rows) {
    for (const tagCalendarCell& cell : row) {
      if (ShowsDay(cell)) {
        days.push_back(DateOf(cell));
      }
    }
  }
  return days;
}

BoardSnapshot MonthAlone(BoardSnapshot board) {
  for (auto& row : board.rows) {
    for (tagCalendarCell& cell : row) {
      if (IsInterval(cell)) {
        cell.type = eCalendarItemEmpty;
      }
    }
  }
  const auto showsDay = [](const auto& row) {
    return std::any_of(row.begin(), row.end(), ShowsDay);
  };
  while (!board.rows.empty() && !showsDay(board.rows.back())) {
    board.rows.pop_back();
    if (!board.weekSpans.empty() && --board.weekSpans.back().rows == 0) {
      board.weekSpans.pop_back();
    }
  }
  return board;
}

const tagCalendarCell* FindDay(const BoardSnapshot& board, CivilDate date) {
  for (const auto& row : board.rows) {
    for (const tagCalendarCell& cell : row) {
      if (ShowsDay(cell) && DateOf(cell) == date) {
        return &cell;
      }
    }
  }
  return nullptr;
}

}  // namespace almara::viewer
