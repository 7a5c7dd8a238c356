// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstddef>
#include <string_view>

#include "board/calendar_logic_build.h"
#include "board/standard_output.h"
#include "date/decimal_text.h"

namespace {

constexpr std::string_view kWeekNumberLabel = "weeknumber = ";
constexpr std::size_t kMaxRowLength =
    kWeekNumberLabel.size() + almara::kMaxDecimalLength +
    std::size_t{almara::kDaysOfWeek} * (1 + CCalendarItem::kMaxDayLength) + 1;

// Formatted by hand, a line at a time: printf, cell by cell, took longer than the rest of the
// build.
void PaintRow(const tagCalendarRow& row) {
  char line[kMaxRowLength];
  char* out = std::copy(kWeekNumberLabel.begin(), kWeekNumberLabel.end(), line);
  out = almara::AppendDecimal(out, row.weekNumber, 1);
  for (const CCalendarItem& item : row.items) {
    *out++ = '\t';
    out = item.AppendDay(out);
  }
  *out++ = '\n';
  WriteToStandardOutput({line, static_cast<std::size_t>(out - line)});
}

}  // namespace

int CCalendarLogicBuild::_PaintCalendarLog() const {
  constexpr std::string_view kBlankLines = "\n\n\n\n\n";
  WriteToStandardOutput(kBlankLines);
  for (const tagCalendarRow& row : m_rows) {
    PaintRow(row);
  }
  return static_cast<int>(WriteToStandardOutput(kBlankLines));
}
