// SPDX-License-Identifier: MIT
//
// The Sun's longitude that the solar terms are worked out from. Angles are in degrees; times are
// days from J2000.0, in dynamical time.
#ifndef ALMARA_LUNAR_SEKKI_LONGITUDE_H_
#define ALMARA_LUNAR_SEKKI_LONGITUDE_H_

#include <iterator>

namespace almara {

// One term of the series: amplitude * cos(rate * T + phase), T in Julian centuries.
struct SeriesTerm {
  double amplitude;  // degrees; in rows 0 and 4 per Julian century, to be multiplied by T
  double rate;       // degrees per Julian century
  double phase;      // degrees
};

// The Sun's longitude of date: the mean longitude (rows 0 and 1), the equation of the centre (rows
// 2 to 4) and the perturbations from 0.0004 degrees on. Summed from the last row to the first. The
// lunar dates have a series of their own (ecliptic_longitude.cpp), which differs from this one in
// the rate and phase of row 4 and is reduced term by term.
inline constexpr SeriesTerm kSekkiSeries[] = {
    // 0 to 9
    {36000.7695, 0.0, 0.0},
    {280.4659, 0.0, 0.0},
    {1.9147, 35999.05, 267.52},
    {0.02, 71998.1, 265.1},
    {-0.0048, 35999.0, 268.0},
    {0.002, 32964.0, 158.0},
    {0.0018, 19.0, 159.0},
    {0.0018, 445267.0, 208.0},
    {0.0015, 45038.0, 254.0},
    {0.0013, 22519.0, 352.0},

    // 10 to 17
    {0.0007, 65929.0, 45.0},
    {0.0007, 3035.0, 110.0},
    {0.0007, 9038.0, 64.0},
    {0.0006, 33718.0, 316.0},
    {0.0005, 155.0, 118.0},
    {0.0005, 2281.0, 221.0},
    {0.0004, 29930.0, 48.0},
    {0.0004, 31557.0, 161.0},
};
constexpr int kSekkiSeriesSize = std::size(kSekkiSeries);
static_assert(kSekkiSeriesSize == 18);

// The sum of the series, 0 to below 360.
double SekkiSeriesSum(double days);

// The apparent longitude, 0 to below 360: the sum with the largest term of nutation and with
// aberration.
double SekkiSunLongitude(double days);

}  // namespace almara

#endif  // ALMARA_LUNAR_SEKKI_LONGITUDE_H_
