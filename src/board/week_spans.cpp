// SPDX-License-Identifier: MIT
#include "board/week_spans.h"

#include <cstddef>

namespace almara {

namespace {

constexpr int kLongYearWeek = 53;

// The end of a visible row.
struct RowEnd {
  bool isFirst;  // of the visible rows
  bool isLast;
  int lastWeek;  // week number of the row's last cell
};

class WeekSpanBuilder {
 public:
  WeekSpanBuilder(std::vector<tagCalendarWeekSpan>& spans, bool isoWeeks, ECalendarWeek startDay,
                  int visibleColumns)
      : m_spans(spans),
        m_isoWeeks(isoWeeks),
        m_startDay(startDay),
        m_visibleColumns(visibleColumns) {}

  // Counts one visible cell of the current row.
  void AddCell(int week) {
    if (week < 1) {
      ++m_span.cellsWithoutWeek;
      return;
    }
    if (m_span.weekNumber == 0) {
      m_span.weekNumber = week;
    } else if (m_span.weekNumber != week && m_span.secondWeekNumber == 0) {
      m_span.secondWeekNumber = week;
    }
    if (week == m_span.weekNumber) {
      ++m_span.firstWeekCells;
    } else if (week == m_span.secondWeekNumber) {
      ++m_span.secondWeekCells;
    }
  }

  // Closes the span or lets the next row add to it. A span never holds more than two rows, so it
  // cannot have collected more than a row's worth of undated cells beside a full row of one week.
  void EndRow(const RowEnd& end) {
    if (m_span.secondWeekNumber == 0 && m_span.firstWeekCells == m_visibleColumns) {
      Emit();
    } else if (m_span.secondWeekNumber < 1 || end.lastWeek < 1) {
      EndOpenRow(end);
    } else {
      EndRowOfTwoWeeks();
    }
  }

 private:
  // Two weeks that reach the last cell. Where the second is week 1, a span of several rows is
  // divided, the last year's part as it was counted; in one row the new year's week wins.
  void EndRowOfTwoWeeks() {
    if (m_span.secondWeekNumber == 1) {
      if (m_span.rows != 1) {
        tagCalendarWeekSpan lastYear = m_span;
        lastYear.secondWeekNumber = 0;
        lastYear.rows = 1;
        m_spans.push_back(lastYear);
        m_span.rows = 1;
        m_span.secondWeekNumber = 0;
      }
      m_span.weekNumber = 1;
    }
    Emit();
  }

  // A row that may go on in the next one.
  void EndOpenRow(const RowEnd& end) {
    const bool longYear = m_span.secondWeekNumber == kLongYearWeek;
    const bool endsWithWeek = m_span.weekNumber > 0 && end.lastWeek > 0;
    const bool mayStandAlone = end.isFirst || m_startDay == eCalendarWeekMonday;
    if (m_span.rows <= 1 && end.isLast) {
      EndLastRow();
    } else if (m_span.rows > 1 || longYear || (endsWithWeek && mayStandAlone)) {
      Emit();
    } else {
      ++m_span.rows;
    }
  }

  // A last row without any week number belongs to the span above.
  void EndLastRow() {
    if (m_span.weekNumber == 0 && !m_spans.empty()) {
      ++m_spans.back().rows;
    } else {
      Emit();
    }
  }

  // Closes the span. Under ISO weeks on a board that starts on Sunday, a single leading Sunday of
  // the week before gives way to the week of the rest of the row.
  void Emit() {
    if (m_isoWeeks && m_startDay == eCalendarWeekSunday && m_span.firstWeekCells == 1 &&
        m_span.secondWeekNumber >= 1) {
      m_span.weekNumber = m_span.secondWeekNumber;
      m_span.secondWeekNumber = 0;
    }
    m_spans.push_back(m_span);
    m_span = kEmptySpan;
  }

  static constexpr tagCalendarWeekSpan kEmptySpan{0, 0, 0, 0, 0, 1};

  std::vector<tagCalendarWeekSpan>& m_spans;
  const bool m_isoWeeks;
  const ECalendarWeek m_startDay;
  const int m_visibleColumns;
  tagCalendarWeekSpan m_span = kEmptySpan;  // the span under construction
};

}  // namespace

std::vector<tagCalendarWeekSpan> JoinWeeks(const CCalendarConfig& options,
                                           const std::vector<tagCalendarRow>& rows,
                                           const VisiblePart& visible) {
  std::vector<tagCalendarWeekSpan> spans;
  spans.reserve(static_cast<std::size_t>(visible.rowCount));
  WeekSpanBuilder builder(spans, options.GetWeekNumberCalcType() == eWeekNumberCalcIso8601,
                          options.GetStartDayOfWeek(), visible.columnCount);
  for (int r = 0; r < visible.rowCount; ++r) {
    const auto& items = rows[visible.RowAt(r)].items;
    for (int c = 0; c < visible.columnCount; ++c) {
      builder.AddCell(items[visible.ColumnAt(c)].GetWeekNumber());
    }
    // The last cell is that of the board column with this index, not of the last visible column.
    const auto lastColumn = static_cast<std::size_t>(visible.columnCount - 1);
    builder.EndRow({r == 0, r == visible.rowCount - 1, items[lastColumn].GetWeekNumber()});
  }
  return spans;
}

}  // namespace almara
