// SPDX-License-Identifier: MIT
#include "board_painter.h"

#include <algorithm>

#include "text_layout.h"

namespace viewer {
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

Geometry geometryFor(int columns, const PaintSettings& settings) {
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
std::string titleText(const Board& board, const Texts& texts) {
  const std::vector<CivilDate> days = shownDays(board);
  if (days.empty() || board.mode == eDispMonthWholeMonth) {
    const CivilDate date = dateOf(board.contentDate);
    return monthsText(texts, date, date);
  }
  return monthsText(texts, days.front(), days.back());
}

std::string spanNumber(const tagWeekNumberSpan& span) {
  const bool two = span.secondWeekNumber > 0 && span.secondWeekNumber != span.weekNumber;
  return std::to_string(span.weekNumber) + (two ? "/" + std::to_string(span.secondWeekNumber) : "");
}

const char* spanBracket(std::size_t line, std::size_t lines, const Glyphs& glyphs) {
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
std::vector<std::string> weekColumnTexts(const Board& board, std::size_t linesPerRow,
                                         const Glyphs& glyphs) {
  const std::string blank = repeat(" ", kWeekColumnWidth);
  std::vector<std::string> texts;
  for (const tagWeekNumberSpan& span : board.weekSpans) {
    const std::size_t lines = static_cast<std::size_t>(span.rows) * linesPerRow;
    for (std::size_t line = 0; line < lines; ++line) {
      const std::string number = line == 0 ? spanNumber(span) : "";
      texts.push_back(span.weekNumber < 1
                          ? blank
                          : fit(number, kWeekNumberWidth, glyphs.ellipsis, Align::Right) + " " +
                                spanBracket(line, lines, glyphs));
    }
  }
  texts.resize(board.rows.size() * linesPerRow, blank);
  return texts;
}

class BoardPainter {
 public:
  BoardPainter(const Board& board, const PaintSettings& settings)
      : board_(board),
        settings_(settings),
        texts_(*settings.texts),
        glyphs_(*settings.glyphs),
        geometry_(geometryFor(board.columns(), settings)) {}

  PaintedBoard paint() const {
    PaintedBoard painted;
    painted.title = {titlePiece()};
    painted.headings = headings();
    for (const auto& row : board_.rows) {
      painted.rows.push_back({dateLine(row)});
      if (annotated()) {
        painted.rows.back().push_back(annotationLine(row));
      }
    }
    if (geometry_.weekColumn > 0) {
      addWeekColumn(painted.rows);
    }
    return painted;
  }

 private:
  // In the middle above the board, however narrow that is.
  Piece titlePiece() const {
    const std::string title = titleText(board_, texts_);
    const int boardWidth = geometry_.weekColumn + geometry_.cell * board_.columns();
    const int width = std::min(std::max(boardWidth, displayWidth(title)), settings_.width);
    return {fit(title, width, glyphs_.ellipsis, Align::Center), Role::Title};
  }

  Line headings() const {
    Line line;
    if (geometry_.weekColumn > 0) {
      line.push_back(
          {fit(texts_.weekHeading, kWeekNumberWidth, glyphs_.ellipsis, Align::Right) + "  ",
           Role::WeekNumber});
    }
    for (std::size_t column = 0; column < board_.headings.size(); ++column) {
      line.push_back({inCell(texts_.weekdays[board_.headings[column]]),
                      board_.breakColumns[column] ? Role::BreakHeading : Role::Heading});
    }
    return line;
  }

  bool annotated() const {
    return settings_.annotator != nullptr && geometry_.cell >= kNarrowestAnnotation;
  }

  // A text inside a cell leaves the cell's first position free: it parts the columns and takes the
  // bracket of today.
  std::string inCell(const std::string& text) const {
    return " " + fit(text, geometry_.cell - 1, glyphs_.ellipsis);
  }

  Line dateLine(const std::vector<tagCalendarCell>& row) const {
    Line line;
    for (std::size_t column = 0; column < row.size();) {
      const std::size_t end = intervalEnd(row, column);
      if (end > column) {
        line.push_back({intervalText(row, column, end), Role::MonthTitle});
        column = end;
      } else {
        line.push_back(dayPiece(row[column]));
        ++column;
      }
    }
    return line;
  }

  // Behind the cells from `column` on that belong to one month interval.
  static std::size_t intervalEnd(const std::vector<tagCalendarCell>& row, std::size_t column) {
    while (column < row.size() && isInterval(row[column])) {
      ++column;
    }
    return column;
  }

  // A month interval is a rule across its cells; the title stands in the rule.
  std::string intervalText(const std::vector<tagCalendarCell>& row, std::size_t begin,
                           std::size_t end) const {
    const int width = static_cast<int>(end - begin) * geometry_.cell;
    if (row[begin].type != eCalendarItemMonthTitle) {
      return repeat(glyphs_.rule, width);
    }
    const std::string title = intervalTitle(row[begin].month, width);
    return title + repeat(glyphs_.rule, width - displayWidth(title));
  }

  // The longest form of the month's name that fits, set off from the rule where there is room.
  std::string intervalTitle(int month, int width) const {
    const std::string name = texts_.months[month - 1];
    const std::string shortName = texts_.shortMonths[month - 1];
    const std::string rule = glyphs_.rule;
    const std::string spaced = std::string(rule).append(" ").append(name).append(" ");
    for (const std::string& form : {spaced, rule + name, rule + shortName}) {
      if (displayWidth(form) <= width) {
        return form;
      }
    }
    return shorten(shortName, width, "");
  }

  Piece dayPiece(const tagCalendarCell& cell) const {
    if (!showsDay(cell)) {
      return {repeat(" ", geometry_.cell), Role::Plain};
    }
    const bool today = isToday(cell);
    const std::string number = (cell.day < 10 ? " " : "") + std::to_string(cell.day);
    std::string text = today ? "[" + number + "]" : " " + number;
    if (isBreakDay(cell)) {
      text += glyphs_.breakDay;
    }
    const Role role = today ? Role::Today : isBreakDay(cell) ? Role::BreakDay : Role::Day;
    return {fit(text, geometry_.cell, ""), role, settings_.selected == dateOf(cell)};
  }

  Line annotationLine(const std::vector<tagCalendarCell>& row) const {
    Line line;
    for (const tagCalendarCell& cell : row) {
      line.push_back(showsDay(cell) ? annotationPiece(dateOf(cell))
                                    : Piece{repeat(" ", geometry_.cell)});
    }
    return line;
  }

  // The day's weightiest name, or else its lunar day.
  Piece annotationPiece(CivilDate date) const {
    const bool selected = settings_.selected == date;
    const Annotation annotation = settings_.annotator->annotate(date);
    const std::vector<DayName> names = namesOf(annotation);
    if (names.empty()) {
      return {inCell(lunarDayText(texts_, annotation.lunar)), Role::LunarDay, selected};
    }
    const DayName& name = names.front();
    const std::string full = fullName(name, texts_.language);
    const bool fits = displayWidth(full) < geometry_.cell;
    return {inCell(fits ? full : briefName(name, texts_.language)),
            name.kind == DayName::Kind::SolarTerm ? Role::SolarTerm : Role::Festival, selected};
  }

  void addWeekColumn(std::vector<std::vector<Line>>& rows) const {
    const std::size_t linesPerRow = annotated() ? 2 : 1;
    const std::vector<std::string> texts = weekColumnTexts(board_, linesPerRow, glyphs_);
    std::size_t index = 0;
    for (auto& row : rows) {
      for (Line& line : row) {
        line.insert(line.begin(), {texts[index], Role::WeekNumber});
        ++index;
      }
    }
  }

  const Board& board_;
  const PaintSettings& settings_;
  const Texts& texts_;
  const Glyphs& glyphs_;
  const Geometry geometry_;
};

}  // namespace

PaintedBoard paintBoard(const Board& board, const PaintSettings& settings) {
  return BoardPainter(board, settings).paint();
}

}  // namespace viewer
