// SPDX-License-Identifier: MIT
#include "board/calendar_item.h"

std::string CCalendarItem::GetDay() const {
  char text[kMaxDayLength];
  return {text, AppendDay(text)};
}

char* CCalendarItem::AppendDay(char* out) const {
  *out++ = '(';
  out = almara::AppendDecimal(out, m_type, 1);
  *out++ = ')';
  return almara::AppendDate(out, m_date.year, m_date.month, m_date.day);
}
