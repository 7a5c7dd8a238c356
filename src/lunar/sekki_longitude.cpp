// SPDX-License-Identifier: MIT
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "lunar/calendar_lunar_solar_terms.h"

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kDaysPerCentury = 36525;

// One term: amplitude * cos(rate * T + phase), T in Julian centuries of dynamical time.
struct SekkiTerm {
  double amplitude;  // degrees; in rows 0 and 4 per Julian century, to be multiplied by T
  double rate;       // degrees per Julian century
  double phase;      // degrees
};

// The Sun's longitude of date, secular part (rows 0 and 1) included. Summed from the last row to
// the first. CCalendarLunarConverter has a series of its own, which differs from this one in the
// rate and phase of row 4 and is reduced term by term.
constexpr SekkiTerm kSekkiTerms[] = {
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
static_assert(std::size(kSekkiTerms) == kSekkiTermCount);

constexpr std::array<double, kSekkiTermCount> Column(double SekkiTerm::*field) {
  std::array<double, kSekkiTermCount> column{};
  for (std::size_t i = 0; i < column.size(); ++i) {
    column[i] = kSekkiTerms[i].*field;
  }
  return column;
}

double Cosine(double degrees) { return std::cos(degrees * kRadiansPerDegree); }

}  // namespace

constexpr std::array<double, kSekkiTermCount> CCalendarLunarSolarTerms::g_ArrDC24SekkiSla =
    Column(&SekkiTerm::amplitude);
constexpr std::array<double, kSekkiTermCount> CCalendarLunarSolarTerms::g_ArrDC24SekkiSlb =
    Column(&SekkiTerm::rate);
constexpr std::array<double, kSekkiTermCount> CCalendarLunarSolarTerms::g_ArrDC24SekkiSlc =
    Column(&SekkiTerm::phase);

// Longitude of the Sun, without nutation and aberration.
//
// Given
//   t   days from J2000.0
// Returned
//   degrees, 0 to below 360
// Time scale
//   dynamical time
// Measured error
//   within 0.003 degrees of Swiss Ephemeris' built-in ephemeris from 1800 to 2099, _SunLong's
//   correction applied
double CCalendarLunarSolarTerms::_SunMLong(double t) {
  const double centuries = t / kDaysPerCentury;
  double sum = 0;
  for (std::size_t i = kSekkiTermCount; i-- > 0;) {
    const bool growing = i == 0 || i == 4;
    const double amplitude = growing ? g_ArrDC24SekkiSla[i] * centuries : g_ArrDC24SekkiSla[i];
    sum += amplitude * Cosine(centuries * g_ArrDC24SekkiSlb[i] + g_ArrDC24SekkiSlc[i]);
  }
  return sum - std::floor(sum / 360) * 360;
}

// Apparent longitude of the Sun: _SunMLong with the largest term of nutation and with aberration.
// Given, time scale and error as _SunMLong.
//
// Returned
//   degrees, 0 to below 360
double CCalendarLunarSolarTerms::_SunLong(double t) {
  double longitude = _SunMLong(t) + 0.0048 * Cosine(t * 1934 / kDaysPerCentury + 145) - 0.0057;
  while (longitude < 0) {
    longitude += 360;
  }
  while (longitude >= 360) {
    longitude -= 360;
  }
  return longitude;
}
