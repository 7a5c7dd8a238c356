// SPDX-License-Identifier: MIT
#include "almanac/calendar.h"

#include <array>
#include <cstddef>
#include <limits>

namespace almara {

namespace {

constexpr std::int32_t kHour = 3600;
constexpr std::int32_t kBeijing = 27940;  // 116 degrees 25 minutes east: 7 h 45 min 40 s

constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

// The instant at which a day begins in the time that was in force until then.
constexpr std::int64_t DayBegins(int year, int month, int day, std::int32_t offset) {
  // MUTATE_EXCL: no instant of the table lies within a day of these changes.
  return static_cast<std::int64_t>(DayNumber(year, month, day) - kOriginDay) * kSecondsOfDay -
         offset;
}

constexpr std::int64_t kChina1929 = DayBegins(1929, 1, 1, kBeijing);
constexpr std::int64_t kKorea1912 = DayBegins(1912, 1, 1, kBeijing);
constexpr std::int64_t kVietnam1968 = DayBegins(1968, 1, 1, 8 * kHour);

// The new moon of 1906-04-23, 23:52:05 in Beijing: the calendars of China and Korea begin month 4
// of that year on the 24th. So do the tables of the packages lunar-javascript and
// korean-lunar-calendar, with which tests/almanac compares.
constexpr std::int32_t kPrintedOn24April1906 = DayNumber(1906, 4, 23);

constexpr Reckoning kChina = {
    {kChina1929, kNever}, {kBeijing, 8 * kHour, 8 * kHour}, kPrintedOn24April1906};
constexpr Reckoning kKorea = {
    {kKorea1912, kNever}, {kBeijing, 9 * kHour, 9 * kHour}, kPrintedOn24April1906};
constexpr Reckoning kVietnam = {{kChina1929, kVietnam1968}, {kBeijing, 8 * kHour, 7 * kHour}, 0};

constexpr Reckoning AtOffset(std::int32_t offset) {
  return {{kNever, kNever}, {offset, offset, offset}, 0};
}

constexpr Reckoning kJapan = AtOffset(9 * kHour);

using Years = std::array<SolsticeYear, kLastSolstice - kFirstSolstice + 1>;

constexpr Years ReckonYears(const Reckoning& reckoning) {
  Years years{};
  int next = NewMoonOfSolstice(reckoning, kFirstSolstice);
  for (std::size_t i = 0; i < years.size(); ++i) {
    const int year = kFirstSolstice + static_cast<int>(i);
    const int first = next;
    next = NewMoonOfSolstice(reckoning, year + 1);
    years[i] = ReckonBetween(reckoning, year, first, next);
  }
  return years;
}

constexpr Years kYearsOfChina = ReckonYears(kChina);
constexpr Years kYearsOfKorea = ReckonYears(kKorea);
constexpr Years kYearsOfVietnam = ReckonYears(kVietnam);
constexpr Years kYearsOfJapan = ReckonYears(kJapan);

static_assert(sizeof(kNewMoonDeltas) + sizeof(kTermBases) + sizeof(kTermDeltas) +
                      4 * sizeof(Years) <=
                  40000,
              "the tables take at most 40 kB of the library");

// The calendar of a fixed offset is this number plus the minutes.
constexpr std::int32_t kAtGreenwich = 10000;
constexpr std::int32_t kMostMinutes = 18 * 60;

}  // namespace

std::optional<Calendar> CalendarOf(EAlmanacCalendar calendar) {
  switch (calendar) {
    case eAlmanacChina:
      return Calendar{kChina, kYearsOfChina.data()};
    case eAlmanacKorea:
      return Calendar{kKorea, kYearsOfKorea.data()};
    case eAlmanacVietnam:
      return Calendar{kVietnam, kYearsOfVietnam.data()};
    case eAlmanacJapan:
      return Calendar{kJapan, kYearsOfJapan.data()};
    default:
      break;
  }
  if (calendar < kAtGreenwich - kMostMinutes || calendar > kAtGreenwich + kMostMinutes) {
    return std::nullopt;
  }
  return Calendar{AtOffset((calendar - kAtGreenwich) * 60), nullptr};
}

EAlmanacCalendar CalendarAtOffset(std::int32_t minutes) {
  return minutes >= -kMostMinutes && minutes <= kMostMinutes ? kAtGreenwich + minutes
                                                             : eAlmanacNone;
}

}  // namespace almara
