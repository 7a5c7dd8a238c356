// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_RECKONING_H_
#define ALMARA_ALMANAC_RECKONING_H_

#include <cstdint>

#include "almanac/instants.h"

namespace almara {

// How a calendar tells the civil day of an instant: its times, and what it printed otherwise.
struct Reckoning {
  std::int64_t changes[2];  // instants from which the second and the third time are in force
  std::int32_t offsets[3];  // the times, in seconds east of Greenwich
  std::int32_t
      printedNextDay;  // day number of a new moon whose month was printed a day later, or 0
};

// Seconds east of Greenwich in force at an instant.
constexpr std::int32_t OffsetAt(const Reckoning& reckoning, std::int64_t instant) {
  return reckoning.offsets[(instant >= reckoning.changes[0] ? 1 : 0) +
                           (instant >= reckoning.changes[1] ? 1 : 0)];
}

// Number of the civil day that holds an instant of the table.
constexpr int CivilDay(const Reckoning& reckoning, std::int64_t instant) {
  const std::int64_t local = instant + OffsetAt(reckoning, instant);
  return static_cast<int>(static_cast<std::uint64_t>(local) / kSecondsOfDay) + kOriginDay;
}

// Number of the day that begins the month of new moon k.
constexpr int MonthStart(const Reckoning& reckoning, int k) {
  const int day = CivilDay(reckoning, NewMoon(k));
  return day == reckoning.printedNextDay ? day + 1 : day;
}

}  // namespace almara

#endif  // ALMARA_ALMANAC_RECKONING_H_
