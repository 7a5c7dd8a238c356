// SPDX-License-Identifier: MIT
#include "board_host.h"

#include <almara/almara.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace almara::viewer {
namespace {

std::string ReadConfigKey() {
  const std::unique_ptr<char, decltype(&std::free)> key(GetConfigKey(), &std::free);
  return key ? key.get() : "";
}

// Of a strip, which begins on any day of the week, the engine would leave out the wrong days. So it
// builds the strip with all its days, and the columns are left out where the board is read.
bool EngineHidesBreakDays(const BoardOptions& options) {
  return options.hideBreakDays && options.mode != eDispMonthDayStrip;
}

// The visible columns that the board keeps.
std::vector<int> ReadColumns(const BoardOptions& options) {
  std::vector<int> columns;
  const bool hidesHere = options.hideBreakDays && !EngineHidesBreakDays(options);
  for (int column = 0; column < GetContentColumns(); ++column) {
    if (!hidesHere || !IsBreakDayOfWeek(GetCalendarWeekByColumns(column))) {
      columns.push_back(column);
    }
  }
  return columns;
}

std::vector<tagCalendarCell> ReadRow(int row, const std::vector<int>& columns) {
  std::vector<tagCalendarCell> cells;
  cells.reserve(columns.size());
  for (const int column : columns) {
    cells.push_back(GetContentItem(row, column));
  }
  return cells;
}

// The month intervals, the week rule and the region stay as asked: GetShowMonthInterval() answers
// with another flag, one rule is the viewer's, and no function tells the region.
BoardOptions ReadOptions(const BoardOptions& asked) {
  BoardOptions options = asked;
  options.mode = GetDispMonth();
  options.rows = GetMaxRow();
  options.passedWeeks = GetPassedWeeks();
  options.firstDay = GetStartDayOfWeek();
  options.startWeek = GetStartWeekNumber();
  for (int day = eCalendarWeekSunday; day <= eCalendarWeekSaturday; ++day) {
    options.breakDays[static_cast<std::size_t>(day)] = IsBreakDayOfWeek(day);
  }
  return options;
}

int WeekOfFirstDay(CivilDate date, ECalendarWeek firstDay) {
  const int daysBefore = (DayOfWeek({date.year, 1, 1}) - firstDay + 7) % 7;
  return (daysBefore + DayOfYear(date) - 1) / 7 + 1;
}

// The span of one row whose days are in these two weeks, which may be the same. Of a week that ends
// in the next year the whole is week 1.
tagWeekNumberSpan SpanOfRow(int firstWeek, int lastWeek) {
  return lastWeek == 1 || lastWeek == firstWeek ? tagWeekNumberSpan{lastWeek, 0, 1}
                                                : tagWeekNumberSpan{firstWeek, lastWeek, 1};
}

// Numbers the weeks by kWeeksOfFirstDay. A row that goes on with the week above joins its span.
void NumberWeeksOfFirstDay(BoardSnapshot& board) {
  board.weekSpans.clear();
  for (auto& row : board.rows) {
    int firstWeek = 0;
    int lastWeek = 0;
    for (tagCalendarCell& cell : row) {
      if (ShowsDay(cell)) {
        cell.weekNumber = WeekOfFirstDay(DateOf(cell), board.options.firstDay);
        firstWeek = firstWeek == 0 ? cell.weekNumber : firstWeek;
        lastWeek = cell.weekNumber;
      }
    }
    const tagWeekNumberSpan span = SpanOfRow(firstWeek, lastWeek);
    const bool goesOn =
        !board.weekSpans.empty() &&
        (span.weekNumber == 0 || span.weekNumber == board.weekSpans.back().weekNumber);
    if (goesOn) {
      ++board.weekSpans.back().rows;
    } else {
      board.weekSpans.push_back(span);
    }
  }
}

}  // namespace

void StartEngine(const BoardOptions& options, bool printBoards) {
  SetPrintBoard(printBoards);
  SetCivilDays(true);
  ApplyOptions(options);
  InitCalendarLogicDt(options.language);
}

void ApplyOptions(const BoardOptions& options) {
  SetDispMonth(options.mode);
  SetMaxRow(options.rows);
  SetPassedWeeks(options.passedWeeks);
  SetStartDayOfWeek(options.firstDay);
  SetStartWeekNumber(options.startWeek);
  SetWeekNumberCalcType(EngineWeekRule(options.weekRule));
  SetShowMonthInterval(options.monthIntervals);
  SetHideBreakDay(options.hideBreakDays);
  SetShowBreakDayOfWeek(!EngineHidesBreakDays(options));
  for (int day = eCalendarWeekSunday; day <= eCalendarWeekSaturday; ++day) {
    SetBreakDayOfWeek(day, options.breakDays[static_cast<std::size_t>(day)]);
  }
}

void ShowDate(const BoardOptions& options, CivilDate date) {
  // A date that is not on the board would be shown as if paged to: at the board's edge, without the
  // passed weeks, and as no row at all in the tail arrangement. So today first, which ends paging,
  // then the date's whole month, which is found without paging, and from there the date itself.
  SetDispMonth(eDispMonthWholeMonth);
  GotoToday();
  GotoSpecifiedDate(date.year, date.month, date.day);
  SetDispMonth(options.mode);
  GotoSpecifiedDate(date.year, date.month, date.day);
}

void TakeStep(const Step& step) {
  switch (step.kind) {
    case Step::Kind::kNext:
      GotoNextPage();
      break;
    case Step::Kind::kPrevious:
      GotoPreviousPage();
      break;
    case Step::Kind::kOffset:
      GotoTodayOffset(step.offset);
      break;
  }
}

bool OffsetStaysInRange(const BoardOptions& options, CivilDate today, int offset) {
  if (options.mode == eDispMonthWholeMonth) {
    const std::int64_t month = std::int64_t{today.year} * 12 + today.month - 1 + offset;
    return month >= std::int64_t{kFirstYear} * 12 && month < std::int64_t{kLastYear + 1} * 12;
  }
  const std::int64_t day = DayNumber(today) + std::int64_t{7} * options.rows * offset;
  return day >= DayNumber(kFirstDate) && day <= DayNumber(kLastDate);
}

BoardSnapshot ReadBoard(const BoardOptions& asked) {
  BoardSnapshot board;
  board.options = ReadOptions(asked);
  board.hideBreakDay = GetHideBreakDay();
  board.showBreakDayOfWeek = GetShowBreakDayOfWeek() && !board.options.hideBreakDays;
  const std::vector<int> columns = ReadColumns(board.options);
  for (const int column : columns) {
    board.headings.push_back(GetCalendarWeekByColumns(column));
    board.breakColumns.push_back(IsBreakDayOfWeek(board.headings.back()));
  }
  for (int row = 0; row < GetContentRows(); ++row) {
    board.rows.push_back(ReadRow(row, columns));
  }
  for (int index = 0; index < GetWeekNumberCount(); ++index) {
    board.weekSpans.push_back(GetWeekNumberItemWithIndex(index));
  }
  if (asked.weekRule == kWeeksOfFirstDay) {
    NumberWeeksOfFirstDay(board);
  }
  board.contentDate = GetContentDate();
  board.today = GetToday();
  board.todayOnBoard = IsTodayInBoard();
  board.configKey = ReadConfigKey();
  return board;
}

CivilDate ReadToday() { return DateOf(GetToday()); }

}  // namespace almara::viewer
