// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_SUPPORT_ZONE_H_
#define ALMARA_TESTS_SUPPORT_ZONE_H_

#include <cstdlib>
#include <ctime>
#include <string>

namespace almara::test {

// Puts the process into a time zone while the object lives.
class ScopedZone {
 public:
  explicit ScopedZone(const std::string& zone) {
    const char* before = std::getenv("TZ");
    m_hadZone = before != nullptr;
    m_before = m_hadZone ? before : "";
    setenv("TZ", zone.c_str(), 1);
    tzset();
  }
  ~ScopedZone() {
    if (m_hadZone) {
      setenv("TZ", m_before.c_str(), 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }
  ScopedZone(const ScopedZone&) = delete;
  ScopedZone& operator=(const ScopedZone&) = delete;

 private:
  bool m_hadZone;
  std::string m_before;
};

// The shapes of zones: none, whole hours east, daylight saving, a half hour off, saving of half an
// hour, and one that left out 30 December 2011.
inline const char* const kZones[] = {
    "UTC",          "Asia/Shanghai", "America/New_York", "America/St_Johns", "Australia/Lord_Howe",
    "Pacific/Apia", "Europe/London"};

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_ZONE_H_
