// SPDX-License-Identifier: MIT
#include "board_painter.h"

#include <algorithm>

#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kWeekNumberWidth = 5;                     // "52/53"
constexpr int kWeekColumnWidth = kWeekNumberWidth + 2;  // and " ╭"
constexpr int kNarrowestCell = 4;                       // "[12]"
constexpr int kWidestCell = 16;
constexpr int kNarrowestAnnotation = 6;

struct Geometry {
  int weekColumn = 0;
  int cell = kWidestCell;
};

Geometry GeometryFor(int columns, const PaintSettings& settings) {
  Geometry geometry;
  columns = std::max(columns, 1);
  if (settings.weekNumbers && settings.width >= kWeekColumnWidth + columns * kNarrowestCell) {
    geometry.weekColumn = kWeekColumnWidth;
  }
  geometry.cell =
      std::clamp((settings.width - geometry.weekColumn) / columns, kNarrowestCell, kWidestCell);
  return geometry;
}

// The months that the title names: in the whole-month arrangement the board's own, otherwise those
// of the shown days.
std::string TitleText(const BoardSnapshot& board, const Texts& texts) {
  const std::vector<CivilDate> days = ShownDays(board);
  if (days.empty() || board.options.mode == eDispMonthWholeMonth) {
    const CivilDate date = DateOf(board.contentDate);
    return MonthsText(texts, date, date);
  }
  return MonthsText(texts, days.front(), days.back());
}

std::string SpanNumber(const tagWeekNumberSpan& span) {
  const bool two = span.secondWeekNumber > 0 && span.secondWeekNumber != span.weekNumber;
  return std::to_string(span.weekNumber) + (two ? "/" + std::to_string(span.secondWeekNumber) : "");
}

const char* SpanBracket(std::size_t line, std::size_t lines, const Glyphs& glyphs) {
  if (lines == 1) {
    return glyphs.spanSingle;
  }
  if (line == 0) {
    return glyphs.spanTop;
  }
  return line + 1 == lines ? glyphs.spanBottom : glyphs.spanMiddle;
}

// The week-number column: one text of kWeekColumnWidth cells for each line of the board. A span
// without a number stays blank.
std::vector<std::string> WeekColumnTexts(const BoardSnapshot& board, std::size_t linesPerRow,
                                         const Glyphs& glyphs) {
  const std::string blank = Repeat(" ", kWeekColumnWidth);
  std::vector<std::string> texts;
  for (const tagWeekNumberSpan& span : board.weekSpans) {
    const std::size_t lines = static_cast<std::size_t>(span.rows) * linesPerRow;
    for (std::size_t line = 0; line < lines; ++line) {
      const std::string number = line == 0 ? SpanNumber(span) : "";
      texts.push_back(span.weekNumber < 1
                          ? blank
                          : Fit(number, kWeekNumberWidth, glyphs.ellipsis, Align::kRight) + " " +
                                SpanBracket(line, lines, glyphs));
    }
  }
  texts.resize(board.rows.size() * linesPerRow, blank);
  return texts;
}

class BoardPainter {
 public:
  BoardPainter(const BoardSnapshot& board, const PaintSettings& settings)
      : m_board(board),
        m_settings(settings),
        m_texts(*settings.texts),
        m_glyphs(*settings.glyphs),
        m_geometry(GeometryFor(board.Columns(), settings)) {}

  PaintedBoard Paint() const {
    PaintedBoard painted;
    painted.title = {TitlePiece()};
    painted.headings = Headings();
    for (const auto& row : m_board.rows) {
      painted.rows.push_back({DateLine(row)});
      if (Annotated()) {
        painted.rows.back().push_back(AnnotationLine(row));
      }
    }
    if (m_geometry.weekColumn > 0) {
      AddWeekColumn(painted.rows);
    }
    return painted;
  }

 private:
  // In the middle above the board, however narrow that is.
  Piece TitlePiece() const {
    const std::string title = TitleText(m_board, m_texts);
    const int boardWidth = m_geometry.weekColumn + m_geometry.cell * m_board.Columns();
    const int width = std::min(std::max(boardWidth, DisplayWidth(title)), m_settings.width);
    return {Fit(title, width, m_glyphs.ellipsis, Align::kCenter), Role::kTitle};
  }

  Line Headings() const {
    Line line;
    if (m_geometry.weekColumn > 0) {
      line.push_back(
          {Fit(m_texts.weekHeading, kWeekNumberWidth, m_glyphs.ellipsis, Align::kRight) + "  ",
           Role::kWeekNumber});
    }
    for (std::size_t column = 0; column < m_board.headings.size(); ++column) {
      line.push_back({InCell(Weekday(m_texts, m_board.headings[column])),
                      m_board.breakColumns[column] ? Role::kBreakHeading : Role::kHeading});
    }
    return line;
  }

