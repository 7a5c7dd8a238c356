// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_SUPPORT_CLOCK_H_
#define ALMARA_TESTS_SUPPORT_CLOCK_H_

#include <ctime>

// The test programs that link this file have a time() of their own, so that a test can choose the
// day for the engine without the cost of a process per day.
namespace almara::test {

// Makes time() return the given instant from now on.
void SetNow(std::time_t now);

// Makes time() return an instant of the given local day, near its noon. Does not call mktime().
void SetToday(int year, int month, int day);

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_CLOCK_H_
