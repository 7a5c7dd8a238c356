// SPDX-License-Identifier: MIT
//
// Lunar dates of the almanac, in both directions and for days in random order, against ICU's
// Chinese calendar asked for the same ones.
#include <almara/almanac.h>
#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

#include "icu_chinese_calendar.h"
#include "yardstick/days.h"

using almara::test::IcuChineseCalendar;

namespace {

// A prime number of days, so that a round through them never keeps step with anything.
constexpr std::size_t kDays = 9973;

std::vector<CCalendarSolarDate> RandomDays() {
  auto days = almara::test::Shuffled(almara::test::DaysOfYears(1900, 2099));
  days.resize(kDays);
  return days;
}

// The published calendars, and 0 for one of another offset, whose years are reckoned at each call.
EAlmanacCalendar CalendarOf(const benchmark::State& state) {
  const auto calendar = static_cast<EAlmanacCalendar>(state.range(0));
  return calendar != eAlmanacNone ? calendar : AlmanacCalendarAtOffset(345);
}

void AlmanacLunarDates(benchmark::State& state) {
  const EAlmanacCalendar calendar = CalendarOf(state);
  const auto days = RandomDays();
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(AlmanacLunarDate(calendar, days[next]));
    next = next + 1 < kDays ? next + 1 : 0;
  }
}
BENCHMARK(AlmanacLunarDates)->DenseRange(eAlmanacNone, eAlmanacJapan);

void AlmanacSolarDates(benchmark::State& state) {
  const EAlmanacCalendar calendar = CalendarOf(state);
  std::vector<CCalendarLunarDate> dates;
  for (const CCalendarSolarDate& day : RandomDays()) {
    dates.push_back(AlmanacLunarDate(calendar, day));
  }
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(AlmanacSolarDate(calendar, dates[next]));
    next = next + 1 < kDays ? next + 1 : 0;
  }
}
BENCHMARK(AlmanacSolarDates)->DenseRange(eAlmanacNone, eAlmanacJapan);

void IcuLunarDates(benchmark::State& state) {
  IcuChineseCalendar calendar;
  std::vector<UDate> noons;
  for (const CCalendarSolarDate& day : RandomDays()) {
    noons.push_back(calendar.NoonOf(day));
  }
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(calendar.LunarDate(noons[next]));
    next = next + 1 < kDays ? next + 1 : 0;
  }
}
BENCHMARK(IcuLunarDates);

void IcuSolarDates(benchmark::State& state) {
  IcuChineseCalendar calendar;
  std::vector<CCalendarLunarDate> dates;
  for (const CCalendarSolarDate& day : RandomDays()) {
    dates.push_back(calendar.LunarDate(calendar.NoonOf(day)));
  }
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(calendar.SolarDate(dates[next]));
    next = next + 1 < kDays ? next + 1 : 0;
  }
}
BENCHMARK(IcuSolarDates);

}  // namespace