  bool Annotated() const {
    return m_settings.annotator != nullptr && m_geometry.cell >= kNarrowestAnnotation;
  }

  // A text inside a cell leaves the cell's first position free: it parts the columns and takes the
  // bracket of today.
  std::string InCell(const std::string& text) const {
    return " " + Fit(text, m_geometry.cell - 1, m_glyphs.ellipsis);
  }

  Line DateLine(const std::vector<tagCalendarCell>& row) const {
    Line line;
    for (std::size_t column = 0; column < row.size();) {
      const std::size_t end = IntervalEnd(row, column);
      if (end > column) {
        line.push_back({IntervalText(row, column, end), Role::kMonthTitle});
        column = end;
      } else {
        line.push_back(DayPiece(row[column]));
        ++column;
      }
    }
    return line;
  }

  // Behind the cells from `column` on that belong to one month interval.
  static std::size_t IntervalEnd(const std::vector<tagCalendarCell>& row, std::size_t column) {
    while (column < row.size() && IsInterval(row[column])) {
      ++column;
    }
    return column;
  }

  // A month interval is a rule across its cells; the title stands in the rule.
  std::string IntervalText(const std::vector<tagCalendarCell>& row, std::size_t begin,
                           std::size_t end) const {
    const int width = static_cast<int>(end - begin) * m_geometry.cell;
    if (row[begin].type != eCalendarItemMonthTitle) {
      return Repeat(m_glyphs.rule, width);
    }
    const std::string title = IntervalTitle(row[begin].month, width);
    return title + Repeat(m_glyphs.rule, width - DisplayWidth(title));
  }

  // The longest form of the month's name that fits, set off from the rule where there is room.
  std::string IntervalTitle(int month, int width) const {
    const std::string name = Month(m_texts, month);
    const std::string shortName = ShortMonth(m_texts, month);
    const std::string rule = m_glyphs.rule;
    const std::string spaced = std::string(rule).append(" ").append(name).append(" ");
    for (const std::string& form : {spaced, rule + name, rule + shortName}) {
      if (DisplayWidth(form) <= width) {
        return form;
      }
    }
    return Shorten(shortName, width, "");
  }

  Piece DayPiece(const tagCalendarCell& cell) const {
    if (!ShowsDay(cell)) {
      return {Repeat(" ", m_geometry.cell), Role::kPlain};
    }
    const bool today = IsToday(cell);
    const std::string number = (cell.day < 10 ? " " : "") + std::to_string(cell.day);
    std::string text = today ? "[" + number + "]" : " " + number;
    if (IsBreakDay(cell)) {
      text += m_glyphs.breakDay;
    }
    const Role role = today ? Role::kToday : IsBreakDay(cell) ? Role::kBreakDay : Role::kDay;
    return {Fit(text, m_geometry.cell, ""), role, m_settings.selected == DateOf(cell),
            DateOf(cell)};
  }

  Line AnnotationLine(const std::vector<tagCalendarCell>& row) const {
    Line line;
    for (const tagCalendarCell& cell : row) {
      line.push_back(ShowsDay(cell) ? AnnotationPiece(DateOf(cell))
                                    : Piece{Repeat(" ", m_geometry.cell)});
    }
    return line;
  }

  // The day's weightiest name, or else its lunar day.
  Piece AnnotationPiece(CivilDate date) const {
    const bool selected = m_settings.selected == date;
    const Annotation annotation = m_settings.annotator->Annotate(date);
    const std::vector<DayName> names = NamesOf(annotation);
    if (names.empty()) {
      return {InCell(LunarDayText(m_texts, annotation.lunar)), Role::kLunarDay, selected, date};
    }
    const DayName& name = names.front();
    const std::string full = FullName(name, m_texts.language);
    const bool fits = DisplayWidth(full) < m_geometry.cell;
    return {InCell(fits ? full : BriefName(name, m_texts.language)),
            name.kind == DayName::Kind::kSolarTerm ? Role::kSolarTerm : Role::kFestival, selected,
            date};
  }

  void AddWeekColumn(std::vector<std::vector<Line>>& rows) const {
    const std::size_t linesPerRow = Annotated() ? 2 : 1;
    const std::vector<std::string> texts = WeekColumnTexts(m_board, linesPerRow, m_glyphs);
    std::size_t index = 0;
    for (auto& row : rows) {
      for (Line& line : row) {
        line.insert(line.begin(), {texts[index], Role::kWeekNumber});
        ++index;
      }
    }
  }

  const BoardSnapshot& m_board;
  const PaintSettings& m_settings;
  const Texts& m_texts;
  const Glyphs& m_glyphs;
  const Geometry m_geometry;
};

}  // namespace

PaintedBoard PaintBoard(const BoardSnapshot& board, const PaintSettings& settings) {
  return BoardPainter(board, settings).Paint();
}

}  // namespace almara::viewer
