// SPDX-License-Identifier: MIT
//
// answers_dump FILE: prints checksums of all that the engine answers, and, bit by bit, of the
// doubles behind it. The boards' own dump goes to FILE. Two builds that print the same lines and
// write the same file compute the same.
#include <almara/almara.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "api/fresh_engine.h"
#include "lunar/annotation_checksums.h"
#include "support/clock.h"

namespace almara::test {
namespace {

using Converter = CCalendarLunarConverter;

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2099;
constexpr ELanguage kLanguages = 11;  // 0, no region, included

std::FILE* g_report = stderr;  // the standard output as it was when the program began

void Print(const std::string& name, const Checksum& checksum) {
  std::fprintf(g_report, "%s %016llx\n", name.c_str(),
               static_cast<unsigned long long>(checksum.Value()));
  std::fflush(g_report);
}

void PrintDaysOfEachZone() {
  for (int zone = kFirstZone; zone <= kLastZone; ++zone) {
    Checksum checksum;
    checksum.Add(ChecksumOfSharedLunarDates(zone));
    checksum.Add(ChecksumOfTerms(zone));
    Print("lunar dates and solar terms, zone " + std::to_string(zone), checksum);
  }
  Checksum alone;
  alone.Add(ChecksumOfLunarDates(8));
  Print("lunar dates worked out one by one, zone 8", alone);
}

void PrintLookUps() {
  for (ELanguage language = 0; language < kLanguages; ++language) {
    almara::test::StartFreshEngine();
    InitCalendarLogicDt(language);
    Checksum checksum;
    ForEachDay(kFirstYear, kLastYear, [&](CCalendarSolarDate date) {
      checksum.Add(ConverterLunarWithDate(date));
      checksum.Add(Check24SekkiWithDate(date));
      checksum.Add(CheckFestivalSolarWithLang(language, date));
      checksum.Add(CheckFestivalLunarWithLang(language, date));
    });
    Print("look-ups of every day, language " + std::to_string(language), checksum);
  }
}

void AddBoard(Checksum& checksum) {
  for (int row = 0; row < GetContentRows(); ++row) {
    for (int column = 0; column < GetContentColumns(); ++column) {
      checksum.Add(GetContentItem(row, column));
    }
  }
  for (int i = 0; i < GetWeekNumberCount(); ++i) {
    checksum.Add(GetWeekNumberItemWithIndex(i));
  }
  checksum.Add(GetContentDate());
}

Checksum BoardsOf(EDispMonth mode, EWeekNumberCalc calcType, bool interval) {
  almara::test::StartFreshEngine();
  SetDispMonth(mode);
  SetWeekNumberCalcType(calcType);
  SetShowMonthInterval(interval);
  SetMaxRow(6);
  Checksum checksum;
  GotoSpecifiedDate(kFirstYear, 1, 1);
  while (GetContentDate().year != 0 && GetContentDate().year <= kLastYear) {
    AddBoard(checksum);
    const CCalendarSolarDate before = GetContentDate();
    GotoNextPage();
    const CCalendarSolarDate after = GetContentDate();
    if (after.year == before.year && after.month == before.month && after.day == before.day) {
      break;
    }
  }
  return checksum;
}

void PrintBoards(const char* zone) {
  setenv("TZ", zone, 1);
  tzset();
  almara::test::SetToday(2024, 3, 13);
  for (EDispMonth mode = eDispMonthRollingWeeks; mode <= eDispMonthDayStrip; ++mode) {
    for (EWeekNumberCalc calcType = 0; calcType <= eWeekNumberCalcFromStartWeek; ++calcType) {
      for (const bool interval : {false, true}) {
        Print("boards, mode " + std::to_string(mode) + ", week numbers " +
                  std::to_string(calcType) + (interval ? ", intervals, " : ", ") + zone,
              BoardsOf(mode, calcType, interval));
      }
    }
  }
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
  Print("bits of _LONGITUDE_SUN", sun);
  Print("bits of _LONGITUDE_MOON", moon);
  Print("bits of _SunLong", sekki);
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
  Print("bits of _calc_chu", principalTerms);
  Print("bits of _calc_saku", newMoons);
  Print("bits of _Sunlongdays", sekki);
}

// The report goes to the standard output as it was, the boards' dump to the file named.
int Run(const char* dumpFile) {
  g_report = fdopen(dup(STDOUT_FILENO), "w");
  if (g_report == nullptr || std::freopen(dumpFile, "w", stdout) == nullptr) {
    return 1;
  }
  setenv("TZ", "UTC", 1);
  tzset();
  PrintLongitudes();
  PrintSearches();
  PrintDaysOfEachZone();
  PrintLookUps();
  PrintBoards("Asia/Shanghai");
  PrintBoards("Australia/Lord_Howe");
  return 0;
}

}  // namespace
}  // namespace almara::test

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: answers_dump FILE\n", stderr);
    return 2;
  }
  return almara::test::Run(argv[1]);
}
