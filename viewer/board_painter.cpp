// SPDX-License-Identifier: MIT
#include "board_painter.h"

#include <algorithm>
#include <string>

#include "board_parts.h"
#include "compact_board.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kWeekNumberWidth = 5;                     // "52/53"
constexpr int kWeekColumnWidth = kWeekNumberWidth + 2;  // and " ╭"
constexpr int kNarrowWeekColumnWidth = 3;               // "52 "
constexpr int kNarrowestCell = 4;                       // "[12]"
constexpr int kComfortableCell = 10;
constexpr int kNarrowestAnnotation = 6;

using Row = std::vector<tagCalendarCell>;

// The text under a day in its full and its brief form.
struct DayText {
  std::string full;
  std::string brief;
  Role role = Role::kLunarDay;
};

// The day's weightiest name, or else its lunar day.
DayText DayTextOf(CivilDate date, const PaintSettings& settings) {
  const Texts& texts = *settings.texts;
  const Annotation annotation = settings.annotator->Annotate(date);
  const std::vector<DayName> names = NamesOf(annotation);
  if (names.empty()) {
    return {LunarDayText(texts, annotation.lunar), LunarDayBrief(texts, annotation.lunar)};
  }
  const DayName& name = names.front();
  return {FullName(name, texts.language), BriefName(name, texts.language),
          name.kind == DayName::Kind::kSolarTerm ? Role::kSolarTerm : Role::kFestival};
}

// How the columns share the width. A board without room for cells of kNarrowestCell is compact.
struct Geometry {
  int weekColumn = 0;
  int cell = kNarrowestCell;
  bool compact = false;
};

// The cells that the longest text under a day and the space around it take.
int WidestCell(const BoardSnapshot& board, const PaintSettings& settings) {
  int widest = kComfortableCell;
  if (settings.annotator != nullptr) {
    for (const CivilDate date : ShownDays(board)) {
      widest = std::max(widest, DisplayWidth(DayTextOf(date, settings).full) + 2);
    }
  }
  return widest;
}

int WeekColumnFor(int columns, const PaintSettings& settings) {
  if (settings.weekNumbers == WeekNumbers::kNever) {
    return 0;
  }
  for (const int width : {kWeekColumnWidth, kNarrowWeekColumnWidth}) {
    if (settings.width >= width + columns * kNarrowestCell) {
      return width;
    }
  }
  // One place may lack, the one after the last day.
  const bool fits = settings.width >= CompactWidth(columns, true) - 1;
  return settings.weekNumbers == WeekNumbers::kAlways && fits ? kNarrowWeekColumnWidth : 0;
}

