// SPDX-License-Identifier: MIT
#ifndef ALMARA_FUZZERS_API_FRESH_ENGINE_H_
#define ALMARA_FUZZERS_API_FRESH_ENGINE_H_

#include "api/engine.h"
#include "date/calendar_platform_api.h"

namespace almara::test {

// Puts the process back to where it was when the library was loaded, so that an input does the same
// whatever ran before it. Only the festival rules' memory of the last year stays.
inline void StartFreshEngine() {
  delete g_pCalendarLogic;
  g_pCalendarLogic = new CCalendarLogic;
  g_mac_timezone = kTimeZoneUnknown;
}

}  // namespace almara::test

#endif  // ALMARA_FUZZERS_API_FRESH_ENGINE_H_
