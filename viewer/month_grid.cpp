// SPDX-License-Identifier: MIT
#include "month_grid.h"

#include <algorithm>
#include <set>
#include <string>

#include "compact_board.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kGap = 2;  // cells between two months

// What all months of a grid have in common.
struct GridLayout {
  bool oneYear = false;
  bool weekNumbers = false;
  int monthWidth = 0;
  std::size_t perLine = 1;

  int Width() const {
    const int count = static_cast<int>(perLine);
    return count * monthWidth + (count - 1) * kGap;
  }
};

bool WeekNumbersFit(int columns, const PaintSettings& settings) {
  switch (settings.weekNumbers) {
    case WeekNumbers::kIfRoom:
      return settings.width >= CompactWidth(columns, true);
    case WeekNumbers::kAlways:
      return settings.width >= CompactWidth(columns, true) - 1;
    case WeekNumbers::kNever:
      break;
  }
  return false;
}

GridLayout LayoutFor(const std::vector<BoardSnapshot>& months, bool oneYear,
                     const PaintSettings& settings) {
  const int columns = months.front().Columns();
  GridLayout layout;
  layout.oneYear = oneYear;
  layout.weekNumbers = WeekNumbersFit(columns, settings);
  layout.monthWidth = std::min(CompactWidth(columns, layout.weekNumbers), settings.width);
  const int fitting = (settings.width + kGap) / (layout.monthWidth + kGap);
  layout.perLine = std::clamp(static_cast<std::size_t>(fitting), std::size_t{1}, months.size());
  while (oneYear && months.size() % layout.perLine != 0) {
    --layout.perLine;  // every line of months is full
  }
  return layout;
}

std::set<CivilDate> FestivalsOf(const BoardSnapshot& month, Annotator* annotator) {
  std::set<CivilDate> festivals;
  if (annotator != nullptr) {
    for (const CivilDate date : ShownDays(month)) {
      if (annotator->Annotate(date).HasFestival()) {
        festivals.insert(date);
      }
    }
  }
  return festivals;
}

// The lines of one month: its title, the headings and the weeks.
std::vector<Line> MonthLines(const BoardSnapshot& month, const GridLayout& layout,
                             const PaintSettings& settings) {
  const CivilDate first = DateOf(month.contentDate);
  const Texts& texts = *settings.texts;
  const std::string title =
      layout.oneYear ? Month(texts, first.month) : MonthsText(texts, first, first);
  CompactSettings compact;
  compact.weekNumbers = layout.weekNumbers;
  compact.width = layout.monthWidth;
  compact.breakMarks = false;
  compact.festivals = FestivalsOf(month, settings.annotator);
  const PaintedBoard painted = PaintCompact(month, compact, settings);
  std::vector<Line> lines = {
      {{Fit(title, layout.monthWidth, settings.glyphs->ellipsis, Align::kCenter), Role::kTitle}},
      painted.headings};
  for (const std::vector<Line>& row : painted.rows) {
    lines.push_back(row.front());
  }
  return lines;
}

// Sets a block of lines to the right of what stands there.
void PutBeside(std::vector<Line>& lines, const std::vector<Line>& block, int column) {
  lines.resize(std::max(lines.size(), block.size()));
  for (std::size_t index = 0; index < block.size(); ++index) {
    lines[index].push_back({Repeat(" ", column - WidthOf(lines[index]))});
    Append(lines[index], block[index]);
  }
}

}  // namespace

std::vector<Line> MonthGridLines(const std::vector<BoardSnapshot>& months, bool oneYear,
                                 const PaintSettings& settings) {
  const GridLayout layout = LayoutFor(months, oneYear, settings);
  std::vector<Line> lines;
  if (oneYear) {
    const std::string year = std::to_string(months.front().contentDate.year);
    lines.push_back({{Fit(year, layout.Width(), "", Align::kCenter), Role::kTitle}});
  }
  for (std::size_t begin = 0; begin < months.size(); begin += layout.perLine) {
    if (!lines.empty()) {
      lines.emplace_back();
    }
    std::vector<Line> beside;
    for (std::size_t at = 0; at < layout.perLine && begin + at < months.size(); ++at) {
      PutBeside(beside, MonthLines(months[begin + at], layout, settings),
                static_cast<int>(at) * (layout.monthWidth + kGap));
    }
    Append(lines, beside);
  }
  return lines;
}

}  // namespace almara::viewer
