// SPDX-License-Identifier: MIT
#include "date/day_run.h"

#include "date/int32.h"

namespace almara {

namespace {

constexpr int kSecondsPerDay = 86400;
constexpr int kTmBaseYear = 1900;

}  // namespace

CCalendarSolarDate DateOf(const std::tm& local) {
  return {WrapAdd(local.tm_year, kTmBaseYear), local.tm_mon + 1, local.tm_mday, local.tm_wday};
}

DayRun::DayRun(int year, int month, int day) {
  std::tm record{};
  record.tm_mday = day;
  record.tm_mon = WrapSubtract(month, 1);
  record.tm_year = WrapSubtract(year, kTmBaseYear);
  m_midnight = std::mktime(&record);
}

bool DayRun::DateAt(int offset, CCalendarSolarDate& date) const {
  const std::time_t instant = m_midnight + WrapMultiply(offset, kSecondsPerDay);
  std::tm local{};
  if (localtime_r(&instant, &local) == nullptr) {
    return false;
  }
  date = DateOf(local);
  return true;
}

}  // namespace almara
