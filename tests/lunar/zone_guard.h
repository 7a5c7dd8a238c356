// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_LUNAR_ZONE_GUARD_H_
#define ALMARA_TESTS_LUNAR_ZONE_GUARD_H_

#include "date/calendar_platform_api.h"

namespace almara::test {

// Sets the zone of the astronomy, in hours, for the length of a scope.
class ZoneGuard {
 public:
  explicit ZoneGuard(int hours) : m_before(g_mac_timezone) { g_mac_timezone = hours; }
  ~ZoneGuard() { g_mac_timezone = m_before; }
  ZoneGuard(const ZoneGuard&) = delete;
  ZoneGuard& operator=(const ZoneGuard&) = delete;

 private:
  int m_before;
};

}  // namespace almara::test

#endif  // ALMARA_TESTS_LUNAR_ZONE_GUARD_H_
