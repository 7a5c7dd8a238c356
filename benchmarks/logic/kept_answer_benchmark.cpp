// SPDX-License-Identifier: MIT
//
// A look-up that was answered before, with 10^3 to 10^6 answers kept, asked in the order of the
// calendar and in random order, against one find() with a ready key in a std::map of the same size.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "date/calendar_platform_api.h"
#include "date/decimal_text.h"
#include "logic/calendar_logic.h"
#include "yardstick/days.h"

namespace {

// Days from year 3000 on, which is outside the years of the solar terms: filling takes no time.
std::vector<CCalendarSolarDate> Days(std::size_t count, bool shuffled) {
  auto days = almara::test::DaysOfYears(3000, 3000 + static_cast<int>(count / 365) + 1);
  days.resize(count);
  return shuffled ? almara::test::Shuffled(days) : days;
}

std::vector<CCalendarSolarDate> NewYearsDays(int first, int last) {
  std::vector<CCalendarSolarDate> days;
  for (int year = first; year <= last; ++year) {
    days.push_back({year, 1, 1, 0});
  }
  return days;
}

std::string KeyOf(const CCalendarSolarDate& date) {
  char text[3 * almara::kMaxDecimalLength + 2];
  return {text, almara::AppendDate(text, date.year, date.month, date.day)};
}

void KeptAnswers(benchmark::State& state, bool shuffled) {
  g_mac_timezone = 8;
  const auto days = Days(static_cast<std::size_t>(state.range(0)), shuffled);
  CCalendarLogic engine;
  for (const CCalendarSolarDate& day : days) {
    engine.Check24Sekki(day);
  }
  std::size_t index = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(engine.Check24Sekki(days[index]));
    index = index + 1 < days.size() ? index + 1 : 0;
  }
}
BENCHMARK_CAPTURE(KeptAnswers, in_order, false)->RangeMultiplier(10)->Range(1000, 1000000);
BENCHMARK_CAPTURE(KeptAnswers, random_order, true)->RangeMultiplier(10)->Range(1000, 1000000);

void MapFind(benchmark::State& state, bool shuffled) {
  const auto days = Days(static_cast<std::size_t>(state.range(0)), shuffled);
  std::map<std::string, int> map;
  std::vector<std::string> keys;
  for (const CCalendarSolarDate& day : days) {
    keys.push_back(KeyOf(day));
    map[keys.back()] = -1;
  }
  std::size_t index = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(map.find(keys[index])->second);
    index = index + 1 < keys.size() ? index + 1 : 0;
  }
}
BENCHMARK_CAPTURE(MapFind, in_order, false)->RangeMultiplier(10)->Range(1000, 1000000);
BENCHMARK_CAPTURE(MapFind, random_order, true)->RangeMultiplier(10)->Range(1000, 1000000);

// Memory kept for a date once all four look-ups of it are answered.
void BytesOfAnsweredDate(benchmark::State& state, const std::vector<CCalendarSolarDate>& days) {
  g_mac_timezone = 8;
  for (auto _ : state) {
    const std::size_t before = mallinfo2().uordblks;
    CCalendarLogic engine;
    for (const CCalendarSolarDate& day : days) {
      benchmark::DoNotOptimize(engine.ConverterLunar(day));
      benchmark::DoNotOptimize(engine.Check24Sekki(day));
      benchmark::DoNotOptimize(engine.CheckFestivalSolar(eLanguageChs, day));
      benchmark::DoNotOptimize(engine.CheckFestivalLunar(eLanguageChs, day));
    }
    state.counters["bytes"] =
        static_cast<double>(mallinfo2().uordblks - before) / static_cast<double>(days.size());
  }
}
BENCHMARK_CAPTURE(BytesOfAnsweredDate, every_day, almara::test::DaysOfYears(1950, 2049))
    ->Iterations(1);
BENCHMARK_CAPTURE(BytesOfAnsweredDate, one_a_year, NewYearsDays(3000, 13000))->Iterations(1);

}  // namespace
