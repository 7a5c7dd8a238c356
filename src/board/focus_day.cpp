// SPDX-License-Identifier: MIT
#include "board/focus_day.h"

#include "date/gregorian.h"

namespace almara {

namespace {

bool IsSameDay(const CCalendarSolarDate& a, const CCalendarSolarDate& b) {
  return a.year == b.year && a.month == b.month && a.day == b.day;
}

}  // namespace

FocusDay FindFocusDay(const BoardRequest& request) {
  CCalendarSolarDate date = request.focus;
  const DayCounting counting = request.options.GetDayCounting();
  DayRun run(date.year, date.month, date.day, counting);
  run.DateAt(0, date);
  // MUTATE_EXCL: the run of the same day is the same.
  if (!IsSameDay(date, request.focus)) {
    run = DayRun(date.year, date.month, date.day, counting);
  }
  return {run, date, ColumnOfDayOfWeek(request.options.GetStartDayOfWeek(), date.dayOfWeek)};
}

int ColumnOfDayOfWeek(int startDayOfWeek, int dayOfWeek) {
  if (!IsDayOfWeek(dayOfWeek)) {
    return -1;
  }
  const int start = IsDayOfWeek(startDayOfWeek) ? startDayOfWeek : eCalendarWeekMonday;
  return (dayOfWeek - start + kDaysOfWeek) % kDaysOfWeek;
}

}  // namespace almara
