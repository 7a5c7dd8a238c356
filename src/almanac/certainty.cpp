// SPDX-License-Identifier: MIT
#include "almanac/certainty.h"

#include <cmath>

namespace almara {

namespace {

constexpr int kLastYearMeasured = 2022;  // by the library that the table is made with

// Standard error of the difference between dynamical and universal time, in seconds, some years
// after the last one measured.
//
// P. J. Huber's formula, which takes the length of the day for a Brownian motion, as F. Espenak and
// J. Meeus give it in Five Millennium Canon of Solar Eclipses, NASA/TP-2006-214141.
double StandardErrorAfter(int years) {
  constexpr double kVariance = 0.058;  // of the length of the day, in square milliseconds a year
  constexpr double kSpan = 2500;       // years that the variance was found in
  constexpr double kDaysOfYear = 365.25;
  constexpr double kMillisecondsOfSecond = 1000;
  return kDaysOfYear * years * std::sqrt(years * kVariance / 3 * (1 + years / kSpan)) /
         kMillisecondsOfSecond;
}

}  // namespace

int UncertaintyInYear(int year, int errorOfTable) {
  constexpr int kErrorOfMeasurement = 1;
  const int measured = errorOfTable + kErrorOfMeasurement;
  return year <= kLastYearMeasured
             ? measured
             : measured +
                   static_cast<int>(std::ceil(3 * StandardErrorAfter(year - kLastYearMeasured)));
}

}  // namespace almara
