// SPDX-License-Identifier: MIT
//
// Every look-up with any int, in a time limit for each call.
#include <almara/almara.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "api/fresh_engine.h"
#include "support/check.h"
#include "support/input.h"

namespace {

using almara::test::Input;
using almara::test::WithinSeconds;

// Far above what a sanitized build needs for the dates of 1900 to 2099 (well below a millisecond)
// and for the searches far away, which are the slowest.
constexpr double kLimit = 1;

// Before that the answers are bounded but mean nothing.
bool IsZoneKnown() { return g_mac_timezone != kTimeZoneUnknown; }

void CheckLunarDate(const CCalendarSolarDate& date) {
  const auto ask = [&] { return ConverterLunarWithDate(date); };
  const CCalendarLunarDate lunar = WithinSeconds(kLimit, "ConverterLunarWithDate", ask);
  const CCalendarLunarDate again = ask();
  ALMARA_CHECK(std::memcmp(&lunar, &again, sizeof lunar) == 0);
  ALMARA_CHECK(lunar.reserved == 0);
  ALMARA_CHECK(lunar.leap == 0 || lunar.leap == 1);
  const bool ordinary = date.year >= 1900 && date.year <= 2099 && date.month >= 1 &&
                        date.month <= 12 && date.day >= 1 && date.day <= 31;
  if (ordinary && IsZoneKnown()) {
    ALMARA_CHECK(lunar.month >= 1 && lunar.month <= 12);
    ALMARA_CHECK(lunar.day >= 1 && lunar.day <= 30);
    ALMARA_CHECK(lunar.year == date.year || lunar.year == date.year - 1);
  }
}

void CheckTerm(const CCalendarSolarDate& date) {
  const auto ask = [&] { return Check24SekkiWithDate(date); };
  const ESolarKyureki24 term = WithinSeconds(kLimit, "Check24SekkiWithDate", ask);
  ALMARA_CHECK(term == ask());
  ALMARA_CHECK(term >= -1 && term <= 23);
  const bool outside = date.year < 1800 || date.year > 2099;
  const bool noDate = date.month < 1 || date.month > 12 || date.day < 1 || date.day > 31;
  if (outside || (noDate && IsZoneKnown())) {
    ALMARA_CHECK(term == eSekkiNone);
  }
}

void CheckSolarFestival(ELanguage language, const CCalendarSolarDate& date) {
  const auto ask = [&] { return CheckFestivalSolarWithLang(language, date); };
  const EFestivalSolar festival = WithinSeconds(kLimit, "CheckFestivalSolarWithLang", ask);
  ALMARA_CHECK(festival == ask());
  ALMARA_CHECK(festival == 0 || (festival >= 1000 && festival <= 6002));
}

void CheckLunarFestival(ELanguage language, const CCalendarSolarDate& date) {
  const auto ask = [&] { return CheckFestivalLunarWithLang(language, date); };
  const EFestivalLunar festival = WithinSeconds(kLimit, "CheckFestivalLunarWithLang", ask);
  ALMARA_CHECK(festival == ask());
  ALMARA_CHECK(festival == 0 || (festival >= 20000 && festival <= 20012 && festival != 20011));
  const bool hasFestivals = language == eLanguageChs || language == eLanguageKor ||
                            language == eLanguageCht || language == eLanguageVit;
  ALMARA_CHECK(hasFestivals || festival == 0);
  ALMARA_CHECK(festival == 0 || ConverterLunarWithDate(date).leap == 0);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("TZ", "UTC", 1);
  almara::test::SilenceStandardOutput();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kMaxQuestions = 64;
  almara::test::StartFreshEngine();
  Input input(data, size);
  for (int i = 0; i < kMaxQuestions && !input.IsEmpty(); ++i) {
    const std::uint8_t choice = input.Byte();
    const ELanguage language = input.About(0, 11);
    const std::int32_t year = input.About(1799, 2100);
    const std::int32_t month = input.About(0, 13);
    const std::int32_t day = input.About(0, 32);
    const CCalendarSolarDate date{year, month, day, input.Raw()};
    switch (choice % 5U) {
      case 0:
        CheckLunarDate(date);
        break;
      case 1:
        CheckTerm(date);
        break;
      case 2:
        CheckSolarFestival(language, date);
        break;
      case 3:
        CheckLunarFestival(language, date);
        break;
      default:
        InitCalendarLogicDt(language);
        break;
    }
  }
  return 0;
}
