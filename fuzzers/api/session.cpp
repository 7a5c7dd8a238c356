// SPDX-License-Identifier: MIT
#include "api/session.h"

#include <ctime>
#include <string>

#include "api/raw_bool_setters.h"
#include "support/check.h"
#include "support/exported_board.h"

namespace almara::test {

namespace {

constexpr int kMaxCalls = 100;
constexpr std::int32_t kMaxRow = 120;  // a host must not ask for millions

void ExpectWhole(const char* broken) {
  if (broken != nullptr) {
    ReportBroken(broken, __FILE__, __LINE__);
  }
}

// Winter time an hour back from standard time, as the system's data have it for Europe/Dublin.
constexpr const char* kDublin = "IST-1GMT0,M10.5.0,M3.5.0/1";

void UseZone(const char* zone) {
  setenv("TZ", zone, 1);
  tzset();
}

ShownBoard ReadBoard() {
  ShownBoard board = ReadExportedBoard();
  ExpectWhole(FirstBroken(board));
  return board;
}

}  // namespace

Session::Session() : m_board(ReadBoard()) {
  UseZone("UTC");
  Check();
}

void Session::Run(Input& input) {
  for (int i = 0; i < kMaxCalls && !input.IsEmpty(); ++i) {
    Call(input);
    Check();
  }
}

void Session::Call(Input& input) {
  const std::uint8_t choice = input.Byte();
  if (choice < 100) {
    CallNavigation(input);
  } else if (choice < 200) {
    CallSetter(input);
  } else if (choice < 250) {
    CallGetter(input);
  } else {
    SetNow(static_cast<std::time_t>(input.Within(0, 50000) - 25567) * 86400 +
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
    default:
      CallFlagSetter(input);
      break;
  }
}

void Session::CallFlagSetter(Input& input) {
  const std::uint8_t flag = input.Byte();
  const bool isSet = (flag & 1U) != 0;
  switch (input.Byte() % 6U) {
    case 4:
      RawSetPrintBoard(flag);
      m_options.printBoard = isSet;
      break;
    case 0:
      RawSetHideBreakDay(flag);
      m_options.hideBreakDay = isSet;
      break;
    case 1:
      RawSetShowMonthInterval(flag);
      m_options.monthInterval = isSet;
      break;
    case 2:
      RawSetShowBreakDayOfWeek(flag);
      m_options.showBreakDay = isSet;
      break;
    case 3:
      RawSetCivilDays(flag);
      m_options.civilDays = isSet;
      UseZone(isSet ? kDublin : "UTC");
      break;
    default: {
      const std::int32_t day = input.About(-1, 7);
      RawSetBreakDayOfWeek(day, flag);
      if (day >= 0 && day < kDaysInRow) {
        m_options.breakDay[static_cast<std::size_t>(day)] = isSet;
      }
      break;
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
  const ShownBoard before = m_board;
  const bool comparable = !m_setSinceBuild;
  GotoSpecifiedDate(date.year, date.month, date.day);
  const bool accepted = date.year >= 1900 && date.year <= 2099 && date.month >= 1 &&
                        date.month <= 12 && date.day >= 1 && date.day <= 31;
  const bool today = date.year == 0 && date.month == 0 && date.day == 0;
  const CCalendarSolarDate focus = GetContentDate();
  if (accepted) {
    ALMARA_CHECK(SameBytes(focus, date));
    m_kindsAreCurrent = true;
  } else if (!today) {
    ALMARA_CHECK(SameBytes(focus, before.focus));
    ALMARA_CHECK(IsTodayInBoard() == before.hasToday);
    ALMARA_CHECK(!comparable || IsSameBoard(ReadBoard(), before));
  }
}

void Session::CallGetter(Input& input) {
  switch (input.Byte() % 9U) {
    case 8:
      ForgetAnnotations();  // Check() sees that the board stays
      ReleaseText(nullptr);
      break;
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
      ALMARA_CHECK(SameBytes(made, given));
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
      ALMARA_CHECK(!IsBreakDayOfWeek(day) || (day >= 0 && day < kDaysInRow));
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
  m_board.headings = ReadExportedBoard().headings;
  ALMARA_CHECK(IsSameBoard(ReadBoard(), m_board));  // nothing but a build changes the board
  ExpectWhole(BrokenHeadings(m_board, m_options.mode, m_options.startDay));
  ExpectWhole(BrokenOutside(m_board));
  CheckOptions();
  CheckConfigKey();
  if (m_kindsAreCurrent) {
    CheckKinds();
  }
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
  ALMARA_CHECK(GetPrintBoard() == m_options.printBoard);
  ALMARA_CHECK(GetWeekNumberCalcType() == m_options.calcType);
  ALMARA_CHECK(GetCivilDays() == m_options.civilDays);
  for (std::int32_t day = 0; day < kDaysInRow; ++day) {
    ALMARA_CHECK(IsBreakDayOfWeek(day) == m_options.breakDay[static_cast<std::size_t>(day)]);
  }
}

// Only the columns of the strip, which no exported function sets, and the month intervals, whose
// getter answers for another flag, are not taken from getters.
void Session::CheckConfigKey() const {
  std::string expected;
  for (const std::int32_t number :
       {GetDispMonth(), GetMaxRow(), kDaysInRow, GetPassedWeeks(), GetStartDayOfWeek(),
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
  ReleaseText(key);
}

void Session::CheckKinds() const {
  const CCalendarSolarDate today = GetToday();
  for (const tagCalendarCell& cell : m_board.cells) {
    if (IsDay(cell)) {
      ALMARA_CHECK(IsToday(cell) ==
                   (cell.year == today.year && cell.month == today.month && cell.day == today.day));
      ALMARA_CHECK(IsBreakDay(cell) == IsBreakDayOfWeek(cell.dayOfWeek));
    }
  }
}

}  // namespace almara::test
