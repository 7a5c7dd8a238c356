// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_DAY_COUNTING_H_
#define ALMARA_DATE_DAY_COUNTING_H_

namespace almara {

// How the engine counts from one day to another.
enum class DayCounting {
  kLocalTime,  // 86400 seconds of local time a day, as the system's time-zone database has it
  kCivil,      // by the calendar alone; asks no clock and no zone
};

}  // namespace almara

#endif  // ALMARA_DATE_DAY_COUNTING_H_
