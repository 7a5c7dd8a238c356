// SPDX-License-Identifier: MIT
#include "compact_board.h"

#include <string>

#include "board_parts.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kDayWidth = 2;
constexpr int kPitch = kDayWidth + 1;  // a day and the mark after it
constexpr int kWeekNumberWidth = 2;

using Row = std::vector<tagCalendarCell>;

class CompactPainter {
 public:
  CompactPainter(const BoardSnapshot& board, const CompactSettings& compact,
                 const PaintSettings& settings)
      : m_board(board),
        m_compact(compact),
        m_settings(settings),
        m_texts(*settings.texts),
        m_glyphs(*settings.glyphs),
        m_columns(board.Columns()),
        m_lead(compact.weekNumbers || compact.width >= kPitch * m_columns + 1) {}

  PaintedBoard Paint() const {
    PaintedBoard painted;
    painted.headings = Headings();
    const std::vector<std::string> weeks = WeekTexts();
    for (std::size_t row = 0; row < m_board.rows.size(); ++row) {
      Line line = RowLine(m_board.rows[row]);
      if (m_compact.weekNumbers) {
        line.insert(line.begin(), {weeks[row], Role::kWeekNumber});
      }
      painted.rows.push_back({Trimmed(line)});
    }
    return painted;
  }

 private:
  Line Headings() const {
    Line line = {{Repeat(" ", (m_compact.weekNumbers ? kWeekNumberWidth : 0) + (m_lead ? 1 : 0))}};
    for (std::size_t column = 0; column < m_board.headings.size(); ++column) {
      const char* name = NarrowWeekday(m_texts, m_board.headings[column]);
      line.push_back({Fit(name, kDayWidth, "", Align::kRight),
                      m_board.breakColumns[column] ? Role::kBreakHeading : Role::kHeading});
      line.push_back({" "});
    }
    return Trimmed(line);
  }

  // For each row the number of its week, on the first row of a span only.
  std::vector<std::string> WeekTexts() const {
    std::vector<std::string> texts;
    for (const tagWeekNumberSpan& span : m_board.weekSpans) {
      const std::string number = span.weekNumber > 0 ? std::to_string(span.weekNumber) : "";
      texts.push_back(Fit(number, kWeekNumberWidth, "", Align::kRight));
      texts.resize(texts.size() + static_cast<std::size_t>(span.rows) - 1,
                   Repeat(" ", kWeekNumberWidth));
    }
    texts.resize(m_board.rows.size(), Repeat(" ", kWeekNumberWidth));
    return texts;
  }

  Line RowLine(const Row& row) const {
    Line line;
    if (m_lead) {
      line.push_back(Mark(nullptr, row.empty() ? nullptr : &row.front()));
    }
    for (std::size_t column = 0; column < row.size();) {
      const std::size_t end = IntervalEnd(row, column);
      if (end > column) {
        line.push_back({IntervalText(m_texts, m_glyphs, row[column], IntervalWidth(column, end)),
                        Role::kMonthTitle});
        column = end;
        continue;
      }
      const tagCalendarCell* next = column + 1 < row.size() ? &row[column + 1] : nullptr;
      line.push_back(Day(row[column]));
      line.push_back(Mark(&row[column], next));
      ++column;
    }
    return line;
  }

  // The last column has no place after it where the terminal is that narrow.
  int IntervalWidth(std::size_t begin, std::size_t end) const {
    const int before = (m_compact.weekNumbers ? kWeekNumberWidth : 0) + (m_lead ? 1 : 0);
    const bool cut =
        static_cast<int>(end) == m_columns && m_compact.width < before + kPitch * m_columns;
    return static_cast<int>(end - begin) * kPitch - (cut ? 1 : 0);
  }

  Piece Day(const tagCalendarCell& cell) const {
    if (!ShowsDay(cell)) {
      return {Repeat(" ", kDayWidth)};
    }
    const CivilDate date = DateOf(cell);
    const Role role = IsToday(cell)                         ? Role::kToday
                      : m_compact.festivals.count(date) > 0 ? Role::kFestival
                      : IsBreakDay(cell)                    ? Role::kBreakDay
                                                            : Role::kDay;
    return {Fit(std::to_string(cell.day), kDayWidth, "", Align::kRight), role,
            m_settings.selected == date, date};
  }

  // What stands between two days, of which one may be missing: the bracket of today first.
  Piece Mark(const tagCalendarCell* before, const tagCalendarCell* after) const {
    if (before != nullptr && IsToday(*before)) {
      return {"]", Role::kToday};
    }
    if (after != nullptr && IsToday(*after)) {
      return {"[", Role::kToday};
    }
    if (before != nullptr && ShowsDay(*before)) {
      if (m_compact.festivals.count(DateOf(*before)) > 0) {
        return {"*", Role::kFestival};
      }
      if (m_compact.breakMarks && IsBreakDay(*before)) {
        return {m_glyphs.breakDay, Role::kBreakDay};
      }
    }
    return {" "};
  }

  // Without what is over the width.
  Line Trimmed(Line line) const {
    int width = 0;
    for (std::size_t index = 0; index < line.size(); ++index) {
      width += DisplayWidth(line[index].text);
      if (width > m_compact.width) {
        line.resize(index);
      }
    }
    return line;
  }

  const BoardSnapshot& m_board;
  const CompactSettings& m_compact;
  const PaintSettings& m_settings;
  const Texts& m_texts;
  const Glyphs& m_glyphs;
  const int m_columns;
  const bool m_lead;  // a place before the first day, for the bracket of today
};

}  // namespace

int CompactWidth(int columns, bool weekNumbers) {
  return (weekNumbers ? kWeekNumberWidth : 0) + 1 + kPitch * columns;
}

PaintedBoard PaintCompact(const BoardSnapshot& board, const CompactSettings& compact,
                          const PaintSettings& settings) {
  return CompactPainter(board, compact, settings).Paint();
}

}  // namespace almara::viewer
