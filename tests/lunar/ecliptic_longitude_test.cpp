// SPDX-License-Identifier: MIT
#include "lunar/ecliptic_longitude.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace almara::test {
namespace {

TEST(NormalizedAngle, ReducesToOneTurn) {
  EXPECT_EQ(NormalizedAngle(0), 0);
  EXPECT_EQ(NormalizedAngle(360), 0);
  EXPECT_EQ(NormalizedAngle(725), 5);
  EXPECT_EQ(NormalizedAngle(359.5), 359.5);
  EXPECT_EQ(NormalizedAngle(-10), 350);
  EXPECT_EQ(NormalizedAngle(-370), 350);
}

TEST(NormalizedAngle, GivesAFullTurnForNegativeMultiples) {
  EXPECT_EQ(NormalizedAngle(-360), 360);
  EXPECT_EQ(NormalizedAngle(-720), 360);
}

TEST(NormalizedAngle, HoldsUpToTheTurnsThatFit32Bits) {
  EXPECT_EQ(NormalizedAngle(2147483647.0 * 360 + 90), 90);
  EXPECT_EQ(NormalizedAngle(-2147483647.0 * 360 - 90), 270);
  // One turn more becomes -2147483648 turns.
  EXPECT_EQ(NormalizedAngle(2147483648.0 * 360 + 90), 2 * 2147483648.0 * 360 + 90);
}

struct Longitudes {
  double centuries;
  double sun;
  double moon;
};

// Sums of the series, worked out apart from this code.
constexpr Longitudes kLongitudes[] = {
    {-2.0, 278.9064612684356, 329.19517166997497},
    {-1.0, 279.64421514400175, 265.2991345226087},
    {-0.123456, 154.44064470002073, 197.07584802887385},
    {0.0, 280.37736249876195, 223.31392672513925},
    {0.24, 280.5543243552314, 161.89806701272005},
    {0.9999, 277.3955109059279, 113.68636618397393},
};

TEST(Longitude, IsTheSumOfTheSeries) {
  for (const Longitudes& expected : kLongitudes) {
    EXPECT_NEAR(SunLongitude(expected.centuries), expected.sun, 1e-9);
    EXPECT_NEAR(MoonLongitude(expected.centuries), expected.moon, 1e-9);
  }
}

// Meeus, Astronomical Algorithms, examples 25.a and 47.a: apparent longitudes at 1992-10-13 0h and
// 1992-04-12 0h of dynamical time.
TEST(Longitude, AgreesWithPublishedExamples) {
  EXPECT_NEAR(SunLongitude((2448908.5 - 2451545) / 36525), 199.90895, 0.012);
  EXPECT_NEAR(MoonLongitude((2448724.5 - 2451545) / 36525), 133.167265, 0.019);
}

TEST(Longitude, LiesWithinOneTurn) {
  for (int i = -20000; i <= 20000; ++i) {
    const double t = i * 0.000123;
    const double sun = SunLongitude(t);
    const double moon = MoonLongitude(t);
    ASSERT_TRUE(sun >= 0 && sun <= 360) << t;
    ASSERT_TRUE(moon >= 0 && moon <= 360) << t;
  }
}

TEST(Longitude, IsFiniteForEveryFiniteTime) {
  for (const double t : {1e6, -1e6, 1e300, -1e300}) {
    EXPECT_TRUE(std::isfinite(SunLongitude(t))) << t;
    EXPECT_TRUE(std::isfinite(MoonLongitude(t))) << t;
  }
  EXPECT_FALSE(std::isfinite(SunLongitude(std::numeric_limits<double>::infinity())));
}

}  // namespace
}  // namespace almara::test
