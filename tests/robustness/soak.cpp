// SPDX-License-Identifier: MIT
//
// soak [seconds]: sessions of random calls, each twice on one engine. Fails if the second one needs
// memory: what the first has asked is kept, and nothing else may be.
#include <almara/almara.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <random>
#include <vector>

#include "api/fresh_engine.h"
#include "api/session.h"
#include "support/check.h"
#include "support/input.h"

namespace {

// What the program has asked for and not given back.
std::size_t g_bytesInUse = 0;

// Room in front of each block for its size.
constexpr std::size_t kPrefix = alignof(std::max_align_t);

}  // namespace

void* operator new(std::size_t size) {
  void* const block = std::malloc(size + kPrefix);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  std::memcpy(block, &size, sizeof size);
  g_bytesInUse += size;
  return static_cast<char*>(block) + kPrefix;
}

void operator delete(void* pointer) noexcept {
  if (pointer != nullptr) {
    void* const block = static_cast<char*>(pointer) - kPrefix;
    std::size_t size = 0;
    std::memcpy(&size, block, sizeof size);
    g_bytesInUse -= size;
    std::free(block);
  }
}

void operator delete(void* pointer, std::size_t) noexcept { operator delete(pointer); }

namespace almara::test {

namespace {

constexpr std::size_t kBytesOfSession = 700;

void SetDefaultOptions() {
  const Options options;
  SetDispMonth(options.mode);
  SetMaxRow(options.rows);
  SetPassedWeeks(options.passedWeeks);
  SetStartDayOfWeek(options.startDay);
  SetStartWeekNumber(options.startWeek);
  SetHideBreakDay(options.hideBreakDay);
  SetShowMonthInterval(options.monthInterval);
  SetShowBreakDayOfWeek(options.showBreakDay);
  SetWeekNumberCalcType(options.calcType);
  SetPrintBoard(options.printBoard);
  SetCivilDays(options.civilDays);
  for (std::int32_t day = 0; day < kDaysInRow; ++day) {
    SetBreakDayOfWeek(day, options.breakDay[static_cast<std::size_t>(day)]);
  }
}

// Begins with the options and the board of a fresh engine, whatever came before.
void Repeat(const std::vector<std::uint8_t>& bytes) {
  setenv("TZ", "UTC", 1);  // a session may have left another zone
  tzset();
  SetDefaultOptions();
  SetNow(1710331200);  // 2024-03-13 12:00:00 UTC
  GotoToday();
  Input input(bytes.data(), bytes.size());
  Session().Run(input);
}

int Soak(double seconds) {
  using Clock = std::chrono::steady_clock;
  std::mt19937 random(1);
  std::vector<std::uint8_t> bytes(kBytesOfSession);
  long sessions = 0;
  const auto start = Clock::now();
  while (std::chrono::duration<double>(Clock::now() - start).count() < seconds) {
    for (std::uint8_t& byte : bytes) {
      byte = static_cast<std::uint8_t>(random());
    }
    StartFreshEngine();
    Repeat(bytes);
    const std::size_t before = g_bytesInUse;
    Repeat(bytes);
    if (g_bytesInUse > before) {
      std::fprintf(stderr, "session %ld needs %zu bytes more when it is repeated\n", sessions,
                   g_bytesInUse - before);
      return EXIT_FAILURE;
    }
    ++sessions;
  }
  std::fprintf(stderr, "%ld sessions, each repeated without a byte more\n", sessions);
  return sessions > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

}  // namespace almara::test

int main(int argc, char** argv) {
  setenv("TZ", "UTC", 1);
  almara::test::SilenceStandardOutput();
  return almara::test::Soak(argc > 1 ? std::strtod(argv[1], nullptr) : 600);
}
