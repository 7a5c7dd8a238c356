// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstddef>
#include <string>

#include "accuracy/month_rule.h"
#include "accuracy/tables.h"

namespace almara_accuracy {

namespace {

constexpr Zone kIcuZoneBefore1912 = 8;  // of its Korean calendar
constexpr int kYearOfIcuZone = 1912;

std::string SideOf(const DeviationSpan& span, const ZoneComparison& zone,
                   const LunarDates& datesOfIcuZone) {
  if (!AgreeOn(span, zone.engine.dates, zone.trueDates)) {
    return AgreeOn(span, zone.icuDates, zone.trueDates) ? "ICU" : "neither";
  }
  const bool otherZone = zone.engine.zone != kIcuZoneBefore1912 &&
                         CivilOf(span.first).year < kYearOfIcuZone &&
                         AgreeOn(span, zone.icuDates, datesOfIcuZone);
  return otherZone ? "the engine; ICU reckons in UTC+8 here" : "the engine";
}

// The dates of the lunar new year's day of a year, one for each zone.
Table::Row NewYearsDays(const Zones& zones, int year) {
  Table::Row days;
  for (const ZoneComparison& zone : zones) {
    const LunarDates& dates = zone.engine.dates;
    const auto day = std::find(dates.begin(), dates.end(), LunarDate{year, 1, 0, 1});
    days.push_back(day != dates.end() ? DateText(static_cast<int>(day - dates.begin())) : "none");
  }
  return days;
}

}  // namespace

Table IcuDeviations(const Zones& zones, const Ephemeris& ephemeris) {
  Table table("icu-deviations", "Lunar dates that differ from ICU",
              {"zone", "days", "number", "the first one", "in ICU", "the ephemeris sides with"});
  const LunarDates datesOfIcuZone =
      DatesByRule(ephemeris.newMoons, ephemeris.terms, kIcuZoneBefore1912);
  for (const ZoneComparison& zone : zones) {
    for (const DeviationSpan& span : zone.fromIcu) {
      const auto first = static_cast<std::size_t>(span.first);
      table.Add({ZoneText(zone.engine.zone), SpanText(span.first, span.last),
                 std::to_string(Length(span)), LunarText(zone.engine.dates[first]),
                 LunarText(zone.icuDates[first]), SideOf(span, zone, datesOfIcuZone)});
    }
  }
  return table;
}

Table Neighbours(const Zones& zones) {
  Table table("neighbours", "Days on which the engine's lunar dates differ between two zones",
              {"zones", "days", "of"});
  for (std::size_t a = 0; a < zones.size(); ++a) {
    for (std::size_t b = a + 1; b < zones.size(); ++b) {
      const int days = CountDays(FindDeviations(zones[a].engine.dates, zones[b].engine.dates));
      table.Add({ZoneText(zones[a].engine.zone) + " and " + ZoneText(zones[b].engine.zone),
                 std::to_string(days), std::to_string(kDays)});
    }
  }
  return table;
}

Table NewYears(const Zones& zones) {
  Table::Row headings;
  for (const ZoneComparison& zone : zones) {
    headings.push_back(ZoneText(zone.engine.zone));
  }
  Table table("new-years", "Lunar new year's days that differ between the zones", headings);
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    const Table::Row days = NewYearsDays(zones, year);
    if (std::any_of(days.begin(), days.end(), [&](const auto& day) { return day != days[0]; })) {
      table.Add(days);
    }
  }
  return table;
}

}  // namespace almara_accuracy
