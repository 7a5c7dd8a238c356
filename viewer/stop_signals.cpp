// SPDX-License-Identifier: MIT
#include "stop_signals.h"

#include <csignal>

namespace almara::viewer {
namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

volatile std::sig_atomic_t g_signal = 0;

extern "C" void RememberSignal(int signal) { g_signal = signal; }

}  // namespace

StopSignals::StopSignals() {
  for (const int signal : kSignals) {
    struct sigaction action {};
    action.sa_handler = RememberSignal;
    sigaction(signal, &action, nullptr);
  }
}

bool StopSignals::Arrived() { return g_signal != 0; }

void StopSignals::Deliver() {
  if (Arrived()) {
    std::signal(g_signal, SIG_DFL);
    std::raise(g_signal);
  }
}

}  // namespace almara::viewer
