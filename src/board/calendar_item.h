// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_CALENDAR_ITEM_H_
#define ALMARA_BOARD_CALENDAR_ITEM_H_

#include <almara/almara_types.h>

#include <string>

#include "date/decimal_text.h"

// One cell of the month board. A plain value; the setters check nothing.
class CCalendarItem {
 public:
  int GetRow() const { return m_row; }
  void SetRow(int row) { m_row = row; }

  int GetColumn() const { return m_column; }
  void SetColumn(int column) { m_column = column; }

  ECalendarItem GetType() const { return m_type; }
  void SetType(ECalendarItem type) { m_type = type; }

  int GetWeekNumber() const { return m_weekNumber; }
  void SetWeekNumber(int weekNumber) { m_weekNumber = weekNumber; }

  const CCalendarSolarDate& GetDate() const { return m_date; }

  // Takes over the date alone; week number, row, column and kind stay.
  void Copy(const CCalendarSolarDate& date) { m_date = date; }

  // Takes over all five fields.
  void Copy(const CCalendarItem& item) { *this = item; }

  // Longest text of AppendDay().
  static constexpr int kMaxDayLength = 4 * almara::kMaxDecimalLength + 4;

  // Writes the cell for logs to out, "(kind)year-month-day", without an end mark, and returns its
  // end: an ordinary 5 March 2024 is "(3)2024-03-05", a default cell "(1)0000-00-00". A negative
  // field is written with its sign.
  char* AppendDay(char* out) const;

  // The same text. Kept for code that compiles against this class.
  std::string GetDay() const;

 private:
  CCalendarSolarDate m_date{};  // the date shown; year 0 marks a cell without a day
  int m_weekNumber = -1;        // counted from the start week number; -1 for none
  int m_row = 0;                // from 0, on the whole board
  int m_column = 0;             // from 0, which is the start day of week
  ECalendarItem m_type = eCalendarItemEmpty;
};

#endif  // ALMARA_BOARD_CALENDAR_ITEM_H_
