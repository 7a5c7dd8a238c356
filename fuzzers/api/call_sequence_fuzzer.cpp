// SPDX-License-Identifier: MIT
//
// Bytes decoded into a sequence of exported calls on the one engine. After each call everything
// that can be read is read and held against the options, the clock and itself.
#include <almara/almara.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include "../../tests/support/civil.h"
#include "api/fresh_engine.h"
#include "api/raw_bool_setters.h"
#include "support/check.h"
#include "support/input.h"

namespace {

using almara::test::Input;

constexpr int kColumns = 7;
constexpr int kMaxVisibleRows = 50;
constexpr std::int32_t kMaxRow = 120;  // a host must not ask for millions

// What the engine was told, next to what its getters say.
struct Options {
  EDispMonth mode = eDispMonthRollingWeeks;
  std::int32_t rows = 5;
  std::int32_t passedWeeks = 1;
  ECalendarWeek startDay = eCalendarWeekMonday;
  std::int32_t startWeek = 1;
  bool hideBreakDay = false;
  bool monthInterval = true;
  bool showBreakDay = true;
  EWeekNumberCalc calcType = eWeekNumberCalcIso8601;
  std::array<bool, kColumns> breakDay{true, false, false, false, false, false, true};
};

struct Board {
  std::int32_t rows = 0;
  std::int32_t columns = 0;
  std::vector<tagCalendarCell> cells;
  std::vector<tagWeekNumberSpan> spans;
  CCalendarSolarDate focus{};
  bool hasToday = false;
};

bool IsDay(const tagCalendarCell& cell) {
  return cell.type >= eCalendarItemDay && cell.type <= eCalendarItemTodayBreakDay;
}

bool IsToday(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemToday || cell.type == eCalendarItemTodayBreakDay;
}

bool IsBreakDay(const tagCalendarCell& cell) {
  return cell.type == eCalendarItemBreakDay || cell.type == eCalendarItemTodayBreakDay;
}

bool IsEqual(const tagCalendarCell& a, const tagCalendarCell& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

bool IsEqual(const Board& a, const Board& b) {
  const auto sameBytes = [](const auto& x, const auto& y) {
    return x.size() == y.size() &&
           std::equal(x.begin(), x.end(), y.begin(), [](const auto& p, const auto& q) {
             return std::memcmp(&p, &q, sizeof p) == 0;
           });
  };
  return a.rows == b.rows && a.columns == b.columns && sameBytes(a.cells, b.cells) &&
         sameBytes(a.spans, b.spans) && std::memcmp(&a.focus, &b.focus, sizeof a.focus) == 0 &&
         a.hasToday == b.hasToday;
}

Board ReadBoard() {
  Board board;
  board.rows = GetContentRows();
  board.columns = GetContentColumns();
  ALMARA_CHECK(board.rows >= 0 && board.rows <= kMaxVisibleRows);
  ALMARA_CHECK(board.columns >= 0 && board.columns <= kColumns);
  for (std::int32_t row = 0; row < board.rows; ++row) {
    for (std::int32_t column = 0; column < board.columns; ++column) {
      board.cells.push_back(GetContentItem(row, column));
    }
  }
  const std::int32_t spans = GetWeekNumberCount();
  ALMARA_CHECK(spans >= 0 && spans <= 2 * board.rows);
  for (std::int32_t i = 0; i < spans; ++i) {
    board.spans.push_back(GetWeekNumberItemWithIndex(i));
  }
  board.focus = GetContentDate();
  board.hasToday = IsTodayInBoard();
  return board;
}

// The fuzzed session: the options and the board as they should be.
class Session {
 public:
  void Call(Input& input);
  void Check();

 private:
  void CallSetter(Input& input);
  void CallNavigation(Input& input);
  void CallGetter(Input& input);
  void GotoDate(Input& input);

  void CheckOptions() const;
  void CheckConfigKey() const;
  void CheckCells() const;
  void CheckRowsAndColumns() const;
  void CheckSpans() const;
  void CheckHeadings() const;
  void CheckOutside() const;

  const tagCalendarCell& Cell(std::int32_t row, std::int32_t column) const {
    return m_board.cells[static_cast<std::size_t>(row * m_board.columns + column)];
  }

  Options m_options;
  Board m_board;
  bool m_setSinceBuild = true;     // or not built yet, so that a build shows another part
  bool m_kindsAreCurrent = false;  // the cells' kinds are of the options and the day in force
};

void Session::Call(Input& input) {
  const std::uint8_t choice = input.Byte();
  if (choice < 100) {
    CallNavigation(input);
  } else if (choice < 200) {
    CallSetter(input);
  } else if (choice < 250) {
    CallGetter(input);
  } else {
    almara::test::SetNow(static_cast<std::time_t>(input.Within(0, 50000) - 25567) * 86400 +
                         input.Within(0, 65535));
    m_kindsAreCurrent = false;
  }
}

void Session::CallSetter(Input& input) {
  m_setSinceBuild = true;
  m_kindsAreCurrent = false;
  switch (input.Byte() % 10U) {
    case 0:
      SetDispMonth(m_options.mode = input.About(1, 4));
      break;
    case 1:
      m_options.rows = input.About(-1, kMaxRow);
      if (m_options.rows > kMaxRow) {
        m_options.rows = kMaxRow;
      }
      SetMaxRow(m_options.rows);
      break;
    case 2:
      SetPassedWeeks(m_options.passedWeeks = input.About(-1, 8));
      break;
    case 3:
      SetStartDayOfWeek(m_options.startDay = input.About(-1, 7));
      break;
    case 4:
      SetStartWeekNumber(m_options.startWeek = input.About(-2, 54));
      break;
    case 5:
      SetWeekNumberCalcType(m_options.calcType = input.About(0, 3));
      break;
    default: {
      const std::uint8_t flag = input.Byte();
      const bool isSet = (flag & 1U) != 0;
      switch (input.Byte() % 4U) {
        case 0:
          almara::test::RawSetHideBreakDay(flag);
          m_options.hideBreakDay = isSet;
          break;
        case 1:
          almara::test::RawSetShowMonthInterval(flag);
          m_options.monthInterval = isSet;
          break;
        case 2:
          almara::test::RawSetShowBreakDayOfWeek(flag);
          m_options.showBreakDay = isSet;
          break;
        default: {
          const std::int32_t day = input.About(-1, 7);
          almara::test::RawSetBreakDayOfWeek(day, flag);
          if (day >= 0 && day < kColumns) {
            m_options.breakDay[static_cast<std::size_t>(day)] = isSet;
          }
          break;
        }
      }
    }
  }
}

void Session::CallNavigation(Input& input) {
  switch (input.Byte() % 7U) {
    case 0:
      InitCalendarLogicDt(input.About(0, 11));
      break;
    case 1:
      Build();
      m_kindsAreCurrent = true;
      break;
    case 2:
      GotoToday();
      m_kindsAreCurrent = true;
      break;
    case 3:
      GotoPreviousPage();
      break;
    case 4:
      GotoNextPage();
      break;
    case 5:
      GotoDate(input);
      break;
    default:
      GotoTodayOffset(input.About(-40, 40));
      break;
  }
  // A rejected date works out the visible part of the board again as well.
  m_board = ReadBoard();
  m_setSinceBuild = false;
}

void Session::GotoDate(Input& input) {
  const CCalendarSolarDate date{input.About(1899, 2100), input.About(0, 13), input.About(0, 32), 0};
  const Board before = m_board;
  const bool comparable = !m_setSinceBuild;
  GotoSpecifiedDate(date.year, date.month, date.day);
  const bool accepted = date.year >= 1900 && date.year <= 2099 && date.month >= 1 &&
                        date.month <= 12 && date.day >= 1 && date.day <= 31;
  const bool today = date.year == 0 && date.month == 0 && date.day == 0;
  const CCalendarSolarDate focus = GetContentDate();
  if (accepted) {
    ALMARA_CHECK(std::memcmp(&focus, &date, sizeof date) == 0);
    m_kindsAreCurrent = true;
  } else if (!today) {
    ALMARA_CHECK(std::memcmp(&focus, &before.focus, sizeof focus) == 0);
    ALMARA_CHECK(IsTodayInBoard() == before.hasToday);
    ALMARA_CHECK(!comparable || IsEqual(ReadBoard(), before));
  }
}

void Session::CallGetter(Input& input) {
  switch (input.Byte() % 8U) {
    case 0: {
      const std::int32_t a = input.Raw();
      const std::int32_t b = input.Raw();
      ALMARA_CHECK(static_cast<std::uint32_t>(native_add(a, b)) ==
                   static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
      break;
    }
    case 1: {
      const CCalendarSolarDate given{input.Raw(), input.Raw(), input.Raw(), input.Raw()};
      const CCalendarSolarDate made =
          CreateSolarDate(given.year, given.month, given.day, given.dayOfWeek);
      ALMARA_CHECK(std::memcmp(&made, &given, sizeof given) == 0);
      break;
    }
    case 2:
      GetContentItem(input.Raw(), input.Raw());
      break;
    case 3:
      GetCalendarWeekByColumns(input.Raw());
      break;
    case 4:
      GetWeekNumberItemWithIndex(input.Raw());
      break;
    case 5: {
      const std::int32_t day = input.Raw();
      ALMARA_CHECK(!IsBreakDayOfWeek(day) || (day >= 0 && day < kColumns));
      break;
    }
    case 6:
      ConverterLunarWithDate(
          {input.About(1899, 2100), input.Within(1, 12), input.Within(1, 31), 0});
      break;
    default:
      CheckFestivalLunarWithLang(input.About(0, 11), {input.About(1899, 2100), input.Within(1, 12),
                                                      input.Within(1, 31), 0});
      break;
  }
}

void Session::Check() {
  ALMARA_CHECK(IsEqual(ReadBoard(), m_board));  // nothing but a build changes the board
  CheckOptions();
  CheckConfigKey();
  CheckRowsAndColumns();
  CheckCells();
  CheckSpans();
  CheckHeadings();
  CheckOutside();
}

void Session::CheckOptions() const {
  ALMARA_CHECK(GetDispMonth() == m_options.mode);
  ALMARA_CHECK(GetMaxRow() == m_options.rows);
  ALMARA_CHECK(GetPassedWeeks() == m_options.passedWeeks);
  ALMARA_CHECK(GetStartDayOfWeek() == m_options.startDay);
  ALMARA_CHECK(GetStartWeekNumber() == m_options.startWeek);
  ALMARA_CHECK(GetHideBreakDay() == m_options.hideBreakDay);
  ALMARA_CHECK(GetShowMonthInterval() == m_options.hideBreakDay);
  ALMARA_CHECK(GetShowBreakDayOfWeek() == m_options.showBreakDay);
  ALMARA_CHECK(GetWeekNumberCalcType() == m_options.calcType);
  for (std::int32_t day = 0; day < kColumns; ++day) {
    ALMARA_CHECK(IsBreakDayOfWeek(day) == m_options.breakDay[static_cast<std::size_t>(day)]);
  }
}

// Only the columns of the strip, which no exported function sets, and the month intervals, whose
// getter answers for another flag, are not taken from getters.
void Session::CheckConfigKey() const {
  std::string expected;
  for (const std::int32_t number :
       {GetDispMonth(), GetMaxRow(), kColumns, GetPassedWeeks(), GetStartDayOfWeek(),
        GetStartWeekNumber(), GetHideBreakDay() ? 1 : 0, GetWeekNumberCalcType(),
        m_options.monthInterval ? 1 : 0}) {
    expected += std::to_string(number) + "-";
  }
  expected += "(";
  for (const int day : {1, 2, 3, 4, 5, 6, 0}) {
    expected += std::string(IsBreakDayOfWeek(day) ? "1" : "0") + (day == 0 ? ")-" : "-");
  }
  expected += GetShowBreakDayOfWeek() ? "1" : "0";

  char* const key = GetConfigKey();
  ALMARA_CHECK(key != nullptr && expected == key);
  std::free(key);
}

void Session::CheckRowsAndColumns() const {
  for (std::int32_t row = 0; row < m_board.rows; ++row) {
    for (std::int32_t column = 0; column < m_board.columns; ++column) {
      const tagCalendarCell& cell = Cell(row, column);
      ALMARA_CHECK(cell.column >= column && cell.column < kColumns);
      ALMARA_CHECK(cell.row >= row);
      ALMARA_CHECK(column == 0 || cell.column > Cell(row, column - 1).column);
      ALMARA_CHECK(column == 0 || cell.row == Cell(row, column - 1).row);
      ALMARA_CHECK(row == 0 || cell.row > Cell(row - 1, column).row);
      ALMARA_CHECK(row == 0 || cell.column == Cell(row - 1, column).column);
    }
  }
}

void Session::CheckCells() const {
  const CCalendarSolarDate today = GetToday();
  bool anyToday = false;
  const tagCalendarCell* dayBefore = nullptr;
  for (const tagCalendarCell& cell : m_board.cells) {
    ALMARA_CHECK(cell.type >= eCalendarItemEmpty && cell.type <= eCalendarItemMonthTitle);
    if (cell.type == eCalendarItemEmpty) {
      ALMARA_CHECK(cell.year == 0 && cell.month == 0 && cell.day == 0);
    } else if (cell.type == eCalendarItemMonthTitle) {
      ALMARA_CHECK(cell.year == 0 && cell.month >= 1 && cell.month <= 12 && cell.day == 1);
    }
    if (!IsDay(cell)) {
      ALMARA_CHECK(cell.dayOfWeek == 0);
      continue;
    }
    const almara::test::Civil date{cell.year, cell.month, cell.day};
    ALMARA_CHECK(cell.month >= 1 && cell.month <= 12 && cell.day >= 1 &&
                 cell.day <= almara::test::DaysOfMonth(cell.year, cell.month));
    ALMARA_CHECK(cell.dayOfWeek == almara::test::DayOfWeek(date));
    anyToday = anyToday || IsToday(cell);
    if (m_kindsAreCurrent) {
      const bool isToday =
          cell.year == today.year && cell.month == today.month && cell.day == today.day;
      ALMARA_CHECK(IsToday(cell) == isToday);
      ALMARA_CHECK(IsBreakDay(cell) == IsBreakDayOfWeek(cell.dayOfWeek));
    }
    if (dayBefore != nullptr && dayBefore->row == cell.row) {
      const almara::test::Civil before{dayBefore->year, dayBefore->month, dayBefore->day};
      ALMARA_CHECK(almara::test::DayNumber(date) - almara::test::DayNumber(before) ==
                   cell.column - dayBefore->column);
    }
    dayBefore = &cell;
  }
  ALMARA_CHECK(!anyToday || m_board.hasToday);
}

void Session::CheckSpans() const {
  std::int32_t rows = 0;
  for (const tagWeekNumberSpan& span : m_board.spans) {
    ALMARA_CHECK(span.rows >= 1);
    ALMARA_CHECK(span.weekNumber >= 0 && span.secondWeekNumber >= 0);
    rows += span.rows;
  }
  ALMARA_CHECK(rows == m_board.rows);
}

void Session::CheckHeadings() const {
  for (std::int32_t column = 0; column < m_board.columns && m_board.rows > 0; ++column) {
    const tagCalendarCell& cell = Cell(0, column);
    const std::uint32_t sum =
        static_cast<std::uint32_t>(m_options.startDay) + static_cast<std::uint32_t>(cell.column);
    const std::int32_t expected = m_options.mode == eDispMonthDayStrip
                                      ? cell.dayOfWeek
                                      : static_cast<std::int32_t>(sum) % kColumns;
    ALMARA_CHECK(GetCalendarWeekByColumns(column) == expected);
  }
}

void Session::CheckOutside() const {
  const tagCalendarCell none{0, 0, 0, 0, -1, 0, 0, eCalendarItemEmpty};
  ALMARA_CHECK(IsEqual(GetContentItem(m_board.rows, 0), none));
  ALMARA_CHECK(IsEqual(GetContentItem(0, m_board.columns), none));
  ALMARA_CHECK(IsEqual(GetContentItem(-1, 0), none));
  ALMARA_CHECK(IsEqual(GetContentItem(0, -1), none));
  for (const std::int32_t index : {-1, GetWeekNumberCount()}) {
    const tagWeekNumberSpan span = GetWeekNumberItemWithIndex(index);
    ALMARA_CHECK(span.weekNumber == 0 && span.secondWeekNumber == 0 && span.rows == 0);
  }
  ALMARA_CHECK(GetCalendarWeekByColumns(-1) == 0 && GetCalendarWeekByColumns(kColumns) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("TZ", "UTC", 1);
  almara::test::SilenceStandardOutput();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kMaxCalls = 100;
  almara::test::StartFreshEngine();
  almara::test::SetNow(1710331200);  // 2024-03-13 12:00:00 UTC
  Input input(data, size);
  Session session;
  session.Check();
  for (int i = 0; i < kMaxCalls && !input.IsEmpty(); ++i) {
    session.Call(input);
    session.Check();
  }
  return 0;
}
