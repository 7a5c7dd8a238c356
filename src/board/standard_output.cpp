// SPDX-License-Identifier: MIT
#include "board/standard_output.h"

#include <stdio_ext.h>

#include <csignal>
#include <cstdio>
#include <ctime>

namespace almara {

namespace {

// Keeps SIGPIPE from this thread for the life of the object.
class BrokenPipeGuard {
 public:
  BrokenPipeGuard() {
    sigemptyset(&m_brokenPipe);
    sigaddset(&m_brokenPipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &m_brokenPipe, &m_savedMask);
  }

  ~BrokenPipeGuard() {
    if (sigismember(&m_savedMask, SIGPIPE) == 1) {
      return;  // the host blocks the signal itself and sees to it
    }
    constexpr std::timespec kNoWait{};
    sigtimedwait(&m_brokenPipe, nullptr, &kNoWait);
    pthread_sigmask(SIG_SETMASK, &m_savedMask, nullptr);
  }

  BrokenPipeGuard(const BrokenPipeGuard&) = delete;
  BrokenPipeGuard& operator=(const BrokenPipeGuard&) = delete;

 private:
  sigset_t m_brokenPipe{};
  sigset_t m_savedMask{};
};

// Whether stdio keeps a text of that size back, so that nothing is written yet.
bool FitsBuffer(std::size_t size) {
  return __flbf(stdout) == 0 && __fpending(stdout) + size < __fbufsize(stdout);
}

}  // namespace

std::size_t WriteToStandardOutput(std::string_view text) {
  if (FitsBuffer(text.size())) {
    return std::fwrite(text.data(), 1, text.size(), stdout);
  }
  const BrokenPipeGuard guard;
  return std::fwrite(text.data(), 1, text.size(), stdout);
}

}  // namespace almara
