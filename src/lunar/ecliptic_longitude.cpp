// SPDX-License-Identifier: MIT
#include "lunar/ecliptic_longitude.h"

#include <cmath>
#include <cstddef>
#include <iterator>

#include "lunar/truncated.h"

namespace almara {
namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;

// One periodic term: amplitude * cos(rate * t + phase), t in Julian centuries.
struct PeriodicTerm {
  double amplitude = 0;  // degrees
  double rate = 0;       // degrees per Julian century
  double phase = 0;      // degrees
  bool growing = false;  // the amplitude is per Julian century, to be multiplied by t
};

// The Sun's periodic terms from 0.0004 degrees on, in the order of summation, smallest first. The
// solar terms have a series of their own (sekki_longitude.h), which differs from this one in the
// rate and phase of the growing term.
constexpr PeriodicTerm kSunTerms[] = {
    // 1 to 10
    {0.0004, 31557, 161},
    {0.0004, 29930, 48},
    {0.0005, 2281, 221},
    {0.0005, 155, 118},
    {0.0006, 33718, 316},
    {0.0007, 9038, 64},
    {0.0007, 3035, 110},
    {0.0007, 65929, 45},
    {0.0013, 22519, 352},
    {0.0015, 45038, 254},

    // 11 to 16
    {0.0018, 445267, 208},
    {0.0018, 19, 159},
    {0.0020, 32964, 158},
    {0.0200, 71998.1, 265.1},
    {-0.0048, 35999.05, 267.52, true},
    {1.9147, 35999.05, 267.52},
};
static_assert(std::size(kSunTerms) == 16);

// The Moon's periodic terms from 0.0003 degrees on, in the order of summation, smallest first. Row
// 33 holds the nutation in longitude that goes with the Moon's node.
constexpr PeriodicTerm kMoonTerms[] = {
    // 1 to 10
    {0.0003, 2322131, 191},
    {0.0003, 4067, 70},
    {0.0003, 549197, 220},
    {0.0003, 1808933, 58},
    {0.0003, 349472, 337},
    {0.0003, 381404, 354},
    {0.0003, 958465, 340},
    {0.0004, 12006, 187},
    {0.0004, 39871, 223},
    {0.0005, 509131, 242},

    // 11 to 20
    {0.0005, 1745069, 24},
    {0.0005, 1908795, 90},
    {0.0006, 2258267, 156},
    {0.0006, 111869, 38},
    {0.0007, 27864, 127},
    {0.0007, 485333, 186},
    {0.0007, 405201, 50},
    {0.0007, 790672, 114},
    {0.0008, 1403732, 98},
    {0.0009, 858602, 129},

    // 21 to 30
    {0.0011, 1920802, 186},
    {0.0012, 1267871, 249},
    {0.0016, 1856938, 152},
    {0.0018, 401329, 274},
    {0.0021, 341337, 16},
    {0.0021, 71998, 85},
    {0.0021, 990397, 357},
    {0.0022, 818536, 151},
    {0.0023, 922466, 163},
    {0.0024, 99863, 122},

    // 31 to 40
    {0.0026, 1379739, 17},
    {0.0027, 918399, 182},
    {0.0028, 1934, 145},
    {0.0037, 541062, 259},
    {0.0038, 1781068, 21},
    {0.0040, 133, 29},
    {0.0040, 1844932, 56},
    {0.0040, 1331734, 283},
    {0.0050, 481266, 205},
    {0.0052, 31932, 107},

    // 41 to 50
    {0.0068, 926533, 323},
    {0.0079, 449334, 188},
    {0.0085, 826671, 111},
    {0.0100, 1431597, 315},
    {0.0107, 1303870, 246},
    {0.0110, 489205, 142},
    {0.0125, 1443603, 52},
    {0.0154, 75870, 41},
    {0.0304, 513197.9, 222.5},
    {0.0347, 445267.1, 27.9},

    // 51 to 60
    {0.0409, 441199.8, 47.4},
    {0.0458, 854535.2, 148.2},
    {0.0533, 1367733.1, 280.7},
    {0.0571, 377336.3, 13.2},
    {0.0588, 63863.5, 124.2},
    {0.1144, 966404, 276.5},
    {0.1851, 35999.05, 87.53},
    {0.2136, 954397.74, 179.93},
    {0.6583, 890534.22, 145.7},
    {1.2740, 413335.35, 10.74},

    // 61 to 61
    {6.2888, 477198.868, 44.963},
};
static_assert(std::size(kMoonTerms) == 61);

template <std::size_t count>
double Sum(const PeriodicTerm (&terms)[count], double t) {
  double sum = 0;
  for (const PeriodicTerm& term : terms) {
    const double amplitude = term.growing ? term.amplitude * t : term.amplitude;
    const double angle = NormalizedAngle(term.rate * t + term.phase);
    sum += amplitude * std::cos(angle * kRadiansPerDegree);
  }
  return sum;
}

}  // namespace

// Given
//   angle   degrees
// Returned
//   degrees: 0 to below 360 for an angle from 0 up, above 0 to 360 for one below 0. A negative
//   multiple of 360 gives 360, not 0; the longitudes rely on the asymmetry.
// Span
//   as long as angle / 360 fits 32 bits, 7.7e11 degrees either way
double NormalizedAngle(double angle) {
  if (angle < 0) {
    return angle + 360 * Truncated(angle / -360) + 360;
  }
  return angle - 360 * Truncated(angle / 360);
}

// Given
//   centuries   Julian centuries from 2000-01-01 12:00
// Returned
//   degrees, 0 to 360 (360 itself only by rounding); nutation and aberration are left out
// Time scale
//   universal time, without a correction to dynamical time
// Measured error
//   within 0.012 degrees of Swiss Ephemeris' built-in ephemeris from 1800 to 2099
// Span
//   every double, but far away the longitude means nothing: the growing term reaches a degree 200
//   centuries from 2000, and from about 11,500 centuries on the Sun stands still and turns back at
//   times. Beyond 1.7 million centuries the turns of an angle leave 32 bits.
// Reference
//   S. Newcomb, Tables of the Motion of the Earth on its Axis and around the Sun (Astronomical
//   Papers of the American Ephemeris VI), 1895: the mean longitude and the equation of the centre,
//   carried from 1900 to 2000, to every digit kept. The perturbations are Newcomb's within two
//   degrees of phase; who cut them so is not identified.
double SunLongitude(double centuries) {
  const double mean = NormalizedAngle(NormalizedAngle(36000.7695 * centuries) + 280.4659);
  return NormalizedAngle(Sum(kSunTerms, centuries) + mean);
}

// Given
//   centuries   Julian centuries from 2000-01-01 12:00
// Returned
//   degrees, 0 to 360 (360 itself only by rounding)
// Time scale
//   universal time, without a correction to dynamical time
// Measured error
//   within 0.019 degrees of Swiss Ephemeris' built-in ephemeris from 1800 to 2099
// Span
//   every double; beyond 330,000 centuries the turns of an angle leave 32 bits
// Reference
//   Improved Lunar Ephemeris 1952-1959, Washington 1954, which is E. W. Brown's theory of the Moon:
//   the mean longitude, carried from 1900 to 2000, to every digit kept, and the large amplitudes to
//   0.0001 degrees. Who cut the series so is not identified.
double MoonLongitude(double centuries) {
  const double mean = NormalizedAngle(NormalizedAngle(481267.8809 * centuries) + 218.3162);
  return NormalizedAngle(Sum(kMoonTerms, centuries) + mean);
}

}  // namespace almara
