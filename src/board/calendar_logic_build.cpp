// SPDX-License-Identifier: MIT
#include "board/calendar_logic_build.h"

#include <utility>

#include "board/board_dump.h"
#include "board/focus_day.h"
#include "date/calendar_platform_api.h"

using almara::PageDirection;

std::mutex mtx;

void CCalendarLogicBuild::_BuildCalendar(int year, int month, int day, PageDirection direction) {
  if (year == 0 && month == 0 && day == 0) {
    _BuildToday();
    return;
  }
  const std::lock_guard<std::mutex> lock(mtx);
  _Build({*this, {year, month, day, 0}, almara::Today(), direction});
}

void CCalendarLogicBuild::_BuildToday() {
  const std::lock_guard<std::mutex> lock(mtx);
  const CCalendarSolarDate today = almara::Today();
  _Build({*this, today, today});
}

void CCalendarLogicBuild::_Build(const almara::BoardRequest& request) {
  m_board = almara::BuildBoard(request, std::exchange(m_board, {}).content, m_weekNumber);
  if (m_printBoard) {
    almara::WriteBoard(m_board.content.rows);
  }
}

int CCalendarLogicBuild::_BuildContent(int year, int month, int day,
                                       std::vector<tagCalendarRow>& rows, PageDirection direction) {
  if (!almara::IsBoardDate(year, month, day)) {
    return 0;
  }
  almara::BoardContent content = almara::BuildContent(
      {*this, {year, month, day, 0}, almara::Today(), direction}, m_weekNumber);
  rows = std::move(content.rows);
  content.rows = std::move(m_board.content.rows);  // the board's own, unless they were just filled
  m_board.content = std::move(content);
  return 1;
}

int CCalendarLogicBuild::_BuildContentOfToday(std::vector<tagCalendarRow>& rows) {
  const CCalendarSolarDate today = almara::Today();
  return _BuildContent(today.year, today.month, today.day, rows);
}

void CCalendarLogicBuild::_MakeDateListWithType(std::vector<CCalendarSolarDateEx>& source,
                                                std::vector<CCalendarSolarDateEx>& display,
                                                int before, int after,
                                                PageDirection direction) const {
  display =
      almara::MakeDisplayList({*this, m_board.content.focus, {}, direction}, source, before, after);
}

void CCalendarLogicBuild::_CalcRowColumnIndex() {
  m_board.visible = almara::ChooseVisiblePart(*this, m_board.content);
}

void CCalendarLogicBuild::_CalcRowSpanByWeekNumber() {
  m_board.spans = almara::JoinWeeks(*this, m_board.content.rows, m_board.visible);
}

int CCalendarLogicBuild::_PaintCalendarLog() const {
  almara::WriteBoard(m_board.content.rows);
  return 0;
}

int CCalendarLogicBuild::_GetMaxDaysOfSolarMonth(int year, int month) {
  return almara::DaysOfBoardMonth(year, month);
}

int CCalendarLogicBuild::_GetColumnIndexByDayOfWeek(int startDayOfWeek, int dayOfWeek) {
  return almara::ColumnOfDayOfWeek(startDayOfWeek, dayOfWeek);
}
