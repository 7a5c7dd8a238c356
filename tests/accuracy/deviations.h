// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ACCURACY_DEVIATIONS_H_
#define ALMARA_TESTS_ACCURACY_DEVIATIONS_H_

#include <vector>

#include "accuracy/lunar_date.h"

namespace almara_accuracy {

enum class Deviation {
  kDay,    // the month began on another day
  kMonth,  // the month has another number, or is leap in one calendar only
  kYear,   // only the year is another
};

// Days in a row, the last one included, on which two calendars differ in the same manner.
struct DeviationSpan {
  int first;
  int last;
  Deviation deviation;
};

inline int Length(const DeviationSpan& span) { return span.last - span.first + 1; }

std::vector<DeviationSpan> FindDeviations(const LunarDates& a, const LunarDates& b);

int CountDays(const std::vector<DeviationSpan>& spans);

bool AgreeOn(const DeviationSpan& span, const LunarDates& a, const LunarDates& b);

// Two moments of the same event, and how far they are apart.
struct InstantError {
  double moment;   // the true one
  double seconds;  // above 0 where the engine's is later
};

struct ErrorSummary {
  std::size_t count;
  double median;       // of the sizes, in seconds
  InstantError worst;  // by size
};

ErrorSummary Summarize(std::vector<InstantError> errors);

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_DEVIATIONS_H_
