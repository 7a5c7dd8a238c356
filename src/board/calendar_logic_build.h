// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_CALENDAR_LOGIC_BUILD_H_
#define ALMARA_BOARD_CALENDAR_LOGIC_BUILD_H_

#include <mutex>
#include <vector>

#include "board/board_request.h"
#include "board/build_board.h"
#include "board/calendar_config.h"
#include "board/calendar_week_number.h"
#include "date/gregorian.h"

// Held for the whole of every board build, so that two never run at once.
extern std::mutex mtx;

// The month board that was built last, by the options of the base class.
class CCalendarLogicBuild : public CCalendarConfig {
 public:
  // Builds the board of a date under mtx and writes it to the standard output. (0, 0, 0) builds
  // today's. A date outside 1900 to 2099, months 1 to 12 and days 1 to 31 keeps the rows of the
  // board before, from which the rest is worked out again. A day that the month lacks counts on
  // into the next. If an allocation fails, the exception leaves the board empty, as it is before
  // the first build.
  void _BuildCalendar(int year, int month, int day,
                      almara::PageDirection direction = almara::PageDirection::kNone);

  // Builds today's board in the same way, as a plain build.
  void _BuildToday();

  // Whether boards, and the date that an offset leads to, are written to the standard output; true
  // by default. No part of the options' key.
  void SetPrintBoard(bool print) { m_printBoard = print; }
  bool IsPrintBoard() const { return m_printBoard; }

  // Kept for code that compiles against this class.

  // Fills rows around the date. Returns 1, or 0 with nothing changed for a date out of range.
  int _BuildContent(int year, int month, int day, std::vector<tagCalendarRow>& rows,
                    almara::PageDirection direction = almara::PageDirection::kNone);

  // The same for today, as a plain build.
  int _BuildContentOfToday(std::vector<tagCalendarRow>& rows);

  // Puts the display list of source (almara::MakeDisplayList) into display, which is empty before.
  void _MakeDateListWithType(std::vector<CCalendarSolarDateEx>& source,
                             std::vector<CCalendarSolarDateEx>& display, int before, int after,
                             almara::PageDirection direction = almara::PageDirection::kNone) const;

  // Chooses the visible rows and columns.
  void _CalcRowColumnIndex();

  // Joins the visible rows into the spans of the week-number column.
  void _CalcRowSpanByWeekNumber();

  // Writes the board to the standard output. The result has no meaning.
  int _PaintCalendarLog() const;

  // Days of a month; -1 outside years 1900 to 2099 or months 1 to 12.
  static int _GetMaxDaysOfSolarMonth(int year, int month);

  // The column of a weekday (almara::ColumnOfDayOfWeek).
  static int _GetColumnIndexByDayOfWeek(int startDayOfWeek, int dayOfWeek);

 protected:
  // Kept for code that compiles against this class.
  static constexpr const int (&s_ArrDaysOfSolarMonth)[almara::kMonthsOfYear] =
      almara::kDaysOfCommonMonth;

  almara::BuiltBoard m_board;
  CCalendarWeekNumber m_weekNumber;  // keeps its answers from build to build
  bool m_printBoard = true;

 private:
  // Under mtx.
  void _Build(const almara::BoardRequest& request);
};

#endif  // ALMARA_BOARD_CALENDAR_LOGIC_BUILD_H_
