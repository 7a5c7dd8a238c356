// SPDX-License-Identifier: MIT
//
// All four look-ups of every day of a year, by a fresh engine each time, against the
// straightforward form of the same.
#include <benchmark/benchmark.h>

#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"
#include "yardstick/days.h"
#include "yardstick/engine.h"

namespace yardstick = almara::test::yardstick;

namespace {

constexpr int kYear = 2024;

template <typename Engine>
void AllLookups(benchmark::State& state) {
  g_mac_timezone = 8;
  const auto language = static_cast<ELanguage>(state.range(0));
  const auto days = almara::test::DaysOfYears(kYear, kYear);
  for (auto _ : state) {
    Engine engine;
    for (const CCalendarSolarDate& day : days) {
      benchmark::DoNotOptimize(engine.ConverterLunar(day));
      benchmark::DoNotOptimize(engine.Check24Sekki(day));
      benchmark::DoNotOptimize(engine.CheckFestivalSolar(language, day));
      benchmark::DoNotOptimize(engine.CheckFestivalLunar(language, day));
    }
  }
}
BENCHMARK_TEMPLATE(AllLookups, CCalendarLogic)
    ->DenseRange(eLanguageChs, eLanguageTha)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(AllLookups, yardstick::Engine)
    ->DenseRange(eLanguageChs, eLanguageTha)
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(3);

}  // namespace
