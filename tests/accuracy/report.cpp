// SPDX-License-Identifier: MIT
//
// accuracy_report: compares the engine's lunar dates and solar terms of the years 1900 to 2099 with
// Swiss Ephemeris and ICU and prints the report, in Markdown, to the standard output. Progress goes
// to the standard error output.
#include <almara/almara_types.h>
#include <swephexp.h>
#include <unicode/uvernum.h>

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "accuracy/icu.h"
#include "accuracy/tables.h"

namespace almara_accuracy {

namespace {

void Progress(const std::string& step) {
  static const auto start = std::chrono::steady_clock::now();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  std::cerr << "  " << NumberText(elapsed.count(), 0) << " s: " << step << std::endl;
}

// The zones that languages imply, and Vietnam's.
Zones CompareZones(const Ephemeris& ephemeris) {
  Progress("asking the engine for every day, in UTC+7, UTC+8 and UTC+9");
  EngineProcess vit({eLanguageVit, 7}, ephemeris);
  EngineProcess chs({eLanguageChs, 0}, ephemeris);
  EngineProcess kor({eLanguageKor, 0}, ephemeris);
  Progress("asking ICU's Chinese calendar for every day");
  LunarDates chinese = IcuDates(kIcuChinese);
  Progress("asking ICU's Korean calendar for every day");
  LunarDates korean = IcuDates(kIcuDangi);
  Progress("waiting for the engine");
  Zones zones;
  zones.push_back(CompareZone(vit.Read(), ephemeris, {}));
  zones.push_back(CompareZone(chs.Read(), ephemeris, std::move(chinese)));
  zones.push_back(CompareZone(kor.Read(), ephemeris, std::move(korean)));
  return zones;
}

// All other zones in whole hours, two at a time.
Zones CompareOtherZones(const Ephemeris& ephemeris) {
  std::vector<Zone> wanted;
  for (Zone zone = kWestmostZone; zone <= kEastmostZone; ++zone) {
    if (zone < 7 || zone > 9) {
      wanted.push_back(zone);
    }
  }
  Zones zones;
  for (std::size_t k = 0; k + 1 < wanted.size(); k += 2) {
    Progress("asking the engine for every day, in " + ZoneText(wanted[k]) + " and " +
             ZoneText(wanted[k + 1]));
    EngineProcess first({eLanguageEng, wanted[k]}, ephemeris);
    EngineProcess second({eLanguageEng, wanted[k + 1]}, ephemeris);
    zones.push_back(CompareZone(first.Read(), ephemeris, {}));
    zones.push_back(CompareZone(second.Read(), ephemeris, {}));
  }
  return zones;
}

void Print(const Zones& zones, const Zones& others, const Ephemeris& ephemeris) {
  const EngineAnswers& engine = zones[1].engine;
  char version[AS_MAXCH];
  std::cout << "# Accuracy of lunar dates and solar terms, " << kFirstYear << " to " << kLastYear
            << "\n\nCompared with Swiss Ephemeris " << swe_version(version)
            << " (its built-in ephemeris) and ICU " << U_ICU_VERSION << ".\n\n";
  for (const Table& table :
       {InShort(zones), Elsewhere(others), Summary(zones), Instants(engine, ephemeris),
        LunarDeviations("lunar-deviations", "Lunar dates off the ephemeris", zones, ephemeris),
        MonthsOf2033(zones), FestivalDeviations(zones), FixedDates(engine, ephemeris),
        CloseNewMoons(zones, ephemeris), TermDeviations(zones), Neighbours(zones), NewYears(zones),
        IcuDeviations(zones, ephemeris),
        LunarDeviations("lunar-deviations-elsewhere",
                        "Lunar dates off the ephemeris in the other zones", others, ephemeris)}) {
    table.Print(std::cout);
  }
}

void Report() {
  Progress("computing new moons and solar terms from the ephemeris");
  const Ephemeris ephemeris = ComputeEphemeris();
  const Zones zones = CompareZones(ephemeris);
  const Zones others = CompareOtherZones(ephemeris);
  Progress("comparing");
  Print(zones, others, ephemeris);
  Progress("done");
}

}  // namespace

}  // namespace almara_accuracy

int main() {
  try {
    almara_accuracy::Report();
  } catch (const std::exception& error) {
    std::cerr << "accuracy_report: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
