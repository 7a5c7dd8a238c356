// SPDX-License-Identifier: MIT
//
// Loading the library against loading one that is empty.
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

}  // namespace