Geometry GeometryFor(const BoardSnapshot& board, const PaintSettings& settings) {
  const int columns = std::max(board.Columns(), 1);
  Geometry geometry;
  geometry.weekColumn = WeekColumnFor(columns, settings);
  const int cell = (settings.width - geometry.weekColumn) / columns;
  geometry.compact = cell < kNarrowestCell;
  geometry.cell = std::clamp(cell, kNarrowestCell, WidestCell(board, settings));
  return geometry;
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

// One line of a span in the week-number column. A narrow column has room for one number and no
// bracket.
std::string SpanText(const tagWeekNumberSpan& span, std::size_t line, std::size_t lines, int width,
                     const Glyphs& glyphs) {
  if (width == kNarrowWeekColumnWidth) {
    return Fit(line == 0 ? std::to_string(span.weekNumber) : "", width - 1, "", Align::kRight) +
           " ";
  }
  const std::string number = line == 0 ? SpanNumber(span) : "";
  return Fit(number, kWeekNumberWidth, glyphs.ellipsis, Align::kRight) + " " +
         SpanBracket(line, lines, glyphs);
}

// The week-number column: one text of its width for each line of the board. A span without a number
// stays blank.
std::vector<std::string> WeekColumnTexts(const BoardSnapshot& board, std::size_t linesPerRow,
                                         int width, const Glyphs& glyphs) {
  const std::string blank = Repeat(" ", width);
  std::vector<std::string> texts;
  for (const tagWeekNumberSpan& span : board.weekSpans) {
    const std::size_t lines = static_cast<std::size_t>(span.rows) * linesPerRow;
    for (std::size_t line = 0; line < lines; ++line) {
      texts.push_back(span.weekNumber < 1 ? blank : SpanText(span, line, lines, width, glyphs));
    }
  }
  texts.resize(board.rows.size() * linesPerRow, blank);
  return texts;
}

class BoardPainter {
 public:
  BoardPainter(const BoardSnapshot& board, const PaintSettings& settings, Geometry geometry)
      : m_board(board),
        m_settings(settings),
        m_texts(*settings.texts),
        m_glyphs(*settings.glyphs),
        m_geometry(geometry) {}

  PaintedBoard Paint() const {
    PaintedBoard painted;
    painted.headings = Headings();
    for (const Row& row : m_board.rows) {
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
  Line Headings() const {
    Line line;
    if (m_geometry.weekColumn == kWeekColumnWidth) {
      line.push_back(
          {Fit(m_texts.weekHeading, kWeekNumberWidth, m_glyphs.ellipsis, Align::kRight) + "  ",
           Role::kWeekNumber});
    } else if (m_geometry.weekColumn > 0) {
      line.push_back({Repeat(" ", m_geometry.weekColumn)});
    }
    for (std::size_t column = 0; column < m_board.headings.size(); ++column) {
      line.push_back({InCell(HeadingText(m_board.headings[column])),
                      m_board.breakColumns[column] ? Role::kBreakHeading : Role::kHeading});
    }
    return line;
  }

  // The short name of the day if those of all days fit, so that the columns stay alike.
  const char* HeadingText(ECalendarWeek day) const {
    const bool fits =
        std::all_of(m_texts.weekdays.begin(), m_texts.weekdays.end(),
                    [this](const char* name) { return DisplayWidth(name) < m_geometry.cell; });
    return fits ? Weekday(m_texts, day) : NarrowWeekday(m_texts, day);
  }

  bool Annotated() const {
    return m_settings.annotator != nullptr && m_geometry.cell >= kNarrowestAnnotation;
  }

  // A text inside a cell leaves the cell's first position free: it parts the columns and takes the
  // bracket of today.
  std::string InCell(const std::string& text) const {
    return " " + Fit(text, m_geometry.cell - 1, m_glyphs.ellipsis);
  }

  Line DateLine(const Row& row) const {
    Line line;
    for (std::size_t column = 0; column < row.size();) {
      const std::size_t end = IntervalEnd(row, column);
      if (end > column) {
        const int width = static_cast<int>(end - column) * m_geometry.cell;
        line.push_back({IntervalText(m_texts, m_glyphs, row[column], width), Role::kMonthTitle});
        column = end;
      } else {
        line.push_back(DayPiece(row[column]));
        ++column;
      }
    }
    return line;
  }

  Piece DayPiece(const tagCalendarCell& cell) const {
    if (!ShowsDay(cell)) {
      return {Repeat(" ", m_geometry.cell)};
    }
    const bool today = IsToday(cell);
    const std::string number = Fit(std::to_string(cell.day), 2, "", Align::kRight);
    std::string text = today ? "[" + number + "]" : " " + number;
    if (IsBreakDay(cell)) {
      text += m_glyphs.breakDay;
    }
    const Role role = today ? Role::kToday : IsBreakDay(cell) ? Role::kBreakDay : Role::kDay;
    return {Fit(text, m_geometry.cell, ""), role, m_settings.selected == DateOf(cell),
            DateOf(cell)};
  }

  Line AnnotationLine(const Row& row) const {
    Line line;
    for (const tagCalendarCell& cell : row) {
      line.push_back(ShowsDay(cell) ? AnnotationPiece(DateOf(cell))
                                    : Piece{Repeat(" ", m_geometry.cell)});
    }
    return line;
  }

  Piece AnnotationPiece(CivilDate date) const {
    const DayText text = DayTextOf(date, m_settings);
    const bool fits = DisplayWidth(text.full) < m_geometry.cell;
    return {InCell(fits ? text.full : text.brief), text.role, m_settings.selected == date, date};
  }

  void AddWeekColumn(std::vector<std::vector<Line>>& rows) const {
    const std::vector<std::string> texts =
        WeekColumnTexts(m_board, Annotated() ? 2 : 1, m_geometry.weekColumn, m_glyphs);
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

PaintedBoard PaintNarrow(const BoardSnapshot& board, const PaintSettings& settings,
                         const Geometry& geometry) {
  CompactSettings compact;
  compact.weekNumbers = geometry.weekColumn > 0;
  compact.width = settings.width;
  return PaintCompact(board, compact, settings);
}

// In the middle above the board, however narrow that is.
Piece TitlePiece(const BoardSnapshot& board, const PaintSettings& settings, int boardWidth) {
  const std::string title = TitleText(board, *settings.texts, settings.width);
  const int width = std::min(std::max(boardWidth, DisplayWidth(title)), settings.width);
  return {Fit(title, width, settings.glyphs->ellipsis, Align::kCenter), Role::kTitle};
}

}  // namespace

PaintedBoard PaintBoard(const BoardSnapshot& built, const PaintSettings& settings) {
  const bool wholeMonth = built.options.mode == eDispMonthWholeMonth;
  const BoardSnapshot board = wholeMonth ? MonthAlone(built) : built;
  const Geometry geometry = GeometryFor(board, settings);
  PaintedBoard painted = geometry.compact ? PaintNarrow(board, settings, geometry)
                                          : BoardPainter(board, settings, geometry).Paint();
  const int width = geometry.compact ? CompactWidth(board.Columns(), geometry.weekColumn > 0)
                                     : geometry.weekColumn + geometry.cell * board.Columns();
  painted.title = {TitlePiece(board, settings, width)};
  return painted;
}

}  // namespace almara::viewer
