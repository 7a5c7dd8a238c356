// SPDX-License-Identifier: MIT
//
// What holds for what is shown of every board, whoever reads it and whatever the options.
#ifndef ALMARA_TESTS_SUPPORT_BOARD_INVARIANTS_H_
#define ALMARA_TESTS_SUPPORT_BOARD_INVARIANTS_H_

#include <almara/almara.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "support/civil.h"

namespace almara::test {

constexpr std::int32_t kDaysInRow = 7;
constexpr std::int32_t kMaxVisibleRows = 50;

inline bool IsDay(const tagCalendarCell& cell) {
  return cell.type >= eCalendarItemDay && cell.type <= eCalendarItemTodayBreakDay;
}

inline bool IsToday(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemToday || cell.type == eCalendarItemTodayBreakDay;
}

inline bool IsBreakDay(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemBreakDay || cell.type == eCalendarItemTodayBreakDay;
}

inline int DayNumber(const tagCalendarCell& day) {
  return DayNumber(Civil{day.year, day.month, day.day});
}

// The visible part of a board.
struct ShownBoard {
  std::int32_t rows = 0;
  std::int32_t columns = 0;
  std::vector<tagCalendarCell> cells;  // row by row
  std::vector<tagWeekNumberSpan> spans;
  std::vector<ECalendarWeek> headings;  // of the columns
  CCalendarSolarDate focus{};
  bool hasToday = false;

  const tagCalendarCell& Cell(std::int32_t row, std::int32_t column) const {
    return cells[static_cast<std::size_t>(row * columns + column)];
  }
};

template <typename Record>
bool SameBytes(const Record& a, const Record& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

// Whether two boards show the same. Their headings follow the options, which may have changed.
inline bool IsSameBoard(const ShownBoard& a, const ShownBoard& b) {
  return a.rows == b.rows && a.columns == b.columns && a.hasToday == b.hasToday &&
         SameBytes(a.focus, b.focus) &&
         std::equal(a.cells.begin(), a.cells.end(), b.cells.begin(), b.cells.end(),
                    SameBytes<tagCalendarCell>) &&
         std::equal(a.spans.begin(), a.spans.end(), b.spans.begin(), b.spans.end(),
                    SameBytes<tagWeekNumberSpan>);
}

// Each of the following returns the first sentence that does not hold, or nullptr.

inline const char* BrokenPlace(const ShownBoard& board, std::int32_t row, std::int32_t column) {
  const tagCalendarCell& cell = board.Cell(row, column);
  const bool inside = cell.row >= row && cell.column >= column && cell.column < kDaysInRow;
  if (!inside ||
      (column > 0 && (cell.column <= board.Cell(row, column - 1).column ||
                      cell.row != board.Cell(row, column - 1).row)) ||
      (row > 0 && (cell.row <= board.Cell(row - 1, column).row ||
                   cell.column != board.Cell(row - 1, column).column))) {
    return "cells stand in ascending rows and columns of the board";
  }
  return nullptr;
}

inline const char* BrokenCell(const tagCalendarCell& cell) {
  if (cell.type < eCalendarItemEmpty || cell.type > eCalendarItemMonthTitle) {
    return "a cell has one of the seven kinds";
  }
  if (cell.type == eCalendarItemEmpty && (cell.year != 0 || cell.month != 0 || cell.day != 0)) {
    return "an empty cell has no date";
  }
  if (cell.type == eCalendarItemMonthTitle &&
      (cell.year != 0 || cell.month < 1 || cell.month > 12 || cell.day != 1)) {
    return "a title has a month, no year, and day 1";
  }
  if (!IsDay(cell)) {
    return cell.dayOfWeek == 0 ? nullptr : "what is no day has no day of the week";
  }
  if (cell.month < 1 || cell.month > 12 || cell.day < 1 ||
      cell.day > DaysOfMonth(cell.year, cell.month)) {
    return "a day is a date that exists";
  }
  return cell.dayOfWeek == DayOfWeek({cell.year, cell.month, cell.day})
             ? nullptr
             : "a day has its day of the week";
}

// Days are counted from the focus date in seconds of 32 bits, which wrap after 24855 days. Between
// two days shown there, hidden columns may leave out the days around the wrap.
constexpr int kReachInDays = 24855 - 2 * kDaysInRow;

inline bool IsWithinReach(const tagCalendarCell& day, const CCalendarSolarDate& focus) {
  const int days = DayNumber(day) - DayNumber(Civil{focus.year, focus.month, focus.day});
  return days > -kReachInDays && days < kReachInDays;
}

// From one day shown to the next, places are passed as days go by; month intervals take whole rows.
inline const char* BrokenRun(const tagCalendarCell& before, const tagCalendarCell& day,
                             const CCalendarSolarDate& focus) {
  if (!IsWithinReach(before, focus) || !IsWithinReach(day, focus)) {
    return nullptr;
  }
  const int places = kDaysInRow * (day.row - before.row) + day.column - before.column;
  const int days = DayNumber(day) - DayNumber(before);
  const bool oneAfterTheOther =
      day.row == before.row ? days == places
                            : days > 0 && days <= places && (places - days) % kDaysInRow == 0;
  return oneAfterTheOther ? nullptr : "days follow each other";
}

inline const char* BrokenSpans(const ShownBoard& board) {
  std::int32_t rows = 0;
  for (const tagWeekNumberSpan& span : board.spans) {
    if (span.rows < 1 || span.weekNumber < 0 || span.secondWeekNumber < 0) {
      return "a span has rows and week numbers";
    }
    rows += span.rows;
  }
  return rows == board.rows ? nullptr : "the rows of the spans are the visible rows";
}

inline const char* FirstBroken(const ShownBoard& board) {
  if (board.rows < 0 || board.rows > kMaxVisibleRows || board.columns < 0 ||
      board.columns > kDaysInRow ||
      board.cells.size() != static_cast<std::size_t>(board.rows * board.columns)) {
    return "at most 50 rows and 7 columns are visible";
  }
  const tagCalendarCell* dayBefore = nullptr;
  for (std::int32_t row = 0; row < board.rows; ++row) {
    for (std::int32_t column = 0; column < board.columns; ++column) {
      const tagCalendarCell& cell = board.Cell(row, column);
      const char* broken = BrokenPlace(board, row, column);
      broken = broken != nullptr ? broken : BrokenCell(cell);
      if (broken == nullptr && IsDay(cell)) {
        broken = dayBefore != nullptr ? BrokenRun(*dayBefore, cell, board.focus) : nullptr;
        dayBefore = &cell;
      }
      if (broken != nullptr) {
        return broken;
      }
      if (IsToday(cell) && !board.hasToday) {
        return "a board that shows today has it";
      }
    }
  }
  return BrokenSpans(board);
}

// The headings of the columns, under the arrangement and the first day of the week in force at the
// build.
inline const char* BrokenHeadings(const ShownBoard& board, EDispMonth mode, ECalendarWeek start) {
  for (std::int32_t column = 0; column < board.columns && board.rows > 0; ++column) {
    const tagCalendarCell& cell = board.Cell(0, column);
    const std::uint32_t sum =
        static_cast<std::uint32_t>(start) + static_cast<std::uint32_t>(cell.column);
    const std::int32_t expected =
        mode == eDispMonthDayStrip ? cell.dayOfWeek : static_cast<std::int32_t>(sum) % kDaysInRow;
    if (board.headings[static_cast<std::size_t>(column)] != expected) {
      return "a heading is the day of the week of its column";
    }
  }
  return nullptr;
}

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_BOARD_INVARIANTS_H_
