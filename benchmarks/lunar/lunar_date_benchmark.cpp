// SPDX-License-Identifier: MIT
//
// The lunar date of every day of 2000 to 2050, by a fresh engine each time, against ICU's Chinese
// calendar asked for the same days in the same order.
#include <benchmark/benchmark.h>

#include <vector>

#include "date/calendar_platform_api.h"
#include "icu_chinese_calendar.h"
#include "logic/calendar_logic.h"
#include "yardstick/days.h"

using almara::test::IcuChineseCalendar;

namespace {

std::vector<CCalendarSolarDate> Days(bool shuffled) {
  auto days = almara::test::DaysOfYears(2000, 2050);
  return shuffled ? almara::test::Shuffled(days) : days;
}

void LunarDates(benchmark::State& state, bool shuffled) {
  g_mac_timezone = 8;
  const auto days = Days(shuffled);
  for (auto _ : state) {
    CCalendarLogic engine;
    for (const CCalendarSolarDate& day : days) {
      benchmark::DoNotOptimize(engine.ConverterLunar(day));
    }
  }
}
BENCHMARK_CAPTURE(LunarDates, in_order, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LunarDates, random_order, true)->Unit(benchmark::kMillisecond);

void LunarDatesIcu(benchmark::State& state, bool shuffled) {
  IcuChineseCalendar calendar;
  std::vector<UDate> noons;
  for (const CCalendarSolarDate& day : Days(shuffled)) {
    noons.push_back(calendar.NoonOf(day));
  }
  for (auto _ : state) {
    for (const UDate noon : noons) {
      benchmark::DoNotOptimize(calendar.LunarDate(noon));
    }
  }
}
BENCHMARK_CAPTURE(LunarDatesIcu, in_order, false)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(LunarDatesIcu, random_order, true)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
