// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ROBUSTNESS_FAILURES_TO_STDERR_H_
#define ALMARA_TESTS_ROBUSTNESS_FAILURES_TO_STDERR_H_

#include <gtest/gtest.h>

#include <cstdio>

namespace almara::test {

// Writes what failed to the standard error output too, for programs whose tests take away the
// standard output.
class FailuresToStderr : public testing::EmptyTestEventListener {
 public:
  void OnTestPartResult(const testing::TestPartResult& result) override {
    if (result.failed()) {
      std::fprintf(stderr, "%s:%d: %s\n", result.file_name(), result.line_number(),
                   result.message());
    }
  }
};

inline const bool kFailuresGoToStderr = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new FailuresToStderr);
  return true;
}();

}  // namespace almara::test

#endif  // ALMARA_TESTS_ROBUSTNESS_FAILURES_TO_STDERR_H_
