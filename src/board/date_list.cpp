// SPDX-License-Identifier: MIT
#include "board/date_list.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "date/gregorian.h"
#include "date/int32.h"

namespace almara {

namespace {

// A page backward may lose rows at its front, so that it lists every counted day; all other boards
// list only the days that their rows show.
std::size_t CountListedDays(PageDirection direction, int rows) {
  if (rows > 0 && direction == PageDirection::kBackward) {
    return std::numeric_limits<std::size_t>::max();
  }
  return static_cast<std::size_t>(std::max(rows, 0)) * kDaysOfWeek;
}

}  // namespace

DateList ListDates(const BoardRequest& request, const FocusDay& focus, const DayCounts& counts) {
  DateList list;
  list.reserve(kUsualListSize);
  const std::size_t listedDays = CountListedDays(request.direction, counts.rows);
  const auto append = [&](int count, int firstOffset, bool keptBack) {
    for (int i = 0; i < count && list.size() < listedDays; ++i) {
      CCalendarSolarDate date{};
      focus.run.DateAt(WrapAdd(firstOffset, i), date);
      list.push_back(keptBack ? CCalendarSolarDateEx::KeptBackDay(date)
                              : CCalendarSolarDateEx::RealDay(date));
    }
  };
  append(counts.lead, WrapSubtract(0, WrapAdd(counts.before, counts.lead)),
         request.options.IsShowMonthInterval());
  append(counts.before, WrapSubtract(0, counts.before), false);
  list.push_back(CCalendarSolarDateEx::RealDay(focus.date));
  append(counts.after, 1, false);
  append(counts.trail, WrapAdd(counts.after, 1), false);
  return list;
}

}  // namespace almara
