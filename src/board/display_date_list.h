// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_DISPLAY_DATE_LIST_H_
#define ALMARA_BOARD_DISPLAY_DATE_LIST_H_

#include <almara/almara_types.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

#include "board/board_request.h"

// One entry of the flat lists from which a board is cut, of four kinds:
//   real day               the date above, zeroes below
//   kept-back day          zeroes above, the date below: fills the first row and is left blank
//   month-interval title   year 0, the month that begins, day 1; zeroes below
//   month-interval filler  all zeroes
struct CCalendarSolarDateEx {
  std::int32_t year;
  std::int32_t month;
  std::int32_t day;
  std::int32_t dayOfWeek;
  std::int32_t hiddenYear;
  std::int32_t hiddenMonth;
  std::int32_t hiddenDay;
  std::int32_t hiddenDayOfWeek;

  static CCalendarSolarDateEx RealDay(const CCalendarSolarDate& date) {
    return {date.year, date.month, date.day, date.dayOfWeek, 0, 0, 0, 0};
  }
  static CCalendarSolarDateEx KeptBackDay(const CCalendarSolarDate& date) {
    return {0, 0, 0, 0, date.year, date.month, date.day, date.dayOfWeek};
  }
  static CCalendarSolarDateEx IntervalTitle(std::int32_t month) {
    return {0, month, 1, 0, 0, 0, 0, 0};
  }
  static CCalendarSolarDateEx IntervalFiller() { return {}; }

  // Kept-back days and fillers.
  bool IsBlank() const { return year == 0 && month == 0 && day == 0; }
  bool IsIntervalTitle() const { return year == 0 && day == 1; }

  CCalendarSolarDate ShownDate() const { return {year, month, day, dayOfWeek}; }
};
static_assert(sizeof(CCalendarSolarDateEx) == 32 && std::is_trivial_v<CCalendarSolarDateEx>);

namespace almara {

using DateList = std::vector<CCalendarSolarDateEx>;

constexpr std::size_t kUsualListSize =
    80;  // entries; spares the lists of usual boards their growth

// The entries of a board in the order of its cells: source with a month interval, seven entries, in
// front of each month that begins inside it. Under a page direction the whole rows that the
// intervals pushed past the wanted days are cut again; the whole month loses as many entries as
// were inserted, paging backward from its front. before and after are the days counted on the two
// sides of the focus date.
DateList MakeDisplayList(const BoardRequest& request, const DateList& source, int before,
                         int after);

}  // namespace almara

#endif  // ALMARA_BOARD_DISPLAY_DATE_LIST_H_
