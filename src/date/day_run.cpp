// SPDX-License-Identifier: MIT
#include "date/day_run.h"

#include <cstdint>
#include <limits>

#include "date/civil_day.h"
#include "date/int32.h"

// Boards reach to 2099, and a wrapped offset reaches 68 years further.
static_assert(sizeof(std::time_t) == 8, "almara needs 64-bit time: -D_TIME_BITS=64");

namespace almara {

namespace {

constexpr int kSecondsPerDay = 86400;
constexpr int kTmBaseYear = 1900;
constexpr std::time_t kNoMidnight = -1;

constexpr int kYearsOfCycle = 400;  // after which the calendar repeats, weekdays included
constexpr int kDaysOfCycle = 146097;
constexpr int kEpochDay = DayNumber(1970, 1, 1);

// Whether the system's record of a local time has room for a year.
bool FitsRecord(std::int64_t year) {
  return year - kTmBaseYear >= std::numeric_limits<std::int32_t>::min() &&
         year - kTmBaseYear <= std::numeric_limits<std::int32_t>::max();
}

// Quotient rounded down.
constexpr std::int64_t FloorDivide(std::int64_t value, int divisor) {
  return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// The date of a day counted from 1970-01-01, and the year in full.
struct FarDate {
  CCalendarSolarDate date;
  std::int64_t year;
};

FarDate DateOfEpochDay(std::int64_t epochDay) {
  const std::int64_t day = epochDay + kEpochDay - 1;  // from 0001-01-01
  const std::int64_t cycle = FloorDivide(day, kDaysOfCycle);
  FarDate far{DateOfDayNumber(static_cast<int>(day - cycle * kDaysOfCycle) + 1), 0};
  far.year = far.date.year + cycle * kYearsOfCycle;
  far.date.year = static_cast<std::int32_t>(static_cast<std::uint64_t>(far.year));
  return far;
}

// The day, counted from 1970-01-01, of a date of any year whose month counts from 0. Month and day
// count on.
std::int64_t EpochDayOf(std::int64_t year, int monthFromZero, int day) {
  const std::int64_t yearsOfMonths = FloorDivide(monthFromZero, kMonthsOfYear);
  const std::int64_t years = year + yearsOfMonths - 1;  // from year 1
  const std::int64_t cycle = FloorDivide(years, kYearsOfCycle);
  const int yearOfCycle = static_cast<int>(years - cycle * kYearsOfCycle) + 1;
  const int month = static_cast<int>(monthFromZero - yearsOfMonths * kMonthsOfYear) + 1;
  return cycle * kDaysOfCycle + DayNumber(yearOfCycle, month, 1) + std::int64_t{day} - 1 -
         kEpochDay;
}

constexpr int kNearDays = 10 * kDaysOfWeek;

// Whether StepDays() serves, which takes fewer steps than DateOfEpochDay() for most days of a
// board.
bool IsNear(const CCalendarSolarDate& date, int offset) {
  // MUTATE_EXCL: both ways give the same date.
  return offset > -kNearDays && offset < kNearDays && date.year >= kFirstYear &&
         date.year <= kLastYear;
}

// The date less than kNearDays after another, or before it if negative.
CCalendarSolarDate StepDays(CCalendarSolarDate date, int days) {
  date.dayOfWeek = (date.dayOfWeek + days + kNearDays) % kDaysOfWeek;
  date.day += days;
  // MUTATE_EXCL: the second loop brings back what the first takes too far.
  while (date.day < 1) {
    if (--date.month == 0) {
      date.month = kMonthsOfYear;
      --date.year;
    }
    date.day += DaysOfMonth(date.year, date.month);
  }
  while (date.day > DaysOfMonth(date.year, date.month)) {
    date.day -= DaysOfMonth(date.year, date.month);
    if (++date.month > kMonthsOfYear) {
      date.month = 1;
      ++date.year;
    }
  }
  return date;
}

// What mktime() gives for the same fields in UTC, kNoMidnight where it fails included.
std::time_t CivilMidnight(const std::tm& record) {
  const std::int64_t year = std::int64_t{record.tm_year} + kTmBaseYear;
  const std::int64_t epochDay = EpochDayOf(year, record.tm_mon, record.tm_mday);
  return FitsRecord(DateOfEpochDay(epochDay).year) ? epochDay * kSecondsPerDay : kNoMidnight;
}

}  // namespace

CCalendarSolarDate DateOf(const std::tm& local) {
  return {WrapAdd(local.tm_year, kTmBaseYear), local.tm_mon + 1, local.tm_mday, local.tm_wday};
}

DayRun::DayRun(int year, int month, int day, DayCounting counting)
    : m_counting(counting), m_first{} {
  std::tm record{};
  record.tm_mday = day;
  record.tm_mon = WrapSubtract(month, 1);
  record.tm_year = WrapSubtract(year, kTmBaseYear);
  if (counting == DayCounting::kCivil) {
    m_midnight = CivilMidnight(record);
    m_first = DateOfEpochDay(FloorDivide(m_midnight, kSecondsPerDay)).date;
  } else {
    m_midnight = std::mktime(&record);
  }
}

bool DayRun::DateAt(int offset, CCalendarSolarDate& date) const {
  if (m_counting == DayCounting::kCivil && IsNear(m_first, offset)) {
    date = StepDays(m_first, offset);
    return true;
  }
  const std::time_t instant = m_midnight + WrapMultiply(offset, kSecondsPerDay);
  if (m_counting == DayCounting::kCivil) {
    const FarDate far = DateOfEpochDay(FloorDivide(instant, kSecondsPerDay));
    if (!FitsRecord(far.year)) {
      return false;
    }
    date = far.date;
    return true;
  }
  std::tm local{};
  if (localtime_r(&instant, &local) == nullptr) {
    return false;
  }
  date = DateOf(local);
  return true;
}

CCalendarSolarDate DateByOffset(const CCalendarSolarDate& date, int offset, DayCounting counting) {
  CCalendarSolarDate result{};
  DayRun(date.year, date.month, date.day, counting).DateAt(offset, result);
  return result;
}

}  // namespace almara
