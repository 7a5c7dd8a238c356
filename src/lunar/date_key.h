// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_DATE_KEY_H_
#define ALMARA_LUNAR_DATE_KEY_H_

#include <almara/almara_types.h>

#include <string>

namespace almara {

// A date as the key of a table, "2024-02-10": year with at least four digits, month and day with at
// least two; a negative field keeps its sign (year -1 gives "-0001-01-01"). The day of the week is
// not part of it. Every int is accepted.
std::string DateKey(CCalendarSolarDate date);

}  // namespace almara

#endif  // ALMARA_LUNAR_DATE_KEY_H_
