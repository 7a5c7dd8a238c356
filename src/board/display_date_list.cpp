// SPDX-License-Identifier: MIT
#include "board/display_date_list.h"

#include <algorithm>
#include <cstddef>

#include "date/gregorian.h"
#include "date/int32.h"

namespace almara {

namespace {

void EraseFirst(DateList& list, int count) {
  const auto n =
      std::min(static_cast<std::ptrdiff_t>(count), static_cast<std::ptrdiff_t>(list.size()));
  list.erase(list.begin(), list.begin() + n);
}

void EraseLast(DateList& list, int count) {
  list.resize(list.size() - std::min(static_cast<std::size_t>(count), list.size()));
}

// Only whole rows are cut, so that no day changes its column.
bool IsWholeRows(int surplus) { return surplus > 0 && surplus % kDaysOfWeek == 0; }

// A day that opens a month, unless nothing but kept-back days stand before it in the first row.
bool NeedsMonthInterval(const CCalendarSolarDateEx& entry, std::size_t displayed, bool dayBefore) {
  return entry.day == 1 && (displayed >= kDaysOfWeek || dayBefore);
}

DateList InsertMonthIntervals(const DateList& source) {
  DateList display;
  display.reserve(kUsualListSize);
  bool dayBefore = false;  // whether an entry in front of the current one is not blank
  for (const CCalendarSolarDateEx& entry : source) {
    if (NeedsMonthInterval(entry, display.size(), dayBefore)) {
      display.push_back(CCalendarSolarDateEx::IntervalTitle(entry.month));
      display.insert(display.end(), kDaysOfWeek - 1, CCalendarSolarDateEx::IntervalFiller());
    }
    display.push_back(entry);
    dayBefore = dayBefore || !entry.IsBlank();
  }
  return display;
}

// The whole rows by which a page has more days on a side of its focus date than were counted. A
// focus date that is not listed counts as the first entry, and as the last.
void TrimPage(DateList& display, const CCalendarSolarDate& focus, int before, int after) {
  const auto isFocus = [&focus](const CCalendarSolarDateEx& entry) {
    return entry.year == focus.year && entry.month == focus.month && entry.day == focus.day;
  };
  const auto found = std::find_if(display.begin(), display.end(), isFocus);
  const bool listed = found != display.end();
  const int listedBefore = listed ? static_cast<int>(found - display.begin()) : 0;
  const int listedAfter = listed ? static_cast<int>(display.end() - found) - 1 : 0;

  const int surplusBefore = WrapSubtract(listedBefore, before);
  if (IsWholeRows(surplusBefore)) {
    EraseFirst(display, surplusBefore);
  }
  const int surplusAfter = WrapSubtract(listedAfter, after);
  if (IsWholeRows(surplusAfter)) {
    EraseLast(display, surplusAfter);
  }
}

}  // namespace

DateList MakeDisplayList(const BoardRequest& request, const DateList& source, int before,
                         int after) {
  const EDispMonth arrangement = request.options.GetDispMonth();
  if (!request.options.IsShowMonthInterval() || arrangement == eDispMonthDayStrip) {
    return source;
  }
  DateList display = InsertMonthIntervals(source);
  const int added = static_cast<int>(display.size() - source.size());
  if (added == 0 || request.direction == PageDirection::kNone) {
    return display;
  }
  if (arrangement != eDispMonthWholeMonth) {
    TrimPage(display, request.focus, before, after);
  } else if (request.direction == PageDirection::kBackward) {
    EraseFirst(display, added);
  } else {
    EraseLast(display, added);
  }
  return display;
}

}  // namespace almara
