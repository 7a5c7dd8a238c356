// SPDX-License-Identifier: MIT
//
// Loading the library against loading one that is empty, and against loading it and asking the
// almanac for the first time.
#include <almara/almanac.h>
#include <benchmark/benchmark.h>
#include <dlfcn.h>

namespace {

void Load(benchmark::State& state, const char* path) {
  for (auto _ : state) {
    void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
      state.SkipWithError(dlerror());
      break;
    }
    dlclose(library);
  }
}
BENCHMARK_CAPTURE(Load, almara, ALMARA_LIBRARY)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Load, empty, EMPTY_LIBRARY)->Unit(benchmark::kMicrosecond);

void LoadAndAskAlmanac(benchmark::State& state) {
  for (auto _ : state) {
    void* library = dlopen(ALMARA_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    const auto lunarDate =
        reinterpret_cast<decltype(&AlmanacLunarDate)>(dlsym(library, "AlmanacLunarDate"));
    const auto solarDate =
        reinterpret_cast<decltype(&AlmanacSolarDate)>(dlsym(library, "AlmanacSolarDate"));
    const CCalendarLunarDate lunar = lunarDate(eAlmanacChina, {2024, 2, 10, 0});
    benchmark::DoNotOptimize(solarDate(eAlmanacKorea, lunar));
    dlclose(library);
  }
}
BENCHMARK(LoadAndAskAlmanac)->Unit(benchmark::kMicrosecond);

}  // namespace
