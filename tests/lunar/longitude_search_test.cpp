// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "lunar/calendar_lunar_converter.h"
#include "zone_guard.h"

namespace {

using Converter = CCalendarLunarConverter;

constexpr double kOneMinute = 1.0 / 1440;

double DayCount(int year, int month, int day, double hour) {
  return Converter::_YMDT2JD(year, month, day, hour, 0, 0);
}

// 2024-03-20 3:06, 2023-12-22 3:27 and 2024-02-19 4:13, all UT.
TEST(SolsticeSearch, FindsTheEquinoxBefore) {
  const ZoneGuard guard(0);
  tagSolarKyurekiNibun nibun{};
  EXPECT_EQ(Converter::_before_nibun(DayCount(2024, 4, 15, 0), &nibun), 1);
  EXPECT_EQ(nibun.longitude, 0);
  EXPECT_NEAR(nibun.time, DayCount(2024, 3, 20, 3.1), 17 * kOneMinute);

  EXPECT_EQ(Converter::_before_nibun(DayCount(2024, 3, 19, 0), &nibun), 1);
  EXPECT_EQ(nibun.longitude, 270);
  EXPECT_NEAR(nibun.time, DayCount(2023, 12, 22, 3.45), 17 * kOneMinute);
}

TEST(PrincipalTermSearch, FindsTheTermBefore) {
  const ZoneGuard guard(0);
  tagSolarKyurekiChu chu{};
  EXPECT_EQ(Converter::_calc_chu(DayCount(2024, 3, 19, 0), &chu), 1);
  EXPECT_EQ(chu.longitude, 330);
  EXPECT_NEAR(chu.time, DayCount(2024, 2, 19, 4.2), 17 * kOneMinute);
}

TEST(PrincipalTermSearch, ShiftsByTheZone) {
  tagSolarKyurekiChu utc{};
  tagSolarKyurekiChu local{};
  {
    const ZoneGuard guard(0);
    Converter::_calc_chu(DayCount(2024, 3, 10, 0), &utc);
  }
  const ZoneGuard guard(9);
  Converter::_calc_chu(DayCount(2024, 3, 10, 0), &local);
  EXPECT_NEAR(local.time - utc.time, 9.0 / 24, 2.0 / 86400);
}

TEST(SunSearches, WriteNothingToNull) {
  const ZoneGuard guard(8);
  EXPECT_EQ(Converter::_before_nibun(2451544, nullptr), 0);
  EXPECT_EQ(Converter::_calc_chu(2451544, nullptr), 0);
}

// The error shrinks to 0.96 of itself or less with every step within 11,000 centuries, in years
// about -1,098,000 to 1,102,000. Days 1009 apart meet every season; the ends are met at every zone.
TEST(SunSearches, SettleWithinAMillionYears) {
  constexpr double kReach = 11000 * 36525.0;
  tagSolarKyurekiChu chu{};
  for (const int zone : {-12, 0, 14, kTimeZoneUnknown}) {
    const ZoneGuard guard(zone);
    for (double far = 0; far < kReach; far += 36525.0 * 10 + 1009) {
      ASSERT_EQ(Converter::_calc_chu(2451545 + far, &chu), 1) << far;
      ASSERT_EQ(Converter::_calc_chu(2451545 - far, &chu), 1) << far;
    }
    for (int day = 0; day < 800; ++day) {
      ASSERT_EQ(Converter::_calc_chu(2451545 + kReach - day, &chu), 1) << day;
      ASSERT_EQ(Converter::_calc_chu(2451545 - kReach + day, &chu), 1) << day;
    }
  }
}

TEST(SunSearches, GiveUpWhereTheSunTurnsBack) {
  const ZoneGuard guard(8);
  tagSolarKyurekiChu chu{1, 2};
  EXPECT_EQ(Converter::_calc_chu(2e9, &chu), 0);
  EXPECT_EQ(chu.time, 1);
  EXPECT_EQ(chu.longitude, 2);
  EXPECT_EQ(Converter::_calc_chu(1e300, &chu), 0);
  EXPECT_EQ(Converter::_calc_chu(std::nan(""), &chu), 0);
}

// 2024-02-09 22:59 and 2024-03-10 9:00, UT.
TEST(NewMoonSearch, FindsTheNewMoonBefore) {
  const ZoneGuard guard(0);
  EXPECT_NEAR(Converter::_calc_saku(DayCount(2024, 3, 1, 0)), DayCount(2024, 2, 9, 22.983),
              3 * kOneMinute);
  EXPECT_NEAR(Converter::_calc_saku(DayCount(2024, 3, 12, 0)), DayCount(2024, 3, 10, 9),
              3 * kOneMinute);
}

TEST(NewMoonSearch, ShiftsByTheZone) {
  double utc = 0;
  {
    const ZoneGuard guard(0);
    utc = Converter::_calc_saku(DayCount(2024, 3, 1, 0));
  }
  const ZoneGuard guard(8);
  EXPECT_NEAR(Converter::_calc_saku(DayCount(2024, 3, 1, 0)) - utc, 8.0 / 24, 2.0 / 86400);
}

TEST(NewMoonSearch, GivesItsStartShiftedByTheZoneWhereItNeverSettles) {
  {
    const ZoneGuard guard(0);
    EXPECT_EQ(Converter::_calc_saku(2439230), 2439230);
    EXPECT_EQ(Converter::_calc_saku(2446170), 2446170);
    EXPECT_EQ(Converter::_calc_saku(2477945), 2477945);
  }
  const ZoneGuard guard(6);
  EXPECT_EQ(Converter::_calc_saku(1e300), 1e300 + 0.25);
  EXPECT_TRUE(std::isnan(Converter::_calc_saku(std::nan(""))));
}

// The searches once more, written down step by step, to see how they get there.
struct Trace {
  int steps = 0;
  bool restarted = false;
  double time = 0;
  double longitude = 0;
};

// A moment in universal time that a search moves.
struct Moment {
  double whole;
  double rest;

