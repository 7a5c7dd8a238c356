// SPDX-License-Identifier: MIT
//
// The spans of the week-number column. A row whose cells all belong to one week is a span of its
// own; rows that a month interval has cut in two are put together again, so that each week has one
// box.
#include "board/calendar_logic_build.h"

namespace {

constexpr int kLongYearWeek = 53;

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

  // Ends the current row: closes the span or lets the next row add to it. lastWeek is the week
  // number of the row's last cell. A span never holds more than two rows, so it cannot have
  // collected more than a row's worth of undated cells beside a full row of one week.
  void EndRow(bool firstRow, bool lastRow, int lastWeek) {
    const bool oneWeek = m_span.weekNumber > 0 && m_span.secondWeekNumber == 0;
    if (oneWeek && m_span.firstWeekCells == m_visibleColumns) {
      Emit();
    } else if (m_span.weekNumber < 1) {
      EndOpenRow(firstRow, lastRow, lastWeek, false);
    } else if (m_span.secondWeekNumber < 1 || lastWeek < 1) {
      EndOpenRow(firstRow, lastRow, lastWeek, true);
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
  void EndOpenRow(bool firstRow, bool lastRow, int lastWeek, bool hasWeek) {
    const bool longYear = m_span.secondWeekNumber == kLongYearWeek;
    const bool mayStandAlone = firstRow || m_startDay == eCalendarWeekMonday;
    if (m_span.rows <= 1 && lastRow) {
      EndLastRow();
    } else if (m_span.rows > 1 || longYear || (hasWeek && lastWeek > 0 && mayStandAlone)) {
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

void CCalendarLogicBuild::_CalcRowSpanByWeekNumber() {
  m_weekNumberSpans.clear();
  WeekSpanBuilder builder(m_weekNumberSpans, GetWeekNumberCalcType() == eWeekNumberCalcIso8601,
                          GetStartDayOfWeek(), m_visibleColumnCount);
  for (int r = 0; r < m_visibleRowCount; ++r) {
    const auto& items = _VisibleRow(r).items;
    for (int c = 0; c < m_visibleColumnCount; ++c) {
      builder.AddCell(items[_VisibleColumn(c)].GetWeekNumber());
    }
    // The board column of this index, not the visible one; hosts rely on it.
    const auto lastColumn = static_cast<std::size_t>(m_visibleColumnCount - 1);
    builder.EndRow(r == 0, r == m_visibleRowCount - 1, items[lastColumn].GetWeekNumber());
  }
}
