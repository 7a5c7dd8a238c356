// SPDX-License-Identifier: MIT
#ifndef ALMARA_BENCHMARKS_SILENT_OUTPUT_H_
#define ALMARA_BENCHMARKS_SILENT_OUTPUT_H_

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace almara::test {

// Sends the standard output, where boards are dumped, to /dev/null for the life of the object.
class SilentOutput {
 public:
  SilentOutput() {
    std::fflush(stdout);
    const int null = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(null, STDOUT_FILENO);
    close(null);
  }
  ~SilentOutput() {
    std::fflush(stdout);
    dup2(m_saved, STDOUT_FILENO);
    close(m_saved);
  }
  SilentOutput(const SilentOutput&) = delete;
  SilentOutput& operator=(const SilentOutput&) = delete;

 private:
  int m_saved = dup(STDOUT_FILENO);
};

}  // namespace almara::test

#endif  // ALMARA_BENCHMARKS_SILENT_OUTPUT_H_
