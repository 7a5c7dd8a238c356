// SPDX-License-Identifier: MIT
#include "board/calendar_logic_build.h"

#include "date/calendar_platform_api.h"

std::mutex mtx;

void CCalendarLogicBuild::_BuildCalendar(int year, int month, int day) {
  const std::lock_guard<std::mutex> lock(mtx);
  if (year == 0 && month == 0 && day == 0) {
    m_pageDirection = ePageDirectionNone;
    int week = 0;
    CalendarPlatformApi::GetTodayDate(year, month, day, week);
  }
  try {
    _BuildContent(year, month, day, m_rows);
    _CalcRowColumnIndex();
    _CalcRowSpanByWeekNumber();
  } catch (...) {
    _ClearBoard();
    throw;
  }
  _PaintCalendarLog();
}

void CCalendarLogicBuild::_ClearBoard() {
  m_rows.clear();
  m_weekNumberSpans.clear();
  m_visibleRowCount = 0;
  m_visibleColumnCount = 0;
  m_focusYear = 0;
  m_focusMonth = 0;
  m_focusDay = 0;
  _ClearDateItems();
}

void CCalendarLogicBuild::_ClearDateItems() {
  m_firstDateItem = {};
  m_lastDateItem = {};
  m_todayOnBoard = false;
  m_todayColumn = -1;
}

int CCalendarLogicBuild::_BuildContentOfToday(std::vector<tagCalendarRow>& rows) {
  m_pageDirection = ePageDirectionNone;
  int year = 0;
  int month = 0;
  int day = 0;
  int week = 0;
  CalendarPlatformApi::GetTodayDate(year, month, day, week);
  return _BuildContent(year, month, day, rows);
}

int CCalendarLogicBuild::_GetColumnIndexByDayOfWeek(int startDayOfWeek, int dayOfWeek) {
  if (!almara::IsDayOfWeek(dayOfWeek)) {
    return -1;
  }
  const int start = almara::IsDayOfWeek(startDayOfWeek) ? startDayOfWeek : eCalendarWeekMonday;
  return (dayOfWeek - start + almara::kDaysOfWeek) % almara::kDaysOfWeek;
}
