// SPDX-License-Identifier: MIT
//
// The tables of the report.
#ifndef ALMARA_TESTS_ACCURACY_TABLES_H_
#define ALMARA_TESTS_ACCURACY_TABLES_H_

#include <string>
#include <vector>

#include "accuracy/ephemeris.h"
#include "accuracy/text.h"
#include "accuracy/zone_comparison.h"

namespace almara_accuracy {

using Zones = std::vector<ZoneComparison>;

// How much and how far (summary_tables.cpp).
Table InShort(const Zones& zones);
Table Summary(const Zones& zones);
Table Elsewhere(const Zones& others);
Table Instants(const EngineAnswers& engine, const Ephemeris& ephemeris);

// What is off the ephemeris, and why (deviation_tables.cpp). LunarDeviations makes a table for some
// zones, under a name and a title of theirs.
Table LunarDeviations(const std::string& name, const std::string& title, const Zones& zones,
                      const Ephemeris& ephemeris);
Table FestivalDeviations(const Zones& zones);
Table TermDeviations(const Zones& zones);

// The months around the end of 2033, whose leap month the engine places by a rule of its own, and
// the dates of 2017 that are the same in every zone (special_tables.cpp).
Table MonthsOf2033(const Zones& zones);
Table FixedDates(const EngineAnswers& engine, const Ephemeris& ephemeris);

// New moons so near midnight that seconds decide on which day the month begins
// (special_tables.cpp).
Table CloseNewMoons(const Zones& zones, const Ephemeris& ephemeris);

// The engine beside other calendars and beside itself in another zone (neighbour_tables.cpp).
Table IcuDeviations(const Zones& zones, const Ephemeris& ephemeris);
Table Neighbours(const Zones& zones);
Table NewYears(const Zones& zones);

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_TABLES_H_
