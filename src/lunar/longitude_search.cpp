// SPDX-License-Identifier: MIT
#include <cmath>

#include "date/calendar_platform_api.h"
#include "lunar/calendar_lunar_converter.h"
#include "lunar/truncated.h"

namespace {

constexpr double kOneSecond = 1.1574074074074073e-5;  // days
constexpr double kDaysOfYear = 365.2;                 // days in which the Sun gains 360 degrees
constexpr double kDaysOfLunation = 29.530589;         // days in which the Moon gains 360 on the Sun

// A search for the Sun is given up behind this many steps. Within 11,000 centuries of 2000 it
// settles in at most 400: each step leaves less than 0.96 of the error there. Farther away the
// growing term of the Sun's longitude makes it slow, and may keep it from settling at all.
constexpr int kMaxSunSteps = 5000;

constexpr int kRestartStep = 15;  // a search for a new moon starts again here, 26 days earlier
constexpr int kLastStep = 30;     // and is given up behind this one

double ZoneInDays() { return CalendarPlatformApi::PlatformGetTimeZoneValue() / 24; }

// A moment in universal time as whole days and the rest, kept apart to save precision. The rest may
// lie outside 0 to 1.
struct SplitTime {
  double days;
  double fraction;

  // The moment of a local day count.
  static SplitTime Of(double jd) {
    const double days = Truncated(jd);
    return {days, jd - days - ZoneInDays()};
  }

  double Centuries() const { return (fraction + 0.5) / 36525 + (days - 2451545) / 36525; }

  double LocalDayCount() const { return ZoneInDays() + fraction + days; }

  // Moves back by step days. Returns the size of the step.
  double StepBack(double step) {
    const double wholeStep = Truncated(step);
    const double rest = step - wholeStep;
    days -= wholeStep;
    fraction -= rest;
    if (fraction < 0) {
      fraction += 1;
      days -= 1;
    }
    return std::fabs(wholeStep + rest);
  }
};

double SunAt(const SplitTime& time) {
  return CCalendarLunarConverter::_LONGITUDE_SUN(time.Centuries());
}

double MoonAt(const SplitTime& time) {
  return CCalendarLunarConverter::_LONGITUDE_MOON(time.Centuries());
}

// The last moment at or before jd at which the Sun's longitude is a multiple of stepAngle. False,
// with nothing written, where the search does not settle.
bool SearchSun(double jd, double stepAngle, double& outTime, double& outLongitude) {
  SplitTime time = SplitTime::Of(jd);
  double sun = SunAt(time);
  const double target = stepAngle * Truncated(sun / stepAngle);
  for (int step = 1; step <= kMaxSunSteps; ++step, sun = SunAt(time)) {
    double ahead = sun - target;
    if (ahead > 180) {
      ahead -= 360;
    } else if (ahead < -180) {
      ahead += 360;
    }
    if (time.StepBack(ahead * kDaysOfYear / 360) <= kOneSecond) {
      outTime = time.LocalDayCount();
      outLongitude = target;
      return true;
    }
  }
  return false;
}

// How far the Moon is ahead of the Sun, as a step of the search for a new moon takes it. Where the
// Sun is short behind the spring equinox and the Moon before it, the complement is taken; the
// search then moves the wrong way and may need its restart. The lunar dates rely on it.
double MoonAheadOfSun(double sun, double moon, int step) {
  const double ahead = moon - sun;
  if (step == 1 && ahead < 0) {
    return CCalendarLunarConverter::_NORMALIZATION_ANGLE(ahead);
  }
  if (sun >= 0 && sun <= 20 && moon >= 300) {
    return 360 - CCalendarLunarConverter::_NORMALIZATION_ANGLE(ahead);
  }
  if (std::fabs(ahead) > 40) {
    return CCalendarLunarConverter::_NORMALIZATION_ANGLE(ahead);
  }
  return ahead;
}

}  // namespace

// The last solstice or equinox at or before a moment.
//
// Given
//   jd   day count
// Returned
//   1 with time and longitude in *out; 0 with nothing written where out is null or the search does
//   not settle, which happens only outside the span
// Time scale
//   local civil time, given and returned
// Measured error
//   within 17 minutes of Swiss Ephemeris' built-in ephemeris from 1900 to 2099
// Span
//   settles for day counts within 400 million of 2000 (a million years) in every zone, for the mark
//   of an unknown zone too; farther away for some. Day counts leave 32 bits beyond 2147483647.
int CCalendarLunarConverter::_before_nibun(double jd, tagSolarKyurekiNibun* out) {
  return out != nullptr && SearchSun(jd, 90, out->time, out->longitude) ? 1 : 0;
}

// The last principal term at or before a moment. Given, returned, time scale and span as
// _before_nibun.
int CCalendarLunarConverter::_calc_chu(double jd, tagSolarKyurekiChu* out) {
  return out != nullptr && SearchSun(jd, 30, out->time, out->longitude) ? 1 : 0;
}

// The new moon at or next before a moment.
//
// Given
//   jd   day count
// Returned
//   day count; where 31 steps do not settle, jd itself shifted by the zone. This happens to some
//   starts around a spring equinox close to a new moon, but to none that the lunar dates of 1900 to
//   2099 make.
// Time scale
//   local civil time, given and returned
// Measured error
//   within 3 minutes of Swiss Ephemeris' built-in ephemeris from 1900 to 2099
// Span
//   every double
double CCalendarLunarConverter::_calc_saku(double jd) {
  SplitTime time = SplitTime::Of(jd);
  for (int step = 1;; ++step) {
    const double ahead = MoonAheadOfSun(SunAt(time), MoonAt(time), step);
    if (time.StepBack(ahead * kDaysOfLunation / 360) <= kOneSecond) {
      return time.LocalDayCount();
    }
    if (step == kRestartStep) {
      time = {Truncated(jd - 26), 0};
    } else if (step > kLastStep) {
      return jd + ZoneInDays();
    }
  }
}
