// SPDX-License-Identifier: MIT
//
// The festival rules keep state for the life of a process. These run a piece of code in a child
// process that has not asked them yet, provided that the test itself has not.
#ifndef ALMARA_TESTS_FESTIVAL_IN_FRESH_PROCESS_H_
#define ALMARA_TESTS_FESTIVAL_IN_FRESH_PROCESS_H_

#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

#include "support/leave_process.h"

namespace almara::test {

// The int that compute returns in a child process.
template <typename Compute>
int ValueInFreshProcess(Compute compute) {
  int ends[2];
  if (pipe(ends) != 0) {
    throw std::runtime_error("no pipe");
  }
  const pid_t child = fork();
  if (child == 0) {
    const int value = compute();
    LeaveProcess(write(ends[1], &value, sizeof value) == sizeof value ? 0 : 1);
  }
  close(ends[1]);
  int value = 0;
  const bool complete = read(ends[0], &value, sizeof value) == sizeof value;
  close(ends[0]);
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child || status != 0 || !complete) {
    throw std::runtime_error("the child process did not answer");
  }
  return value;
}

template <typename Predicate>
bool HoldsInFreshProcess(Predicate holds) {
  return ValueInFreshProcess([&] { return holds() ? 1 : 0; }) == 1;
}

}  // namespace almara::test

#endif  // ALMARA_TESTS_FESTIVAL_IN_FRESH_PROCESS_H_
