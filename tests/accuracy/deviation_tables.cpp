// SPDX-License-Identifier: MIT
#include <optional>
#include <string>

#include "accuracy/tables.h"

namespace almara_accuracy {

namespace {

std::string LocalClock(double moment, Zone zone) { return ClockText(LocalMoment(moment, zone)); }

std::string CauseOf(const DeviationSpan& span, const ZoneComparison& zone,
                    const Ephemeris& ephemeris) {
  if (IsFixed(span)) {
    return "fixed dates";
  }
  switch (span.deviation) {
    case Deviation::kDay: {
      const DecidingNewMoon moon = NewMoonNextToMidnight(zone.engine, ephemeris, span.first + 1);
      return "new moon at " + LocalClock(moon.trueMoment, zone.engine.zone) + ", reckoned at " +
             LocalClock(moon.engineMoment, zone.engine.zone);
    }
    case Deviation::kMonth:
      return AgreeOn(span, zone.ruleDates, zone.trueDates)
                 ? "leap month, by numbering each quarter of the year apart"
                 : "leap month, by a principal term on the other side of midnight";
    case Deviation::kYear:
      break;
  }
  return "number of the year";
}

// The lunar date of a festival without its year.
std::string FestivalText(const FestivalDeviation& festival, const ZoneComparison& zone) {
  const LunarDate& date = festival.trueDay
                              ? zone.trueDates[static_cast<std::size_t>(*festival.trueDay)]
                              : zone.engine.dates[static_cast<std::size_t>(*festival.engineDay)];
  return std::to_string(festival.code) + ": month " + std::to_string(date.month) + ", day " +
         std::to_string(date.day);
}

std::string DayOrNone(const std::optional<int>& day) { return day ? DateText(*day) : "none"; }

int SekkiOf(int longitude) { return (longitude + 360 - 285) % 360 / 15; }

}  // namespace

Table LunarDeviations(const std::string& name, const std::string& title, const Zones& zones,
                      const Ephemeris& ephemeris) {
  Table table(name, title,
              {"zone", "days", "number", "the first one", "by the ephemeris", "cause"});
  for (const ZoneComparison& zone : zones) {
    for (const DeviationSpan& span : zone.fromEphemeris) {
      const auto first = static_cast<std::size_t>(span.first);
      table.Add({ZoneText(zone.engine.zone), SpanText(span.first, span.last),
                 std::to_string(Length(span)), LunarText(zone.engine.dates[first]),
                 LunarText(zone.trueDates[first]), CauseOf(span, zone, ephemeris)});
    }
  }
  return table;
}

Table FestivalDeviations(const Zones& zones) {
  Table table("festival-deviations", "Lunar festivals off the ephemeris",
              {"zone", "EFestivalLunar", "day", "by the ephemeris"});
  for (const ZoneComparison& zone : zones) {
    for (const FestivalDeviation& festival : zone.festivals) {
      table.Add({ZoneText(zone.engine.zone), FestivalText(festival, zone),
                 DayOrNone(festival.engineDay), DayOrNone(festival.trueDay)});
    }
  }
  return table;
}

Table TermDeviations(const Zones& zones) {
  Table table("term-deviations", "Solar terms on another day than by the ephemeris",
              {"zone", "ESolarKyureki24", "true instant", "reckoned at"});
  for (const ZoneComparison& zone : zones) {
    for (const PairedTerm& term : zone.terms) {
      table.Add({ZoneText(zone.engine.zone),
                 std::to_string(SekkiOf(term.longitude)) + ": " + std::to_string(term.longitude) +
                     " degrees",
                 LocalClock(term.trueMoment, zone.engine.zone),
                 LocalClock(term.engineMoment, zone.engine.zone)});
    }
  }
  return table;
}

}  // namespace almara_accuracy
