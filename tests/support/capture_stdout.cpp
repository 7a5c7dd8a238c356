// SPDX-License-Identifier: MIT
#include "support/capture_stdout.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace almara::test {

namespace {

// GoogleTest reports failures on the standard output, where a capture would swallow them.
class FailuresToStderr : public testing::EmptyTestEventListener {
 public:
  static void Install() {
    static const bool installed = [] {
      testing::UnitTest::GetInstance()->listeners().Append(new FailuresToStderr);
      return true;
    }();
    static_cast<void>(installed);
  }

  void OnTestPartResult(const testing::TestPartResult& result) override {
    if (result.failed()) {
      std::fprintf(stderr, "%s:%d: %s\n", result.file_name(), result.line_number(),
                   result.message());
    }
  }
};

}  // namespace

CaptureStdout::CaptureStdout()
    : m_saved(dup(STDOUT_FILENO)), m_file(memfd_create("captured stdout", 0)) {
  FailuresToStderr::Install();
  std::fflush(stdout);
  if (m_saved < 0 || m_file < 0 || dup2(m_file, STDOUT_FILENO) < 0) {
    std::perror("capturing the standard output");
    std::abort();
  }
}

CaptureStdout::~CaptureStdout() {
  std::fflush(stdout);
  dup2(m_saved, STDOUT_FILENO);
  close(m_saved);
  close(m_file);
}

std::string CaptureStdout::Take() {
  std::fflush(stdout);
  std::string text(static_cast<std::size_t>(lseek(m_file, 0, SEEK_END)), '\0');
  if (pread(m_file, text.data(), text.size(), 0) != static_cast<ssize_t>(text.size()) ||
      ftruncate(m_file, 0) != 0) {
    std::abort();
  }
  lseek(m_file, 0, SEEK_SET);
  return text;
}

}  // namespace almara::test
