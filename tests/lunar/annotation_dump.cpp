// SPDX-License-Identifier: MIT
//
// annotation_dump [zone...]: prints a checksum of the lunar dates and solar terms of each zone
// (default 8 and 9) and checksums of the doubles behind them, bit by bit. Two builds that print the
// same lines compute the same.
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "annotation_checksums.h"

namespace {

using Converter = CCalendarLunarConverter;

void Print(const char* name, std::uint64_t checksum) {
  std::printf("%s %016llx\n", name, static_cast<unsigned long long>(checksum));
}

void PrintDays(int zone) {
  std::printf("zone %d\n", zone);
  Print("  lunar dates", ChecksumOfLunarDates(zone));
  Print("  solar terms", ChecksumOfTerms(zone));
}

void PrintLongitudes() {
  Checksum sun;
  Checksum moon;
  Checksum sekki;
  for (int i = -20000; i <= 20000; ++i) {
    sun.Add(Converter::_LONGITUDE_SUN(i * 1.2345e-4));
    moon.Add(Converter::_LONGITUDE_MOON(i * 1.2345e-4));
    sekki.Add(CCalendarLunarSolarTerms::_SunLong(i * 4.56789));
  }
  Print("bits of _LONGITUDE_SUN", sun.Value());
  Print("bits of _LONGITUDE_MOON", moon.Value());
  Print("bits of _SunLong", sekki.Value());
}

void PrintSearches() {
  const ZoneGuard guard(8);
  CCalendarLunarSolarTerms calculator;
  Checksum principalTerms;
  Checksum newMoons;
  Checksum sekki;
  for (double jd = 2415020; jd < 2488069; jd += 13.7) {
    tagSolarKyurekiChu chu{};
    Converter::_calc_chu(jd, &chu);
    principalTerms.Add(chu.time);
    newMoons.Add(Converter::_calc_saku(jd));
  }
  for (int year = 1800; year <= 2099; ++year) {
    for (int longitude = 0; longitude < 360; longitude += 15) {
      sekki.Add(calculator._Sunlongdays(year, longitude));
    }
  }
  Print("bits of _calc_chu", principalTerms.Value());
  Print("bits of _calc_saku", newMoons.Value());
  Print("bits of _Sunlongdays", sekki.Value());
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<int> zones;
  for (int i = 1; i < argc; ++i) {
    zones.push_back(std::atoi(argv[i]));
  }
  if (zones.empty()) {
    zones = {8, 9};
  }
  for (const int zone : zones) {
    PrintDays(zone);
  }
  PrintLongitudes();
  PrintSearches();
  return 0;
}
