// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_TRUNCATED_H_
#define ALMARA_LUNAR_TRUNCATED_H_

#include "date/int32.h"

namespace almara {

// TruncateToInt32 as a double, for formulas that go on in floating point. Toward zero, never floor:
// the astronomy relies on the difference for negative values.
constexpr double Truncated(double value) { return TruncateToInt32(value); }

}  // namespace almara

#endif  // ALMARA_LUNAR_TRUNCATED_H_
