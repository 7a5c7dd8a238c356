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

// A board of some forty rows.
constexpr std::size_t kTextSize = 4096;

char* Append(std::string_view text, char* out) { return std::copy(text.begin(), text.end(), out); }

// Formatted by hand: printf, cell by cell, took longer than the rest of the build.
char* AppendRow(const tagCalendarRow& row, char* out) {
  out = AppendDecimal(Append(kWeekNumberLabel, out), row.weekNumber, 1);
  for (const CCalendarItem& item : row.items) {
    *out++ = '\t';
    out = item.AppendDay(out);
  }
  *out++ = '\n';
  return out;
}

void Write(const char* text, const char* end) {
  WriteToStandardOutput({text, static_cast<std::size_t>(end - text)});
}

}  // namespace

void WriteBoard(const std::vector<tagCalendarRow>& rows) {
  char text[kTextSize];
  const char* const lastStart = text + kTextSize - kMaxRowLength - kBlankLines.size();
  char* out = Append(kBlankLines, text);
  for (const tagCalendarRow& row : rows) {
    // MUTATE_EXCL: written in other pieces, the text is the same.
    if (out > lastStart) {
      Write(text, out);
      out = text;
    }
    out = AppendRow(row, out);
  }
  Write(text, Append(kBlankLines, out));
}

}  // namespace almara
