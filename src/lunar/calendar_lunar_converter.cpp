// SPDX-License-Identifier: MIT
#include "lunar/calendar_lunar_converter.h"

#include <cmath>
#include <cstdio>

#include "lunar/date_key.h"
#include "lunar/lunar_quarter.h"
#include "lunar/lunar_quarter_memo.h"

namespace {

struct LunarDateCorrection {
  const char* solar;
  const char* lunar;
};

// Gregorian dates whose lunar date is fixed, whatever the zone: the second month of 2017. The new
// moon that begins it falls so close to midnight of UTC+9 that the series miss the day there.
constexpr int kCorrectedYear = 2017;
constexpr LunarDateCorrection kLunarDateCorrections[] = {
    {"2017-02-26", "2017-02-01"}, {"2017-02-27", "2017-02-02"}, {"2017-02-28", "2017-02-03"},
    {"2017-03-01", "2017-02-04"}, {"2017-03-02", "2017-02-05"}, {"2017-03-03", "2017-02-06"},
    {"2017-03-04", "2017-02-07"}, {"2017-03-05", "2017-02-08"}, {"2017-03-06", "2017-02-09"},
    {"2017-03-07", "2017-02-10"},

    {"2017-03-08", "2017-02-11"}, {"2017-03-09", "2017-02-12"}, {"2017-03-10", "2017-02-13"},
    {"2017-03-11", "2017-02-14"}, {"2017-03-12", "2017-02-15"}, {"2017-03-13", "2017-02-16"},
    {"2017-03-14", "2017-02-17"}, {"2017-03-15", "2017-02-18"}, {"2017-03-16", "2017-02-19"},
    {"2017-03-17", "2017-02-20"},

    {"2017-03-18", "2017-02-21"}, {"2017-03-19", "2017-02-22"}, {"2017-03-20", "2017-02-23"},
    {"2017-03-21", "2017-02-24"}, {"2017-03-22", "2017-02-25"}, {"2017-03-23", "2017-02-26"},
    {"2017-03-24", "2017-02-27"}, {"2017-03-25", "2017-02-28"}, {"2017-03-26", "2017-02-29"},
    {"2017-03-27", "2017-02-30"},
};

// The day counts whose conversion stays within 32 bits with room for the searches, and the years
// and months whose day count can be formed.
constexpr double kMaxDayCount = 2147383648;  // 2^31 - 100000
constexpr int kMaxYear = 5879488;            // 365.25 * (year + 1) fits
constexpr int kMaxMonth = 70202147;          // 30.59 * (month + 2) fits

bool IsInSpan(CCalendarSolarDate date, double dayCount) {
  return date.year >= -kMaxYear && date.year <= kMaxYear && date.month >= -kMaxMonth &&
         date.month <= kMaxMonth && std::fabs(dayCount) <= kMaxDayCount;
}

}  // namespace

CCalendarLunarConverter::CCalendarLunarConverter() {
  for (const LunarDateCorrection& correction : kLunarDateCorrections) {
    m_mapLunarDateCorrection[correction.solar] = correction.lunar;
  }
}

bool CCalendarLunarConverter::FindCorrection(CCalendarSolarDate date,
                                             CCalendarLunarDate& lunar) const {
  const auto found = m_mapLunarDateCorrection.find(DateKey(date));
  if (found == m_mapLunarDateCorrection.end()) {
    return false;
  }
  std::sscanf(found->second.c_str(), "%d-%d-%d", &lunar.year, &lunar.month, &lunar.day);
  return true;
}

// Gregorian date to lunar date.
//
// Given
//   date   Gregorian; year, month and day are read
// Returned
//   the lunar date; all zeroes outside the span
// Time scale
//   local civil days
// Span
//   1900 to 2099, for which the tests hold every date in every zone. Other years are converted by
//   the same steps as long as 365.25 * year, 30.59 * month and the day count fit 32 bits (years up
//   to about 5.87 million either way) and the searches settle, which they do up to a million years
//   away and for some dates farther out.
CCalendarLunarDate CCalendarLunarConverter::Converter(CCalendarSolarDate date) const {
  LunarQuarterMemo nothingKept;
  return Converter(date, nothingKept);
}

CCalendarLunarDate CCalendarLunarConverter::Converter(CCalendarSolarDate date,
                                                      LunarQuarterMemo& memo) const {
  if (CCalendarLunarDate lunar{}; date.year == kCorrectedYear && FindCorrection(date, lunar)) {
    return lunar;
  }
  const double dayCount = _YMDT2JD(date.year, date.month, date.day, 0, 0, 0);
  const LunarQuarter* quarter = IsInSpan(date, dayCount) ? memo.QuarterOf(dayCount) : nullptr;
  return quarter != nullptr ? LunarDateInQuarter(*quarter, dayCount) : CCalendarLunarDate{};
}
