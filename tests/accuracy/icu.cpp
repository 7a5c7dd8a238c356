// SPDX-License-Identifier: MIT
#include "accuracy/icu.h"

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <memory>
#include <stdexcept>

namespace almara_accuracy {

namespace {

constexpr double kMillisecondsPerDay = 86400000;
constexpr double kDayOfEpoch = 25567;  // 1970-01-01 as a day number

double NoonOf(int day) { return (day - kDayOfEpoch + 0.5) * kMillisecondsPerDay; }

}  // namespace

LunarDates IcuDates(const IcuCalendar& calendar) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Calendar> icu(icu::Calendar::createInstance(
      *icu::TimeZone::getGMT(), icu::Locale(calendar.locale), status));
  LunarDates dates;
  for (int day = 0; day < kDays && U_SUCCESS(status); ++day) {
    icu->setTime(NoonOf(day), status);
    const int year = icu->get(UCAL_EXTENDED_YEAR, status) + calendar.yearOfYear1 - 1;
    const int month = icu->get(UCAL_MONTH, status) + 1;
    const int leap = icu->get(UCAL_IS_LEAP_MONTH, status);
    dates.push_back({year, month, leap, icu->get(UCAL_DATE, status)});
  }
  if (U_FAILURE(status)) {
    throw std::runtime_error(u_errorName(status));
  }
  return dates;
}

}  // namespace almara_accuracy
