// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ACCURACY_EPHEMERIS_H_
#define ALMARA_TESTS_ACCURACY_EPHEMERIS_H_

#include <vector>

#include "accuracy/lunar_date.h"

namespace almara_accuracy {

// The true new moons and solar terms around the years of the report, in order of time, from the
// ephemeris that is built into Swiss Ephemeris: apparent geocentric longitudes, turned from
// dynamical to universal time by the library's own delta T (a prognosis for the years to come).
// They begin and end a good year outside the report, as numbering the months needs.
struct Ephemeris {
  std::vector<double> newMoons;  // moments
  std::vector<SolarTerm> terms;  // all 24 of each year
};

Ephemeris ComputeEphemeris();

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_EPHEMERIS_H_
