// SPDX-License-Identifier: MIT
#include "lunar/longitude_search.h"

#include <cmath>

#include "lunar/ecliptic_longitude.h"
#include "lunar/truncated.h"

namespace almara {
namespace {

constexpr double kOneSecond = 1.1574074074074073e-5;  // days
constexpr double kDaysOfYear = 365.2;                 // days in which the Sun gains 360 degrees
constexpr double kDaysOfLunation = 29.530589;         // days in which the Moon gains 360 on the Sun
constexpr double kHoursPerDay = 24;

// A search for the Sun is given up after this many steps. Within 11,000 centuries of 2000 it
// settles in at most 400: each step leaves less than 0.96 of the error there. Farther away the
// growing term of the Sun's longitude makes it slow, and may keep it from settling at all.
constexpr int kMaxSunSteps = 5000;

constexpr int kRestartStep = 15;  // a search for a new moon starts again here, 26 days earlier
constexpr int kLastStep = 30;     // and is given up after one more than this

// A moment in universal time as whole days and the rest, kept apart to save precision. The rest may
// lie outside 0 to 1.
struct SplitTime {
  double days;
  double fraction;

  // The moment of a local day count.
  static SplitTime Of(double dayCount, double zone) {
    const double days = Truncated(dayCount);
    return {days, dayCount - days - zone / kHoursPerDay};
  }

  double Centuries() const { return (fraction + 0.5) / 36525 + (days - 2451545) / 36525; }

  double LocalDayCount(double zone) const { return zone / kHoursPerDay + fraction + days; }

  // Moves back by step days. Returns the size of the step.
  double StepBack(double step) {
    const double wholeStep = Truncated(step);
    const double rest = step - wholeStep;
    days -= wholeStep;
    fraction -= rest;
    // MUTATE_EXCL: 0 and a whole day less are the same moment.
    if (fraction < 0) {
      fraction += 1;
      days -= 1;
    }
    return std::fabs(wholeStep + rest);
  }
};

// The last moment at or before dayCount at which the Sun's longitude is a multiple of angle.
std::optional<SunCrossing> SunCrossingBefore(double dayCount, double zone, double angle) {
  SplitTime time = SplitTime::Of(dayCount, zone);
  double sun = SunLongitude(time.Centuries());
  const double target = angle * Truncated(sun / angle);
  // MUTATE_EXCL: the limit leaves room for every search that settles.
  for (int step = 1; step <= kMaxSunSteps; ++step, sun = SunLongitude(time.Centuries())) {
    double ahead = sun - target;
    // MUTATE_EXCL: no step starts between 179 and 181 degrees.
    if (ahead > 180) {
      ahead -= 360;
    } else if (ahead < -180) {  // MUTATE_EXCL: not met where a search settles.
      ahead += 360;
    }
    if (time.StepBack(ahead * kDaysOfYear / 360) <= kOneSecond) {
      return SunCrossing{time.LocalDayCount(zone), target};
    }
  }
  return std::nullopt;
}

// How far the Moon is ahead of the Sun, as a step of the search for a new moon takes it. Where the
// Sun is shortly after the spring equinox and the Moon before it, the complement is taken; the
// search then moves the wrong way and may need its restart. The lunar dates rely on it.
double MoonAheadOfSun(double sun, double moon, int step) {
  const double ahead = moon - sun;
  if (step == 1 && ahead < 0) {
    return NormalizedAngle(ahead);
  }
  if (sun >= 0 && sun <= 20 && moon >= 300) {
    return 360 - NormalizedAngle(ahead);
  }
  if (std::fabs(ahead) > 40) {
    return NormalizedAngle(ahead);
  }
  return ahead;
}

}  // namespace

// Given
//   dayCount   days
//   zone       hours
// Returned
//   the crossing, with its longitude 0, 90, 180 or 270
// Time scale
//   local civil time, given and returned
// Measured error
//   within 17 minutes of Swiss Ephemeris' built-in ephemeris from 1900 to 2099
// Span
//   settles for day counts within 400 million of 2000 (a million years) in every zone, for the mark
//   of an unknown zone too; farther away for some. Day counts leave 32 bits beyond 2147483647.
std::optional<SunCrossing> SolsticeOrEquinoxBefore(double dayCount, double zone) {
  return SunCrossingBefore(dayCount, zone, 90);
}

// As SolsticeOrEquinoxBefore, with a longitude of 0, 30, ... 330.
std::optional<SunCrossing> PrincipalTermBefore(double dayCount, double zone) {
  return SunCrossingBefore(dayCount, zone, 30);
}

// Given
//   dayCount   days
//   zone       hours
// Returned
//   day count; where 31 steps do not settle, the day count given, shifted by the zone. This happens
//   to some starts around a spring equinox close to a new moon, but to none that the lunar dates of
//   1900 to 2099 make.
// Time scale
//   local civil time, given and returned
// Measured error
//   within 3 minutes of Swiss Ephemeris' built-in ephemeris from 1900 to 2099
// Span
//   every double
double NewMoonBefore(double dayCount, double zone) {
  SplitTime time = SplitTime::Of(dayCount, zone);
  for (int step = 1;; ++step) {
    const double centuries = time.Centuries();
    const double ahead = MoonAheadOfSun(SunLongitude(centuries), MoonLongitude(centuries), step);
    if (time.StepBack(ahead * kDaysOfLunation / 360) <= kOneSecond) {
      return time.LocalDayCount(zone);
    }
    if (step == kRestartStep) {
      time = {Truncated(dayCount - 26), 0};
    } else if (step > kLastStep) {
      return dayCount + zone / kHoursPerDay;
    }
  }
}

}  // namespace almara
