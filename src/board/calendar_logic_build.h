// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_CALENDAR_LOGIC_BUILD_H_
#define ALMARA_BOARD_CALENDAR_LOGIC_BUILD_H_

#include <almara/almara_types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

#include "board/calendar_config.h"
#include "board/calendar_item.h"
#include "board/calendar_week_number.h"
#include "board/display_date_list.h"
#include "date/day_run.h"

// Held for the whole of every board build, so that two never run at once.
extern std::mutex mtx;

// Where the focus date stands on a board that is reached by paging.
enum EPageDirection {
  ePageDirectionNone = 0,      // a plain build
  ePageDirectionBackward = 1,  // the focus date ends the board
  ePageDirectionForward = 2    // the focus date opens the board
};

// One row of the board.
struct tagCalendarRow {
  int weekNumber = 0;  // of the last cell that has one; a row without any repeats the row before
  std::array<CCalendarItem, almara::kDaysOfWeek> items;
};

// Consecutive visible rows that share one box in the week-number column.
struct tagCalendarWeekSpan {
  std::int32_t weekNumber;        // shown for the span, 0 when it has none
  std::int32_t firstWeekCells;    // visible cells of that week
  std::int32_t secondWeekNumber;  // a different week met in the span, or 0
  std::int32_t secondWeekCells;   // visible cells of the second week
  std::int32_t cellsWithoutWeek;  // visible cells whose week number is below 1
  std::int32_t rows;              // visible rows of the span, at least 1
};

// Builds the month board around a focus date, by the options of its base class.
class CCalendarLogicBuild : public CCalendarConfig {
 public:
  // Builds the whole board under mtx: content, visible rows and columns, week-number spans, and the
  // text on the standard output. (0, 0, 0) builds today's board and resets the page direction. A
  // date outside 1900 to 2099, months 1 to 12 and days 1 to 31 keeps the rows of the board before,
  // from which the rest is worked out again. A day that the month lacks counts on into the next. If
  // an allocation fails, the exception leaves the board empty, as it is before the first build.
  void _BuildCalendar(int year, int month, int day);

  // Fills rows around the date. Returns 1, or 0 with nothing changed for a date out of range.
  int _BuildContent(int year, int month, int day, std::vector<tagCalendarRow>& rows);

  // The same for today, as a plain build.
  int _BuildContentOfToday(std::vector<tagCalendarRow>& rows);

  // Days of a month; -1 outside years 1900 to 2099 or months 1 to 12.
  static int _GetMaxDaysOfSolarMonth(int year, int month);

  // Appends source to display with a band of seven cells in front of each month that begins inside
  // it; then, on a board reached by paging, cuts the whole rows that the bands pushed out again.
  // before and after are the days that were listed on the two sides of the focus date.
  void _MakeDateListWithType(std::vector<CCalendarSolarDateEx>& source,
                             std::vector<CCalendarSolarDateEx>& display, int before,
                             int after) const;

  // Chooses the visible rows (50 at the most) and columns.
  void _CalcRowColumnIndex();

  // Groups the visible rows into the spans of the week-number column.
  void _CalcRowSpanByWeekNumber();

  // Writes every row of the board to the standard output, visible or not. The result has no
  // meaning.
  int _PaintCalendarLog() const;

  // The column of a weekday on a board that starts with startDayOfWeek (outside 0 to 6: Monday); -1
  // for a day of week outside 0 to 6.
  static int _GetColumnIndexByDayOfWeek(int startDayOfWeek, int dayOfWeek);

 protected:
  static constexpr int kMaxVisibleRows = 50;
  static constexpr int s_ArrDaysOfSolarMonth[12] = {31, 28, 31, 30, 31, 30,
                                                    31, 31, 30, 31, 30, 31};  // common year

  // The board row and the board column at a visible index within its count.
  const tagCalendarRow& _VisibleRow(int index) const {
    return m_rows[static_cast<std::size_t>(m_visibleRows[static_cast<std::size_t>(index)])];
  }
  std::size_t _VisibleColumn(int index) const {
    return static_cast<std::size_t>(m_visibleColumns[static_cast<std::size_t>(index)]);
  }

  // Days of a month 1 to 12 of any year.
  static int _DaysOfSolarMonth(int year, int month);

  int m_visibleRowCount = 0;
  std::array<int, kMaxVisibleRows> m_visibleRows{};  // indices of m_rows, ascending
  int m_visibleColumnCount = 0;
  std::array<int, almara::kDaysOfWeek> m_visibleColumns{};  // board columns, ascending
  int m_pageDirection = ePageDirectionNone;                 // stays in force until it is set again
  CCalendarItem m_firstDateItem;                            // first cell that shows a day
  CCalendarItem m_lastDateItem;                             // last such cell
  std::vector<tagCalendarRow> m_rows;
  std::vector<tagCalendarWeekSpan> m_weekNumberSpans;
  int m_focusYear = 0;  // the date last accepted, as it was passed, not normalised
  int m_focusMonth = 0;
  int m_focusDay = 0;
  bool m_todayOnBoard = false;
  int m_todayColumn = -1;
  CCalendarWeekNumber m_weekNumber;

 private:
  // How many days a board lists on each side of its focus date.
  struct DayCounts {
    int before;    // days before the focus date
    int after;     // days behind it
    int lead;      // padding days in front of those before
    int trail;     // padding days behind those after
    int hintRows;  // rows of the month with rolling tail
  };

  DayCounts _CountDays(const CCalendarSolarDate& focus, int column) const;
  DayCounts _CountDaysOfWholeMonth(const CCalendarSolarDate& focus, int column) const;
  DayCounts _CountDaysOfStrip() const;
  DayCounts _CountDaysOfRollingWeeks(int column) const;
  DayCounts _CountDaysOfRollingTail(const CCalendarSolarDate& focus, int column) const;
  DayCounts _CountDaysOfPage(int column) const;
  int _CountRows(const CCalendarSolarDate& focus, const DayCounts& counts) const;

  std::size_t _CountListedDays(int rowCount) const;

  std::vector<CCalendarSolarDateEx> _MakeSourceDateList(const almara::DayRun& run,
                                                        const CCalendarSolarDate& focus,
                                                        const DayCounts& counts,
                                                        std::size_t listedDays) const;
  bool _NeedsMonthInterval(const CCalendarSolarDateEx& entry, std::size_t displayed,
                           bool dayBefore) const;
  void _TrimPagedDateList(std::vector<CCalendarSolarDateEx>& display, int added, int before,
                          int after) const;

  void _FillRows(const std::vector<CCalendarSolarDateEx>& display, int rowCount,
                 const CCalendarSolarDate& today, std::vector<tagCalendarRow>& rows);
  void _FillCell(const CCalendarSolarDateEx& entry, const CCalendarSolarDate& today,
                 CCalendarItem& item);
  int _GetShownWeekNumber(const CCalendarSolarDate& date, int todayYear);

  void _ClearBoard();
  void _ClearDateItems();

  void _CalcVisibleColumns();
  void _CalcVisibleRows();
  bool _HasContent(const tagCalendarRow& row) const;
};

#endif  // ALMARA_BOARD_CALENDAR_LOGIC_BUILD_H_
