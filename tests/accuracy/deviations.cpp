// SPDX-License-Identifier: MIT
#include "accuracy/deviations.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace almara_accuracy {

namespace {

Deviation DeviationOf(const LunarDate& a, const LunarDate& b) {
  if (a.day != b.day) {
    return Deviation::kDay;
  }
  return a.month != b.month || a.leap != b.leap ? Deviation::kMonth : Deviation::kYear;
}

}  // namespace

std::vector<DeviationSpan> FindDeviations(const LunarDates& a, const LunarDates& b) {
  std::vector<DeviationSpan> spans;
  for (int day = 0; day < kDays; ++day) {
    const auto i = static_cast<std::size_t>(day);
    if (a[i] == b[i]) {
      continue;
    }
    const Deviation deviation = DeviationOf(a[i], b[i]);
    if (!spans.empty() && spans.back().last == day - 1 && spans.back().deviation == deviation) {
      spans.back().last = day;
    } else {
      spans.push_back({day, day, deviation});
    }
  }
  return spans;
}

int CountDays(const std::vector<DeviationSpan>& spans) {
  int days = 0;
  for (const DeviationSpan& span : spans) {
    days += Length(span);
  }
  return days;
}

bool AgreeOn(const DeviationSpan& span, const LunarDates& a, const LunarDates& b) {
  return std::equal(a.begin() + span.first, a.begin() + span.last + 1, b.begin() + span.first);
}

ErrorSummary Summarize(std::vector<InstantError> errors) {
  std::sort(errors.begin(), errors.end(), [](const InstantError& a, const InstantError& b) {
    return std::fabs(a.seconds) < std::fabs(b.seconds);
  });
  return {errors.size(), std::fabs(errors[errors.size() / 2].seconds), errors.back()};
}

}  // namespace almara_accuracy
