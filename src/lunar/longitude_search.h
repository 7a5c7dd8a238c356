// SPDX-License-Identifier: MIT
//
// Searches backward from a moment. Moments are local day counts (julian_date.h); the zone is in
// hours, east positive.
#ifndef ALMARA_LUNAR_LONGITUDE_SEARCH_H_
#define ALMARA_LUNAR_LONGITUDE_SEARCH_H_

#include <optional>

namespace almara {

// The moment at which the Sun reaches a longitude.
struct SunCrossing {
  double time;       // local day count
  double longitude;  // degrees
};

// The last solstice or equinox at or before a moment: the Sun at a multiple of 90 degrees. None if
// the search does not settle, which happens only millions of years away.
std::optional<SunCrossing> SolsticeOrEquinoxBefore(double dayCount, double zone);

// The last principal term at or before a moment: the Sun at a multiple of 30 degrees. None as
// above.
std::optional<SunCrossing> PrincipalTermBefore(double dayCount, double zone);

// The new moon at or next before a moment.
double NewMoonBefore(double dayCount, double zone);

}  // namespace almara

#endif  // ALMARA_LUNAR_LONGITUDE_SEARCH_H_