  double Centuries() const { return (rest + 0.5) / 36525 + (whole - 2451545) / 36525; }

  void StepBack(double step) {
    whole -= static_cast<int>(step);
    rest -= step - static_cast<int>(step);
    if (rest < 0) {
      rest += 1;
      whole -= 1;
    }
  }
};

constexpr double kOneSecond = 1.1574074074074073e-5;

Moment Start(double jd, double zone) {
  const double whole = static_cast<int>(jd);
  return {whole, jd - whole - zone / 24};
}

Trace TraceSun(double jd, double zone, double angle) {
  Trace trace;
  Moment moment = Start(jd, zone);
  trace.longitude = angle * static_cast<int>(Converter::_LONGITUDE_SUN(moment.Centuries()) / angle);
  double step = 1;
  while (std::fabs(step) > kOneSecond) {
    ++trace.steps;
    double ahead = Converter::_LONGITUDE_SUN(moment.Centuries()) - trace.longitude;
    if (ahead > 180) {
      ahead -= 360;
    } else if (ahead < -180) {
      ahead += 360;
    }
    step = ahead * 365.2 / 360;
    moment.StepBack(step);
  }
  trace.time = zone / 24 + moment.rest + moment.whole;
  return trace;
}

Trace TraceNewMoon(double jd, double zone) {
  Trace trace;
  Moment moment = Start(jd, zone);
  for (;;) {
    ++trace.steps;
    const double sun = Converter::_LONGITUDE_SUN(moment.Centuries());
    const double moon = Converter::_LONGITUDE_MOON(moment.Centuries());
    double ahead = moon - sun;
    if (trace.steps == 1 && ahead < 0) {
      ahead = Converter::_NORMALIZATION_ANGLE(ahead);
    } else if (sun >= 0 && sun <= 20 && moon >= 300) {
      ahead = 360 - Converter::_NORMALIZATION_ANGLE(ahead);
    } else if (std::fabs(ahead) > 40) {
      ahead = Converter::_NORMALIZATION_ANGLE(ahead);
    }
    const double step = ahead * 29.530589 / 360;
    moment.StepBack(step);
    if (std::fabs(step) <= kOneSecond) {
      trace.time = zone / 24 + moment.rest + moment.whole;
      return trace;
    }
    if (trace.steps == 15) {
      trace.restarted = true;
      moment = {static_cast<double>(static_cast<int>(jd - 26)), 0};
    } else if (trace.steps > 30) {
      trace.time = jd + zone / 24;
      return trace;
    }
  }
}

TEST(SunSearches, TakeTheStepsAsTheyStand) {
  for (const int zone : {-12, 9}) {
    const ZoneGuard guard(zone);
    for (double jd = DayCount(1900, 1, 1, 0); jd < DayCount(2100, 1, 1, 0); jd += 9.37) {
      tagSolarKyurekiNibun nibun{};
      tagSolarKyurekiChu chu{};
      Converter::_before_nibun(jd, &nibun);
      Converter::_calc_chu(jd, &chu);
      ASSERT_EQ(nibun.time, TraceSun(jd, zone, 90).time) << jd;
      ASSERT_EQ(nibun.longitude, TraceSun(jd, zone, 90).longitude) << jd;
      ASSERT_EQ(chu.time, TraceSun(jd, zone, 30).time) << jd;
      ASSERT_EQ(chu.longitude, TraceSun(jd, zone, 30).longitude) << jd;
    }
  }
}

// Springs day by day, where the steps may lead the wrong way, and the rest of the year now and
// then.
TEST(NewMoonSearch, TakesTheStepsAsTheyStand) {
  const ZoneGuard guard(8);
  int restarted = 0;
  int exhausted = 0;
  for (int year = 1900; year <= 2099; ++year) {
    for (int day = 0; day < 365; day += day < 60 || day > 130 ? 17 : 1) {
      const double jd = DayCount(year, 1, 1, 5) + day;
      const Trace trace = TraceNewMoon(jd, 8);
      ASSERT_EQ(Converter::_calc_saku(jd), trace.time) << jd;
      restarted += trace.restarted ? 1 : 0;
      exhausted += trace.steps > 30 ? 1 : 0;
    }
  }
  EXPECT_GT(restarted, 0);
  EXPECT_GT(exhausted, 0);
}

// Whether one of the searches that a date between an equinox or solstice and the next one needs
// starts again.
bool NeedsRestart(double jd, double zone) {
  tagSolarKyurekiNibun nibun{};
  Converter::_before_nibun(jd, &nibun);
  double start = nibun.time;
  bool restarted = false;
  for (int k = 0; k < 5; ++k) {
    const Trace trace = TraceNewMoon(start, zone);
    EXPECT_EQ(Converter::_calc_saku(start), trace.time) << start;
    restarted = restarted || trace.restarted;
    start = trace.time + 30;
  }
  return restarted;
}

TEST(NewMoonSearch, RestartsAtTheFifteenthStepInSpringsOfZone8) {
  const ZoneGuard guard(8);
  std::set<int> years;
  for (int year = 1800; year <= 2099; ++year) {
    for (const int month : {2, 5, 8, 11}) {
      if (NeedsRestart(DayCount(year, month, 8, 0), 8)) {
        EXPECT_EQ(month, 5) << year;
        years.insert(year);
      }
    }
  }
  EXPECT_EQ(years, (std::set<int>{1833, 1852, 1966, 1985, 2072, 2099}));
}

}  // namespace
