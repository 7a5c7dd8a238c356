// SPDX-License-Identifier: MIT
#include "support/clock.h"

#include <ctime>

namespace {

std::time_t g_now = 1710331200;  // 2024-03-13 12:00:00 UTC

}  // namespace

extern "C" std::time_t time(std::time_t* result) noexcept {
  if (result != nullptr) {
    *result = g_now;
  }
  return g_now;
}

namespace almara::test {

void SetNow(std::time_t now) { g_now = now; }

void SetToday(int year, int month, int day) {
  std::tm noon{};
  noon.tm_year = year - 1900;
  noon.tm_mon = month - 1;
  noon.tm_mday = day;
  noon.tm_hour = 12;
  const std::time_t wanted = timegm(&noon);
  const std::tm* local = std::localtime(&wanted);
  g_now = wanted - local->tm_gmtoff;
}

}  // namespace almara::test
