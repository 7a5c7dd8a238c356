// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ACCURACY_MONTH_RULE_H_
#define ALMARA_TESTS_ACCURACY_MONTH_RULE_H_

#include <vector>

#include "accuracy/lunar_date.h"

namespace almara_accuracy {

// The lunar dates that follow from new moons and solar terms, both in order of time and reaching
// more than a year outside the report, by the rule of the calendar:
//
//   - days run from midnight to midnight of the zone; a month begins on the day of a new moon;
//   - month 11 is the one with the winter solstice;
//   - where 13 months lie from one month 11 up to the next, the first of them that holds no
//     principal term is a leap month and has the number of the month before it;
//   - the year begins with month 1 and has the number of the Gregorian year of that day.
LunarDates DatesByRule(const std::vector<double>& newMoons, const std::vector<SolarTerm>& terms,
                       Zone zone);

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_MONTH_RULE_H_
