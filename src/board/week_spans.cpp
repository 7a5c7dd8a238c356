// SPDX-License-Identifier: MIT
#include "board/week_spans.h"

#include <cstddef>

namespace almara {

namespace {

constexpr int kLongYearWeek = 53;

// The end of a visible row.
struct RowEnd {
  bool isFirst;       // of the visible rows
  bool isLast;        // of the visible rows
  bool endsWithWeek;  // as JoinWeeks says
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

  // The cases of JoinWeeks, in their order.
  void EndRow(const RowEnd& end) {
    if (m_span.secondWeekNumber != 0 && end.endsWithWeek) {
      EndRowOfTwoWeeks();
    } else if (end.isLast && m_span.rows == 1 && m_span.weekNumber == 0 && !m_spans.empty()) {
      ++m_spans.back().rows;
    } else if (!end.isLast && m_span.rows == 1 && MayGoOn(end)) {
      ++m_span.rows;
    } else {
      Emit();
    }
  }

 private:
  // The last year's part of a divided span is written as it was counted.
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

  // Whether weeks of the span's first row can follow in the next one.
  bool MayGoOn(const RowEnd& end) const {
    const bool wholeWeek = m_span.firstWeekCells == m_visibleColumns;
    const bool longYear = m_span.secondWeekNumber == kLongYearWeek;
    const bool endsWithWeek = m_span.weekNumber != 0 && end.endsWithWeek;
    const bool mayStandAlone = end.isFirst || m_startDay == eCalendarWeekMonday;
    return !wholeWeek && !longYear && !(endsWithWeek && mayStandAlone);
  }

  // Closes the span. A single Sunday gives way to the week of the rest of the row.
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
    const auto lastColumn = static_cast<std::size_t>(visible.columnCount - 1);
    builder.EndRow({r == 0, r == visible.rowCount - 1, items[lastColumn].GetWeekNumber() > 0});
  }
  return spans;
}

}  // namespace almara
