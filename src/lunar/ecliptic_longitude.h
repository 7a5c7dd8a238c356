// SPDX-License-Identifier: MIT
//
// The longitudes that the lunar dates are worked out from. Angles are in degrees; times are Julian
// centuries of 36525 days from 2000-01-01 12:00 (Julian date 2451545.0), in universal time.
#ifndef ALMARA_LUNAR_ECLIPTIC_LONGITUDE_H_
#define ALMARA_LUNAR_ECLIPTIC_LONGITUDE_H_

namespace almara {

// An angle reduced to one turn, 0 to 360.
double NormalizedAngle(double angle);

// Ecliptic longitudes of date, 0 to 360.
double SunLongitude(double centuries);
double MoonLongitude(double centuries);

}  // namespace almara

#endif  // ALMARA_LUNAR_ECLIPTIC_LONGITUDE_H_
