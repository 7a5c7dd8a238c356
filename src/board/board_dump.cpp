// SPDX-License-Identifier: MIT
#include "board/board_dump.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "board/standard_output.h"
#include "date/decimal_text.h"

namespace almara {

namespace {

constexpr std::string_view kBlankLines = "\n\n\n\n\n";
constexpr std::string_view kWeekNumberLabel = "weeknumber = ";
constexpr std::size_t kMaxRowLength =
    kWeekNumberLabel.size() + kMaxDecimalLength +
    std::size_t{kDaysOfWeek} * (1 + CCalendarItem::kMaxDayLength) + 1;

// Formatted by hand, a line at a time: printf, cell by cell, took longer than the rest of the
// build.
void WriteRow(const tagCalendarRow& row) {
  char line[kMaxRowLength];
  char* out = std::copy(kWeekNumberLabel.begin(), kWeekNumberLabel.end(), line);
  out = AppendDecimal(out, row.weekNumber, 1);
  for (const CCalendarItem& item : row.items) {
    *out++ = '\t';
    out = item.AppendDay(out);
  }
  *out++ = '\n';
  WriteToStandardOutput({line, static_cast<std::size_t>(out - line)});
}

}  // namespace

void WriteBoard(const std::vector<tagCalendarRow>& rows) {
  WriteToStandardOutput(kBlankLines);
  for (const tagCalendarRow& row : rows) {
    WriteRow(row);
  }
  WriteToStandardOutput(kBlankLines);
}

}  // namespace almara
