// SPDX-License-Identifier: MIT
//
// One call of each exported function of the shared library, as a bridge makes it. Look-ups are of a
// date that is kept already; boards are those of the default options.
#include <almara/almanac.h>
#include <almara/almara.h>
#include <almara/almara_names.h>
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "silent_output.h"

using almara::test::SilentOutput;

namespace {

constexpr CCalendarSolarDate kDate{2024, 2, 10, 0};

template <typename Function>
void Call(benchmark::State& state, Function function) {
  const SilentOutput silent;
  InitCalendarLogicDt(eLanguageChs);
  for (auto _ : state) {
    function();
  }
}

template <typename Function>
void Read(benchmark::State& state, Function function) {
  const SilentOutput silent;
  InitCalendarLogicDt(eLanguageChs);
  for (auto _ : state) {
    benchmark::DoNotOptimize(function());
  }
}

BENCHMARK_CAPTURE(Read, native_add, [] { return native_add(1, 2); });
BENCHMARK_CAPTURE(Read, CreateSolarDate, [] { return CreateSolarDate(2024, 2, 10, 6); });

BENCHMARK_CAPTURE(Call, InitCalendarLogicDt, [] { InitCalendarLogicDt(eLanguageChs); });
BENCHMARK_CAPTURE(Call, Build, [] { Build(); });
BENCHMARK_CAPTURE(Call, GotoToday, [] { GotoToday(); });
BENCHMARK_CAPTURE(Call, GotoPreviousPage, [] { GotoPreviousPage(); });
BENCHMARK_CAPTURE(Call, GotoNextPage, [] { GotoNextPage(); });
BENCHMARK_CAPTURE(Call, GotoSpecifiedDate, [] { GotoSpecifiedDate(2024, 2, 10); });
BENCHMARK_CAPTURE(Call, GotoTodayOffset, [] { GotoTodayOffset(1); });

BENCHMARK_CAPTURE(Read, GetContentRows, [] { return GetContentRows(); });
BENCHMARK_CAPTURE(Read, GetContentColumns, [] { return GetContentColumns(); });
BENCHMARK_CAPTURE(Read, GetContentItem, [] { return GetContentItem(2, 3); });
BENCHMARK_CAPTURE(Read, GetCalendarWeekByColumns, [] { return GetCalendarWeekByColumns(3); });
BENCHMARK_CAPTURE(Read, GetWeekNumberCount, [] { return GetWeekNumberCount(); });
BENCHMARK_CAPTURE(Read, GetWeekNumberItemWithIndex, [] { return GetWeekNumberItemWithIndex(1); });
BENCHMARK_CAPTURE(Read, GetContentDate, [] { return GetContentDate(); });
BENCHMARK_CAPTURE(Read, GetToday, [] { return GetToday(); });
BENCHMARK_CAPTURE(Read, IsTodayInBoard, [] { return IsTodayInBoard(); });

BENCHMARK_CAPTURE(Read, ConverterLunarWithDate, [] { return ConverterLunarWithDate(kDate); });
BENCHMARK_CAPTURE(Read, Check24SekkiWithDate, [] { return Check24SekkiWithDate(kDate); });
BENCHMARK_CAPTURE(Read, CheckFestivalSolarWithLang,
                  [] { return CheckFestivalSolarWithLang(eLanguageChs, kDate); });
BENCHMARK_CAPTURE(Read, CheckFestivalLunarWithLang,
                  [] { return CheckFestivalLunarWithLang(eLanguageChs, kDate); });

BENCHMARK_CAPTURE(Read, AlmanacCalendarAtOffset, [] { return AlmanacCalendarAtOffset(345); });
BENCHMARK_CAPTURE(Read, AlmanacCalendarOfLanguage,
                  [] { return AlmanacCalendarOfLanguage(eLanguageKor); });
BENCHMARK_CAPTURE(Read, AlmanacLunarDate, [] { return AlmanacLunarDate(eAlmanacChina, kDate); });
BENCHMARK_CAPTURE(Read, AlmanacSolarDate, [] {
  return AlmanacSolarDate(eAlmanacChina, {2024, 1, 1, 0, 0});
});
BENCHMARK_CAPTURE(Read, AlmanacFirstDayOfYear,
                  [] { return AlmanacFirstDayOfYear(eAlmanacChina, 2024); });
BENCHMARK_CAPTURE(Read, AlmanacDaysOfYear, [] { return AlmanacDaysOfYear(eAlmanacChina, 2024); });
BENCHMARK_CAPTURE(Read, AlmanacMonthsOfYear,
                  [] { return AlmanacMonthsOfYear(eAlmanacChina, 2024); });
BENCHMARK_CAPTURE(Read, AlmanacLeapMonth, [] { return AlmanacLeapMonth(eAlmanacChina, 2024); });
BENCHMARK_CAPTURE(Read, AlmanacDaysOfMonth,
                  [] { return AlmanacDaysOfMonth(eAlmanacChina, 2024, 1, 0); });
BENCHMARK_CAPTURE(Read, AlmanacNextAnniversary, [] {
  return AlmanacNextAnniversary(eAlmanacChina, {0, 1, 1, 0, 0}, kDate,
                                eAlmanacAnniversaryEveryYear);
});
BENCHMARK_CAPTURE(Read, AlmanacTermInstant,
                  [] { return AlmanacTermInstant(eAlmanacChina, 2024, eSekkiSpringEquinox); });
BENCHMARK_CAPTURE(Read, AlmanacNewMoonOfYear,
                  [] { return AlmanacNewMoonOfYear(eAlmanacChina, 2024, 1); });
BENCHMARK_CAPTURE(Read, AlmanacNewMoonOfMonth,
                  [] { return AlmanacNewMoonOfMonth(eAlmanacChina, 2024, 1, 0); });
BENCHMARK_CAPTURE(Read, AlmanacTermOfDate, [] { return AlmanacTermOfDate(eAlmanacChina, kDate); });
BENCHMARK_CAPTURE(Read, AlmanacLunarFestival,
                  [] { return AlmanacLunarFestival(eAlmanacChina, eLanguageChs, kDate); });

BENCHMARK_CAPTURE(Read, AlmaraSolarTermName,
                  [] { return AlmaraSolarTermName(eSekkiWinterSolstice, eLanguageTha); });
BENCHMARK_CAPTURE(Read, AlmaraSolarTermBriefName,
                  [] { return AlmaraSolarTermBriefName(eSekkiWinterSolstice, eLanguageTha); });
BENCHMARK_CAPTURE(Read, AlmaraFestivalName,
                  [] { return AlmaraFestivalName(eFestivalLunarHungKings, eLanguageTha); });
BENCHMARK_CAPTURE(Read, AlmaraFestivalBriefName,
                  [] { return AlmaraFestivalBriefName(eFestivalLunarHungKings, eLanguageTha); });
BENCHMARK_CAPTURE(Read, AlmaraRegionName,
                  [] { return AlmaraRegionName(eLanguageTha, eLanguageTha); });

BENCHMARK_CAPTURE(Read, GetDispMonth, [] { return GetDispMonth(); });
BENCHMARK_CAPTURE(Call, SetDispMonth, [] { SetDispMonth(eDispMonthRollingWeeks); });
BENCHMARK_CAPTURE(Read, GetMaxRow, [] { return GetMaxRow(); });
BENCHMARK_CAPTURE(Call, SetMaxRow, [] { SetMaxRow(5); });
BENCHMARK_CAPTURE(Read, GetPassedWeeks, [] { return GetPassedWeeks(); });
BENCHMARK_CAPTURE(Call, SetPassedWeeks, [] { SetPassedWeeks(1); });
BENCHMARK_CAPTURE(Read, GetStartDayOfWeek, [] { return GetStartDayOfWeek(); });
BENCHMARK_CAPTURE(Call, SetStartDayOfWeek, [] { SetStartDayOfWeek(eCalendarWeekMonday); });
BENCHMARK_CAPTURE(Read, GetStartWeekNumber, [] { return GetStartWeekNumber(); });
BENCHMARK_CAPTURE(Call, SetStartWeekNumber, [] { SetStartWeekNumber(1); });
BENCHMARK_CAPTURE(Read, GetHideBreakDay, [] { return GetHideBreakDay(); });
BENCHMARK_CAPTURE(Call, SetHideBreakDay, [] { SetHideBreakDay(false); });
BENCHMARK_CAPTURE(Read, GetShowMonthInterval, [] { return GetShowMonthInterval(); });
BENCHMARK_CAPTURE(Call, SetShowMonthInterval, [] { SetShowMonthInterval(true); });
BENCHMARK_CAPTURE(Read, GetShowBreakDayOfWeek, [] { return GetShowBreakDayOfWeek(); });
BENCHMARK_CAPTURE(Call, SetShowBreakDayOfWeek, [] { SetShowBreakDayOfWeek(true); });
BENCHMARK_CAPTURE(Read, GetWeekNumberCalcType, [] { return GetWeekNumberCalcType(); });
BENCHMARK_CAPTURE(Call, SetWeekNumberCalcType,
                  [] { SetWeekNumberCalcType(eWeekNumberCalcIso8601); });
BENCHMARK_CAPTURE(Read, IsBreakDayOfWeek, [] { return IsBreakDayOfWeek(6); });
BENCHMARK_CAPTURE(Call, SetBreakDayOfWeek, [] { SetBreakDayOfWeek(6, true); });
BENCHMARK_CAPTURE(Call, GetConfigKey, [] { std::free(GetConfigKey()); });

}  // namespace
