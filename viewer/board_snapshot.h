// SPDX-License-Identifier: MIT
// A board as the engine reports it, read once after each build.
#ifndef ALMARA_VIEWER_BOARD_SNAPSHOT_H_
#define ALMARA_VIEWER_BOARD_SNAPSHOT_H_

#include <almara/almara_types.h>

#include <string>
#include <vector>

#include "board_options.h"
#include "civil_date.h"

namespace almara::viewer {

struct BoardSnapshot {
  BoardOptions options;  // in force
  bool hideBreakDay = false;
  bool showBreakDayOfWeek = true;  // whether the board has their columns
  std::vector<std::vector<tagCalendarCell>> rows;
  std::vector<ECalendarWeek> headings;
  std::vector<bool> breakColumns;  // in the week arrangements, whether the column is a break day
  std::vector<tagWeekNumberSpan> weekSpans;
  CCalendarSolarDate contentDate{};
  CCalendarSolarDate today{};
  bool todayOnBoard = false;
  std::string configKey;

  int Columns() const { return static_cast<int>(headings.size()); }
};

// Whether the cell shows a day: not a blank, an empty position or part of a month interval.
bool ShowsDay(const tagCalendarCell& cell);
bool IsToday(const tagCalendarCell& cell);
bool IsBreakDay(const tagCalendarCell& cell);

// Whether the cell belongs to the band in front of a month: its title or one of its fillers.
bool IsInterval(const tagCalendarCell& cell);

CivilDate DateOf(const tagCalendarCell& cell);
CivilDate DateOf(const CCalendarSolarDate& date);

// The shown days from the first row to the last.
std::vector<CivilDate> ShownDays(const BoardSnapshot& board);

// The board of a whole month without the interval of the next month, nor rows that hold nothing
// else.
BoardSnapshot MonthAlone(BoardSnapshot board);

const tagCalendarCell* FindDay(const BoardSnapshot& board, CivilDate date);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_BOARD_SNAPSHOT_H_
