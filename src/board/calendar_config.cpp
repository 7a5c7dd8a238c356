// SPDX-License-Identifier: MIT
#include "board/calendar_config.h"

#include <cstddef>
#include <cstdio>

void CCalendarConfig::SetMaxColumns(int columns) {
  if (columns >= 1 && columns <= almara::kDaysOfWeek) {
    m_maxColumns = columns;
  }
}

void CCalendarConfig::SetBreakDayOfWeek(int day, bool on) {
  if (almara::IsDayOfWeek(day)) {
    m_breakDayOfWeek[static_cast<std::size_t>(day)] = on ? 1 : 0;
  }
}

std::string CCalendarConfig::GetConfigKey() const {
  const auto& breakDay = m_breakDayOfWeek;
  // MUTATE_EXCL: more room does no harm.
  char key[256];
  std::snprintf(key, sizeof key, "%d-%d-%d-%d-%d-%d-%d-%d-%d-(%d-%d-%d-%d-%d-%d-%d)-%d",
                m_dispMonth, m_maxRows, m_maxColumns, m_passedWeeks, m_startDayOfWeek,
                m_startWeekNumber, static_cast<int>(m_hideBreakDay), m_weekNumberCalcType,
                static_cast<int>(m_showMonthInterval), breakDay[eCalendarWeekMonday],
                breakDay[eCalendarWeekTuesday], breakDay[eCalendarWeekWednesday],
                breakDay[eCalendarWeekThursday], breakDay[eCalendarWeekFriday],
                breakDay[eCalendarWeekSaturday], breakDay[eCalendarWeekSunday],
                static_cast<int>(m_showBreakDayOfWeek));
  return key;
}
