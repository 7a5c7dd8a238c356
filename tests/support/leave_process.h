// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_SUPPORT_LEAVE_PROCESS_H_
#define ALMARA_TESTS_SUPPORT_LEAVE_PROCESS_H_

#include <unistd.h>

#ifdef ALMARA_COVERAGE
extern "C" void __gcov_dump();
#endif

namespace almara::test {

// Ends a child process at once, as _exit() does. A build that measures coverage counts what ran in
// it.
[[noreturn]] inline void LeaveProcess(int status) {
#ifdef ALMARA_COVERAGE
  __gcov_dump();
#endif
  _exit(status);
}

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_LEAVE_PROCESS_H_
