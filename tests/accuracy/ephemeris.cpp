// SPDX-License-Identifier: MIT
#include "accuracy/ephemeris.h"

#include <swephexp.h>

#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace almara_accuracy {

namespace {

constexpr double kJulianDateOfOrigin = 2415020.5;  // 1900-01-01 0h
constexpr double kFirstMoment = -500;
constexpr double kLastMoment = kDays + 500;
constexpr double kDaysOfLunation = 29.530589;
constexpr double kDaysOfYear = 365.2422;
constexpr int kDegreesOfTerm = 15;
constexpr double kSettled = 1e-7;  // days, under a hundredth of a second
constexpr int kMaxSteps = 50;

double DynamicalJulianDate(double moment) {
  const double universal = moment + kJulianDateOfOrigin;
  char error[AS_MAXCH];
  return universal + swe_deltat_ex(universal, SEFLG_MOSEPH, error);
}

double Longitude(std::int32_t body, double moment) {
  double position[6];
  char error[AS_MAXCH];
  if (swe_calc(DynamicalJulianDate(moment), body, SEFLG_MOSEPH, position, error) < 0) {
    throw std::runtime_error(error);
  }
  return position[0];
}

// Degrees from -180 to 180.
double Signed(double degrees) { return std::remainder(degrees, 360.0); }

// The moment next to a first guess at which excess(moment), in degrees and growing by 360 in
// period days, is zero.
template <typename Excess>
double Settle(double moment, double period, Excess excess) {
  for (int step = 0; step < kMaxSteps; ++step) {
    const double change = -Signed(excess(moment)) * period / 360;
    moment += change;
    if (std::fabs(change) < kSettled) {
      return moment;
    }
  }
  throw std::runtime_error("the search in the ephemeris does not settle");
}

double NewMoonNextTo(double moment) {
  return Settle(moment, kDaysOfLunation,
                [](double m) { return Longitude(SE_MOON, m) - Longitude(SE_SUN, m); });
}

double TermNextTo(double moment, int longitude) {
  return Settle(moment, kDaysOfYear, [=](double m) { return Longitude(SE_SUN, m) - longitude; });
}

std::vector<double> NewMoons() {
  std::vector<double> moments;
  for (double guess = kFirstMoment; guess < kLastMoment; guess = moments.back() + kDaysOfLunation) {
    moments.push_back(NewMoonNextTo(guess));
  }
  return moments;
}

std::vector<SolarTerm> Terms() {
  const double start = Longitude(SE_SUN, kFirstMoment);
  int longitude = kDegreesOfTerm * static_cast<int>(start / kDegreesOfTerm) % 360;
  std::vector<SolarTerm> terms;
  for (double guess = kFirstMoment; guess < kLastMoment;
       guess = terms.back().moment + kDaysOfYear * kDegreesOfTerm / 360) {
    terms.push_back({longitude, TermNextTo(guess, longitude)});
    longitude = (longitude + kDegreesOfTerm) % 360;
  }
  return terms;
}

}  // namespace

Ephemeris ComputeEphemeris() { return {NewMoons(), Terms()}; }

}  // namespace almara_accuracy
