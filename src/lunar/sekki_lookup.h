// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_SEKKI_LOOKUP_H_
#define ALMARA_LUNAR_SEKKI_LOOKUP_H_

#include <almara/almara_types.h>

#include "lunar/lunar_memo.h"

namespace almara {

// The solar term that falls on a local civil date, eSekkiNone if none does; the day of the week is
// not read. Years 1800 to 2099; others have none, and nothing is worked out for them. A date that
// does not exist holds no term. The zone is in hours. The year's terms are kept in memo.
ESolarKyureki24 SekkiOf(const CCalendarSolarDate& date, double zone, LunarMemo& memo);

}  // namespace almara

#endif  // ALMARA_LUNAR_SEKKI_LOOKUP_H_
