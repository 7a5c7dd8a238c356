// SPDX-License-Identifier: MIT
//
// The display list: any options, page directions and counts around real and made-up source lists.
#include "board/display_date_list.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "board/calendar_logic_build.h"
#include "support/check.h"
#include "support/input.h"

namespace {

using almara::test::Input;

constexpr int kMaxRows = 60;

// A board that shows its inside.
class Board : public CCalendarLogicBuild {
 public:
  using CCalendarLogicBuild::m_focusDay;
  using CCalendarLogicBuild::m_focusMonth;
  using CCalendarLogicBuild::m_focusYear;
  using CCalendarLogicBuild::m_pageDirection;
};

void ChooseOptions(Input& input, Board& board) {
  board.SetDispMonth(input.About(1, 4));
  const std::int32_t rows = input.About(-2, kMaxRows);
  board.SetMaxRows(rows > kMaxRows ? kMaxRows : rows);
  board.SetPassedWeeks(input.About(-2, kMaxRows));
  board.SetStartDayOfWeek(input.About(0, 6));
  board.SetShowMonthInterval(input.Flag());
  board.m_pageDirection = input.About(0, 3);
}

CCalendarSolarDateEx ChooseEntry(Input& input) {
  const CCalendarSolarDate date{input.About(1899, 2100), input.About(0, 13), input.About(0, 3), 0};
  return input.Flag() ? CCalendarSolarDateEx::RealDay(date) : CCalendarSolarDateEx::HiddenDay(date);
}

// Bands come as whole rows, and only on a board that was paged to are entries cut.
void CheckList(const std::vector<CCalendarSolarDateEx>& source,
               const std::vector<CCalendarSolarDateEx>& display, const Board& board) {
  ALMARA_CHECK(display.size() <= source.size() * (1 + almara::kDaysOfWeek));
  const bool cuts = board.m_pageDirection == ePageDirectionBackward ||
                    board.m_pageDirection == ePageDirectionForward;
  if (!cuts) {
    ALMARA_CHECK(display.size() >= source.size());
    ALMARA_CHECK((display.size() - source.size()) % almara::kDaysOfWeek == 0);
  }
  if (!board.IsShowMonthInterval() || board.GetDispMonth() == eDispMonthDayStrip) {
    ALMARA_CHECK(display.size() == source.size());
  }
}

void MakeList(Input& input, Board& board) {
  std::vector<CCalendarSolarDateEx> source;
  const int entries = input.Within(0, 40);
  for (int i = 0; i < entries; ++i) {
    source.push_back(ChooseEntry(input));
  }
  if (!source.empty() && input.Flag()) {
    const CCalendarSolarDateEx& focus = source[source.size() / 2];
    board.m_focusYear = focus.year;
    board.m_focusMonth = focus.month;
    board.m_focusDay = focus.day;
  }
  const int before = input.About(-10, 50);
  const int after = input.About(-10, 50);
  std::vector<CCalendarSolarDateEx> display;
  board._MakeDateListWithType(source, display, before, after);
  CheckList(source, display, board);
}

void BuildRows(Input& input, Board& board) {
  const int year = input.About(1899, 2100);
  const int month = input.About(0, 13);
  const int day = input.About(0, 32);
  std::vector<tagCalendarRow> rows(1);
  const int built = board._BuildContent(year, month, day, rows);
  const bool accepted =
      year >= 1900 && year <= 2099 && month >= 1 && month <= 12 && day >= 1 && day <= 31;
  ALMARA_CHECK(built == (accepted ? 1 : 0));
  ALMARA_CHECK(accepted || rows.size() == 1);
  ALMARA_CHECK(rows.size() <= kMaxRows);
  const int days = CCalendarLogicBuild::_GetMaxDaysOfSolarMonth(year, month);
  ALMARA_CHECK(accepted ? days >= 28 && days <= 31 : days >= -1 && days <= 31);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("TZ", "UTC", 1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kMaxRounds = 8;
  Input input(data, size);
  for (int i = 0; i < kMaxRounds && !input.IsEmpty(); ++i) {
    Board board;
    ChooseOptions(input, board);
    if (input.Flag()) {
      MakeList(input, board);
    } else {
      BuildRows(input, board);
    }
  }
  return 0;
}
