// SPDX-License-Identifier: MIT
#include "board_parts.h"

#include "text_layout.h"

namespace almara::viewer {
namespace {

std::string IntervalTitle(const Texts& texts, const std::string& rule, int month, int width) {
  const std::string name = Month(texts, month);
  const std::string shortName = ShortMonth(texts, month);
  const std::string spaced = std::string(rule).append(" ").append(name).append(" ");
  for (const std::string& form : {spaced, rule + name, rule + shortName, shortName}) {
    if (DisplayWidth(form) <= width) {
      return form;
    }
  }
  return Shorten(std::to_string(month), width, "");
}

}  // namespace

std::string TitleText(const BoardSnapshot& board, const Texts& texts, int width) {
  const std::vector<CivilDate> days = ShownDays(board);
  const bool ownMonth = days.empty() || board.options.mode == eDispMonthWholeMonth;
  const CivilDate first = ownMonth ? DateOf(board.contentDate) : days.front();
  const CivilDate last = ownMonth ? first : days.back();
  const std::string title = MonthsText(texts, first, last);
  return DisplayWidth(title) <= width ? title : MonthsTextBrief(texts, first, last);
}

std::size_t IntervalEnd(const std::vector<tagCalendarCell>& row, std::size_t column) {
  while (column < row.size() && IsInterval(row[column])) {
    ++column;
  }
  return column;
}

std::string IntervalText(const Texts& texts, const Glyphs& glyphs, const tagCalendarCell& first,
                         int width) {
  if (first.type != eCalendarItemMonthTitle) {
    return Repeat(glyphs.rule, width);
  }
  const std::string title = IntervalTitle(texts, glyphs.rule, first.month, width);
  return title + Repeat(glyphs.rule, width - DisplayWidth(title));
}

}  // namespace almara::viewer
