// SPDX-License-Identifier: MIT
#include "board.h"

namespace viewer {

bool showsDay(const tagCalendarCell& cell) {
  return cell.type >= eCalendarItemDay && cell.type <= eCalendarItemTodayBreakDay;
}

bool isToday(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemToday || cell.type == eCalendarItemTodayBreakDay;
}

bool isBreakDay(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemBreakDay || cell.type == eCalendarItemTodayBreakDay;
}

bool isInterval(const tagCalendarCell& cell) {
  // A blank with a date is a day of the month before, kept back; one without is a filler.
  return cell.type == eCalendarItemMonthTitle ||
         (cell.type == eCalendarItemBlank && cell.year == 0);
}

CivilDate dateOf(const tagCalendarCell& cell) { return {cell.year, cell.month, cell.day}; }

CivilDate dateOf(const CCalendarSolarDate& date) { return {date.year, date.month, date.day}; }

std::vector<CivilDate> shownDays(const Board& board) {
  std::vector<CivilDate> days;
  for (const auto& row : board.rows) {
    for (const tagCalendarCell& cell : row) {
      if (showsDay(cell)) {
        days.push_back(dateOf(cell));
      }
    }
  }
  return days;
}

const tagCalendarCell* findDay(const Board& board, CivilDate date) {
  for (const auto& row : board.rows) {
    for (const tagCalendarCell& cell : row) {
      if (showsDay(cell) && dateOf(cell) == date) {
        return &cell;
      }
    }
  }
  return nullptr;
}

}  // namespace viewer
