// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "accuracy/tables.h"

namespace almara_accuracy {

namespace {

std::string ZoneWithLanguages(Zone zone) {
  switch (zone) {
    case 7:
      return "UTC+7 (Vit in its own country)";
    case 8:
      return "UTC+8 (Chs, Cht)";
    case 9:
      return "UTC+9 (Kor, Jpn)";
    default:
      return ZoneText(zone);
  }
}

std::string Count(std::size_t count) { return std::to_string(count); }
std::string Count(int count) { return std::to_string(count); }

// On how many of the dates that differ between engine and ICU a calendar is off the ephemeris.
std::string CountOfIcuDays(const ZoneComparison& zone, const LunarDates& dates) {
  int days = 0;
  for (const DeviationSpan& span : zone.fromIcu) {
    days += AgreeOn(span, dates, zone.trueDates) ? 0 : Length(span);
  }
  return zone.icuDates.empty() ? "-" : Count(days);
}

}  // namespace

Table InShort(const Zones& zones) {
  Table table("in-short", "In short",
              {"zone", "lunar dates off", "these", "solar terms on another day"});
  for (const ZoneComparison& zone : zones) {
    std::string spans;
    for (const DeviationSpan& span : zone.fromEphemeris) {
      spans += (spans.empty() ? "" : ", ") + SpanText(span.first, span.last);
    }
    table.Add({ZoneWithLanguages(zone.engine.zone),
               Count(CountDays(zone.fromEphemeris)) + " of " + Count(zone.engine.dates.size()),
               spans, Count(zone.terms.size()) + " of " + Count(zone.engine.sekki.size())});
  }
  return table;
}

Table Summary(const Zones& zones) {
  Table::Row headings{"number of"};
  for (const ZoneComparison& zone : zones) {
    headings.push_back(ZoneText(zone.engine.zone));
  }
  Table table("summary", "Summary", headings);
  const auto add = [&](const std::string& name, auto count) {
    Table::Row row{name};
    for (const ZoneComparison& zone : zones) {
      row.push_back(count(zone));
    }
    table.Add(row);
  };
  add("days compared", [](const auto& zone) { return Count(zone.engine.dates.size()); });
  add("lunar dates off the ephemeris",
      [](const auto& zone) { return Count(CountDays(zone.fromEphemeris)); });
  add("lunar festivals off the ephemeris",
      [](const auto& zone) { return Count(zone.festivals.size()); });
  add("lunar dates that differ from ICU", [](const auto& zone) {
    return zone.icuDates.empty() ? "-" : Count(CountDays(zone.fromIcu));
  });
  add("- the engine off the ephemeris there",
      [](const auto& zone) { return CountOfIcuDays(zone, zone.engine.dates); });
  add("- ICU off the ephemeris there",
      [](const auto& zone) { return CountOfIcuDays(zone, zone.icuDates); });
  add("solar terms compared", [](const auto& zone) { return Count(zone.engine.sekki.size()); });
  add("solar terms on another day than by the ephemeris",
      [](const auto& zone) { return Count(zone.terms.size()); });
  return table;
}

Table Elsewhere(const Zones& others) {
  Table table("elsewhere", "In the other " + Count(others.size()) + " zones from UTC-12 to UTC+14",
              {"number of", "fewest", "in the middle", "most"});
  const auto add = [&](const std::string& name, auto count) {
    std::vector<std::pair<int, Zone>> zones;
    for (const ZoneComparison& zone : others) {
      zones.emplace_back(count(zone), zone.engine.zone);
    }
    std::sort(zones.begin(), zones.end());
    Table::Row row{name};
    for (const std::size_t place : {std::size_t{0}, zones.size() / 2, zones.size() - 1}) {
      row.push_back(Count(zones[place].first) + " in " + ZoneText(zones[place].second));
    }
    table.Add(row);
  };
  add("lunar dates off", [](const auto& zone) { return CountDays(zone.fromEphemeris); });
  add("solar terms on another day",
      [](const auto& zone) { return static_cast<int>(zone.terms.size()); });
  return table;
}

Table Instants(const EngineAnswers& engine, const Ephemeris& ephemeris) {
  Table table("instants", "Error of the instants in seconds, above 0 where the engine's is later",
              {"instants", "number", "median", "worst", "at the true instant (UTC)"});
  const auto add = [&](const std::string& name, const ErrorSummary& errors) {
    table.Add({name, Count(errors.count), NumberText(errors.median, 0),
               NumberText(errors.worst.seconds, 0), ClockText(errors.worst.moment)});
  };
  add("new moons", NewMoonErrors(engine, ephemeris));
  add("principal terms that number the months", ChuErrors(engine, ephemeris));
  add("the 24 solar terms", SekkiErrors(engine, ephemeris));
  return table;
}

}  // namespace almara_accuracy
