// SPDX-License-Identifier: MIT
//
// The 24 solar terms of a year, as one table and day by day through the look-up of a fresh engine,
// against the same 24 crossings by the Swiss Ephemeris with its built-in theory.
#include <benchmark/benchmark.h>
#include <swephexp.h>

#include <vector>

#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"
#include "lunar/calendar_lunar_solar_terms.h"
#include "yardstick/days.h"

namespace {

constexpr int kYear = 2024;

void SolarTermTable(benchmark::State& state) {
  g_mac_timezone = 8;
  for (auto _ : state) {
    CCalendarLunarSolarTerms terms;
    tag24SekkiResult results[kSekkiCount]{};
    terms._GetSekkiByYear(kYear, results);
    benchmark::DoNotOptimize(results);
  }
}
BENCHMARK(SolarTermTable)->Unit(benchmark::kMicrosecond);

void SolarTermsOfEveryDay(benchmark::State& state) {
  g_mac_timezone = 8;
  const auto days = almara::test::DaysOfYears(kYear, kYear);
  for (auto _ : state) {
    CCalendarLogic engine;
    for (const CCalendarSolarDate& day : days) {
      benchmark::DoNotOptimize(engine.Check24Sekki(day));
    }
  }
}
BENCHMARK(SolarTermsOfEveryDay)->Unit(benchmark::kMicrosecond);

void SolarTermsSwissEphemeris(benchmark::State& state) {
  char error[AS_MAXCH];
  for (auto _ : state) {
    double instant = swe_julday(kYear, 1, 1, 0, SE_GREG_CAL);
    for (int term = 0; term < kSekkiCount; ++term) {
      const double longitude = (285 + 15 * term) % 360;
      instant = swe_solcross_ut(longitude, instant, SEFLG_MOSEPH, error);
      benchmark::DoNotOptimize(instant);
    }
  }
}
BENCHMARK(SolarTermsSwissEphemeris)->Unit(benchmark::kMicrosecond);

}  // namespace
