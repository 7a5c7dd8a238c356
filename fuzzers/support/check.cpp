// SPDX-License-Identifier: MIT
#include "support/check.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

std::time_t g_now = 1710331200;  // 2024-03-13 12:00:00 UTC

}  // namespace

// Inputs choose the day, and one that broke something breaks it again on any later day.
extern "C" std::time_t time(std::time_t* result) noexcept {
  if (result != nullptr) {
    *result = g_now;
  }
  return g_now;
}

namespace almara::test {

void ReportBroken(const char* condition, const char* file, int line) {
  std::fprintf(stderr, "BROKEN: %s (%s %d)\n", condition, file, line);
  std::abort();
}

void SilenceStandardOutput() {
  if (std::freopen("/dev/null", "w", stdout) == nullptr) {
    ReportBroken("/dev/null can be opened", __FILE__, __LINE__);
  }
}

double ThreadSeconds() {
  std::timespec used{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

void SetNow(std::time_t now) { g_now = now; }

}  // namespace almara::test
