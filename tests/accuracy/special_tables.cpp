// SPDX-License-Identifier: MIT
#include <cmath>
#include <string>

#include "accuracy/month_rule.h"
#include "accuracy/tables.h"

namespace almara_accuracy {

namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kClose = 60;  // seconds
constexpr int kFirstDay2033 = almara_test::DayNumber({2033, 7, 26});
constexpr int kLastDay2033 = almara_test::DayNumber({2034, 2, 20});

std::string MonthText(const LunarDates& dates, int day) {
  const LunarDate& date = dates[static_cast<std::size_t>(day)];
  return (date.leap != 0 ? "leap " : "") + std::to_string(date.month);
}

Table::Row MonthsOn(const Zones& zones, int day) {
  Table::Row months;
  for (const ZoneComparison& zone : zones) {
    months.push_back(MonthText(zone.engine.dates, day));
    months.push_back(MonthText(zone.trueDates, day));
  }
  return months;
}

int FixedDatesOff(const EngineAnswers& engine, const LunarDates& trueDates) {
  int days = 0;
  for (int day = kFirstFixedDay; day <= kLastFixedDay; ++day) {
    const auto i = static_cast<std::size_t>(day);
    days += trueDates[i] != engine.dates[i] ? 1 : 0;
  }
  return days;
}

}  // namespace

Table MonthsOf2033(const Zones& zones) {
  Table::Row headings{"from"};
  for (const ZoneComparison& zone : zones) {
    headings.push_back(ZoneText(zone.engine.zone) + " engine");
    headings.push_back(ZoneText(zone.engine.zone) + " ephemeris");
  }
  Table table("months-2033", "The months around the end of 2033", headings);
  Table::Row previous;
  for (int day = kFirstDay2033; day <= kLastDay2033; ++day) {
    const Table::Row months = MonthsOn(zones, day);
    if (months != previous) {
      Table::Row row{DateText(day)};
      row.insert(row.end(), months.begin(), months.end());
      table.Add(row);
      previous = months;
    }
  }
  return table;
}

Table FixedDates(const EngineAnswers& engine, const Ephemeris& ephemeris) {
  Table table("fixed-dates", "The fixed dates from " + SpanText(kFirstFixedDay, kLastFixedDay),
              {"zones", "fixed dates off the ephemeris"});
  const auto daysOff = [&](Zone zone) {
    return FixedDatesOff(engine, DatesByRule(ephemeris.newMoons, ephemeris.terms, zone));
  };
  Zone first = kWestmostZone;
  int days = daysOff(first);
  for (Zone zone = kWestmostZone + 1; zone <= kEastmostZone + 1; ++zone) {
    const int next = zone <= kEastmostZone ? daysOff(zone) : -1;
    if (next != days) {
      table.Add({ZoneText(first) + " to " + ZoneText(zone - 1), std::to_string(days)});
      first = zone;
      days = next;
    }
  }
  return table;
}

Table CloseNewMoons(const Zones& zones, const Ephemeris& ephemeris) {
  Table table("close-new-moons",
              "New moons within " + NumberText(kClose, 0) + " seconds of midnight",
              {"zone", "new moon", "reckoned at", "same day"});
  for (const ZoneComparison& zone : zones) {
    for (std::size_t k = 0; k < ephemeris.newMoons.size(); ++k) {
      const double local = LocalMoment(ephemeris.newMoons[k], zone.engine.zone);
      const double reckoned = LocalMoment(zone.engine.newMoons[k], zone.engine.zone);
      if (std::fabs(local - std::round(local)) * kSecondsPerDay <= kClose && local >= 0 &&
          local < kDays) {
        table.Add({ZoneText(zone.engine.zone), ClockText(local), ClockText(reckoned),
                   std::floor(local) == std::floor(reckoned) ? "yes" : "no"});
      }
    }
  }
  return table;
}

}  // namespace almara_accuracy
