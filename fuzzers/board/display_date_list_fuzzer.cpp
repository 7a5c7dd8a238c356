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

using almara::PageDirection;
using almara::test::Input;

constexpr int kMaxRows = 60;

void ChooseOptions(Input& input, CCalendarLogicBuild& board) {
  board.SetDispMonth(input.About(1, 4));
  const std::int32_t rows = input.About(-2, kMaxRows);
  board.SetMaxRows(rows > kMaxRows ? kMaxRows : rows);
  board.SetPassedWeeks(input.About(-2, kMaxRows));
  board.SetStartDayOfWeek(input.About(0, 6));
  board.SetShowMonthInterval(input.Flag());
}

CCalendarSolarDateEx ChooseEntry(Input& input) {
  const CCalendarSolarDate date{input.About(1899, 2100), input.About(0, 13), input.About(0, 3), 0};
  return input.Flag() ? CCalendarSolarDateEx::RealDay(date)
                      : CCalendarSolarDateEx::KeptBackDay(date);
}

// Month intervals come as whole rows, and only on a board that was paged to are entries cut.
void CheckList(const almara::BoardRequest& request, const almara::DateList& source,
               const almara::DateList& display) {
  ALMARA_CHECK(display.size() <= source.size() * (1 + almara::kDaysOfWeek));
  if (request.direction == PageDirection::kNone) {
    ALMARA_CHECK(display.size() >= source.size());
    ALMARA_CHECK((display.size() - source.size()) % almara::kDaysOfWeek == 0);
  }
  const CCalendarConfig& options = request.options;
  if (!options.IsShowMonthInterval() || options.GetDispMonth() == eDispMonthDayStrip) {
    ALMARA_CHECK(display.size() == source.size());
  }
}

void MakeList(Input& input, const CCalendarConfig& options, PageDirection direction) {
  almara::DateList source;
  const int entries = input.Within(0, 40);
  for (int i = 0; i < entries; ++i) {
    source.push_back(ChooseEntry(input));
  }
  CCalendarSolarDate focus{};
  if (!source.empty() && input.Flag()) {
    focus = source[source.size() / 2].ShownDate();
  }
  const int before = input.About(-10, 50);
  const int after = input.About(-10, 50);
  const almara::BoardRequest request{options, focus, {}, direction};
  CheckList(request, source, almara::MakeDisplayList(request, source, before, after));
}

void BuildRows(Input& input, CCalendarLogicBuild& board, PageDirection direction) {
  const int year = input.About(1899, 2100);
  const int month = input.About(0, 13);
  const int day = input.About(0, 32);
  std::vector<tagCalendarRow> rows(1);
  const int built = board._BuildContent(year, month, day, rows, direction);
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
    CCalendarLogicBuild board;
    ChooseOptions(input, board);
    const auto direction = static_cast<PageDirection>(input.Within(0, 2));
    if (input.Flag()) {
      MakeList(input, board, direction);
    } else {
      BuildRows(input, board, direction);
    }
  }
  return 0;
}
