// SPDX-License-Identifier: MIT
#include "lunar/sekki_lookup.h"

#include <cstddef>

namespace almara {

ESolarKyureki24 SekkiOf(const CCalendarSolarDate& date, double zone, LunarMemo& memo) {
  if (date.year < kFirstSekkiYear || date.year > kLastSekkiYear) {
    return eSekkiNone;
  }
  const SekkiDays& days = memo.SekkiDaysOf(date.year, zone);
  for (std::size_t i = 0; i < kSekkiCount; ++i) {
    if (days.month[i] == date.month && days.day[i] == date.day) {
      return static_cast<ESolarKyureki24>(i);
    }
  }
  return eSekkiNone;
}

}  // namespace almara
