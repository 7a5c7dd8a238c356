// SPDX-License-Identifier: MIT
#ifndef ALMARA_FUZZERS_SUPPORT_CHECK_H_
#define ALMARA_FUZZERS_SUPPORT_CHECK_H_

#include <ctime>

namespace almara::test {

// Ends the process with the condition's text, so that the fuzzer keeps the input.
[[noreturn]] void ReportBroken(const char* condition, const char* file, int line);

// Sends the text that the engine writes to /dev/null. Reports go to the standard error output.
void SilenceStandardOutput();

// Processor seconds that this thread has used.
double ThreadSeconds();

// Makes time() return the given instant from now on.
void SetNow(std::time_t now);

// Runs call() and reports it as broken if it takes more than the given processor seconds.
template <typename Call>
auto WithinSeconds(double limit, const char* name, Call call) {
  const double begin = ThreadSeconds();
  auto answer = call();
  if (ThreadSeconds() - begin > limit) {
    ReportBroken(name, "more seconds than", static_cast<int>(limit));
  }
  return answer;
}

}  // namespace almara::test

#define ALMARA_CHECK(condition)                                   \
  do {                                                            \
    if (!(condition)) {                                           \
      almara::test::ReportBroken(#condition, __FILE__, __LINE__); \
    }                                                             \
  } while (false)

#endif  // ALMARA_FUZZERS_SUPPORT_CHECK_H_
