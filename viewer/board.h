// SPDX-License-Identifier: MIT
// A board as the engine reports it, read once after each build.
#pragma once

#include <almara/almara_types.h>

#include <optional>
#include <string>
#include <vector>

#include "civil_date.h"

namespace viewer {

struct Board {
  EDispMonth mode = eDispMonthRollingWeeks;
  std::vector<std::vector<tagCalendarCell>> rows;
  std::vector<ECalendarWeek> headings;
  std::vector<bool> breakColumns;  // in the week arrangements, whether the column is a break day
  std::vector<tagWeekNumberSpan> weekSpans;
  CCalendarSolarDate contentDate{};
  CCalendarSolarDate today{};
  bool todayOnBoard = false;
  std::string configKey;

  int columns() const { return static_cast<int>(headings.size()); }
};

// Whether the cell shows a day: not a blank, an empty position or part of a month interval.
bool showsDay(const tagCalendarCell& cell);
bool isToday(const tagCalendarCell& cell);
bool isBreakDay(const tagCalendarCell& cell);

// Whether the cell belongs to the band in front of a month: its title or one of its fillers.
bool isInterval(const tagCalendarCell& cell);

CivilDate dateOf(const tagCalendarCell& cell);
CivilDate dateOf(const CCalendarSolarDate& date);

// The shown days from the first row to the last.
std::vector<CivilDate> shownDays(const Board& board);

const tagCalendarCell* findDay(const Board& board, CivilDate date);

}  // namespace viewer
