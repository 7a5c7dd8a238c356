// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_LUNAR_ANNOTATION_CHECKSUMS_H_
#define ALMARA_TESTS_LUNAR_ANNOTATION_CHECKSUMS_H_

#include <cstdint>

#include "checksum.h"
#include "gregorian_days.h"
#include "lunar/calendar_lunar_solar_terms.h"
#include "lunar/lunar_date.h"
#include "zone_guard.h"

namespace almara::test {

constexpr int kFirstZone = -12;
constexpr int kLastZone = 14;

// The lunar dates of every day of 1900 to 2099 in a zone, each worked out on its own.
inline std::uint64_t ChecksumOfLunarDates(int zone) {
  const ZoneGuard guard(zone);
  const CCalendarLunarConverter converter;
  Checksum checksum;
  ForEachDay(1900, 2099, [&](CCalendarSolarDate date) { checksum.Add(converter.Converter(date)); });
  return checksum.Value();
}

// The same where the days of a quarter share its months, as they do in the engine.
inline std::uint64_t ChecksumOfSharedLunarDates(int zone) {
  LunarMemo memo;
  Checksum checksum;
  ForEachDay(1900, 2099,
             [&](CCalendarSolarDate date) { checksum.Add(LunarDateOf(date, zone, memo)); });
  return checksum.Value();
}

// The days and hours of the solar terms of 1800 to 2099 in a zone.
inline std::uint64_t ChecksumOfTerms(int zone) {
  const ZoneGuard guard(zone);
  CCalendarLunarSolarTerms calculator;
  Checksum checksum;
  for (int year = 1800; year <= 2099; ++year) {
    tag24SekkiResult terms[kSekkiCount] = {};
    calculator._GetSekkiByYear(year, terms);
    for (const tag24SekkiResult& term : terms) {
      checksum.Add(term.nMonth);
      checksum.Add(term.nDay);
      checksum.Add(term.nHour);
    }
  }
  return checksum.Value();
}

}  // namespace almara::test

#endif  // ALMARA_TESTS_LUNAR_ANNOTATION_CHECKSUMS_H_
