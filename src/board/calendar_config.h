// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_CALENDAR_CONFIG_H_
#define ALMARA_BOARD_CALENDAR_CONFIG_H_

#include <almara/almara_types.h>

#include <array>
#include <cstddef>
#include <string>

#include "date/day_counting.h"
#include "date/gregorian.h"

// The options of the month board. A setting takes effect at the next build. Unless a setter says
// otherwise it stores whatever it is given.
class CCalendarConfig {
 public:
  EDispMonth GetDispMonth() const { return m_dispMonth; }
  void SetDispMonth(EDispMonth mode) { m_dispMonth = mode; }

  // Week rows of the rolling boards.
  int GetMaxRows() const { return m_maxRows; }
  void SetMaxRows(int rows) { m_maxRows = rows; }

  // Days of the day strip, and width of the visible range of rolling weeks that shows today. A
  // value outside 1 to 7 is ignored.
  int GetMaxColumns() const { return m_maxColumns; }
  void SetMaxColumns(int columns);  // Kept for code that compiles against this class.

  // Whole weeks before the week of the focus date on a board of rolling weeks.
  int GetPassedWeeks() const { return m_passedWeeks; }
  void SetPassedWeeks(int weeks) { m_passedWeeks = weeks; }

  // The day of the week in the first column. For a value outside 0 to 6 dates are laid out from
  // Monday, while headings and hidden break days count from the value as it is.
  ECalendarWeek GetStartDayOfWeek() const { return m_startDayOfWeek; }
  void SetStartDayOfWeek(ECalendarWeek day) { m_startDayOfWeek = day; }

  // The week number that is shown as week 1.
  int GetStartWeekNumber() const { return m_startWeekNumber; }
  void SetStartWeekNumber(int week) { m_startWeekNumber = week; }

  // Stored and reported only; no board reads it.
  bool IsHideBreakDay() const { return m_hideBreakDay; }
  void SetHideBreakDay(bool hide) { m_hideBreakDay = hide; }

  // Whether a month interval, seven cells, marks the beginning of a month.
  bool IsShowMonthInterval() const { return m_showMonthInterval; }
  void SetShowMonthInterval(bool show) { m_showMonthInterval = show; }

  // Break days of the week. A day outside 0 to 6 is none and cannot become one.
  bool IsBreakDayOfWeek(int day) const {
    return almara::IsDayOfWeek(day) && m_breakDayOfWeek[static_cast<std::size_t>(day)] == 1;
  }
  void SetBreakDayOfWeek(int day, bool on);

  // Whether the columns of break days, and rows left without content, are visible.
  bool IsShowBreakDayOfWeek() const { return m_showBreakDayOfWeek; }
  void SetShowBreakDayOfWeek(bool show) { m_showBreakDayOfWeek = show; }

  EWeekNumberCalc GetWeekNumberCalcType() const { return m_weekNumberCalcType; }
  void SetWeekNumberCalcType(EWeekNumberCalc type) { m_weekNumberCalcType = type; }

  // How days are counted. No part of the key.
  almara::DayCounting GetDayCounting() const { return m_dayCounting; }
  void SetDayCounting(almara::DayCounting counting) { m_dayCounting = counting; }

  // A text that holds every other option; "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1" for the defaults.
  // Hosts compare keys, so the order of its numbers is fixed: the rule for week numbers stands
  // between the two flags, and the break days run from Monday to Sunday.
  std::string GetConfigKey() const;

 private:
  EDispMonth m_dispMonth = eDispMonthRollingWeeks;
  int m_maxRows = 5;
  int m_maxColumns = almara::kDaysOfWeek;
  int m_passedWeeks = 1;
  ECalendarWeek m_startDayOfWeek = eCalendarWeekMonday;
  int m_startWeekNumber = 1;
  bool m_hideBreakDay = false;
  bool m_showMonthInterval = true;
  std::array<int, almara::kDaysOfWeek> m_breakDayOfWeek{1, 0, 0, 0, 0, 0, 1};  // by ECalendarWeek
  bool m_showBreakDayOfWeek = true;
  EWeekNumberCalc m_weekNumberCalcType = eWeekNumberCalcIso8601;
  almara::DayCounting m_dayCounting = almara::DayCounting::kLocalTime;
};

#endif  // ALMARA_BOARD_CALENDAR_CONFIG_H_
