// SPDX-License-Identifier: MIT
#include "board/display_date_list.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "board/calendar_logic_build.h"
#include "date/gregorian.h"
#include "date/int32.h"

using almara::WrapSubtract;

namespace {

void EraseFirst(std::vector<CCalendarSolarDateEx>& list, int count) {
  const auto n =
      std::min(static_cast<std::ptrdiff_t>(count), static_cast<std::ptrdiff_t>(list.size()));
  list.erase(list.begin(), list.begin() + n);
}

void EraseLast(std::vector<CCalendarSolarDateEx>& list, int count) {
  list.resize(list.size() - std::min(static_cast<std::size_t>(count), list.size()));
}

// Only whole rows are cut, so that no day changes its column.
bool IsWholeRows(int surplus) { return surplus > 0 && surplus % almara::kDaysOfWeek == 0; }

}  // namespace

int CCalendarLogicBuild::_GetMaxDaysOfSolarMonth(int year, int month) {
  if (!almara::IsBoardDate(year, month, 1)) {
    return -1;
  }
  return _DaysOfSolarMonth(year, month);
}

int CCalendarLogicBuild::_DaysOfSolarMonth(int year, int month) {
  return almara::DaysOfMonth(year, month);
}

void CCalendarLogicBuild::_MakeDateListWithType(std::vector<CCalendarSolarDateEx>& source,
                                                std::vector<CCalendarSolarDateEx>& display,
                                                int before, int after) const {
  bool dayBefore = false;  // whether an entry in front of the current one is not blank
  for (const CCalendarSolarDateEx& entry : source) {
    if (_NeedsMonthInterval(entry, display.size(), dayBefore)) {
      display.push_back(CCalendarSolarDateEx::IntervalTitle(entry.month));
      display.insert(display.end(), almara::kDaysOfWeek - 1,
                     CCalendarSolarDateEx::IntervalFiller());
    }
    display.push_back(entry);
    dayBefore = dayBefore || !entry.IsBlank();
  }
  const int added = static_cast<int>(display.size() - source.size());
  if (added > 0) {
    _TrimPagedDateList(display, added, before, after);
  }
}

bool CCalendarLogicBuild::_NeedsMonthInterval(const CCalendarSolarDateEx& entry,
                                              std::size_t displayed, bool dayBefore) const {
  return IsShowMonthInterval() && GetDispMonth() != eDispMonthDayStrip && entry.day == 1 &&
         (displayed >= almara::kDaysOfWeek || dayBefore);
}

void CCalendarLogicBuild::_TrimPagedDateList(std::vector<CCalendarSolarDateEx>& display, int added,
                                             int before, int after) const {
  const bool backward = m_pageDirection == ePageDirectionBackward;
  const bool forward = m_pageDirection == ePageDirectionForward;
  if (GetDispMonth() == eDispMonthWholeMonth) {
    if (backward) {
      EraseFirst(display, added);
    } else if (forward) {
      EraseLast(display, added);
    }
    return;
  }
  if (!backward && !forward) {
    return;
  }
  const auto isFocus = [this](const CCalendarSolarDateEx& entry) {
    return entry.year == m_focusYear && entry.month == m_focusMonth && entry.day == m_focusDay;
  };
  const auto found = std::find_if(display.begin(), display.end(), isFocus);
  const bool shown = found != display.end();
  const int focus = shown ? static_cast<int>(found - display.begin()) : 0;
  const int tail = shown ? static_cast<int>(display.end() - found) - 1 : 0;

  const int surplusBefore = WrapSubtract(focus, before);
  if (IsWholeRows(surplusBefore)) {
    EraseFirst(display, surplusBefore);
  }
  const int surplusAfter = WrapSubtract(tail, after);
  if (IsWholeRows(surplusAfter)) {
    EraseLast(display, surplusAfter);
  }
}
