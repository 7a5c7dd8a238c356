// SPDX-License-Identifier: MIT
#include "lunar/lunar_quarter_memo.h"

#include "date/calendar_platform_api.h"

namespace {

constexpr double kFirstSharedDay = 2378496;  // 1800-01-01
constexpr double kLastSharedDay = 2488068;   // 2099-12-31
constexpr double kWesternmostZone = -12;     // hours
constexpr double kEasternmostZone = 14;

bool MayShare(double dayCount, double zone) {
  return dayCount >= kFirstSharedDay && dayCount <= kLastSharedDay && zone >= kWesternmostZone &&
         zone <= kEasternmostZone;
}

}  // namespace

const LunarQuarter* LunarQuarterMemo::QuarterOf(double dayCount) {
  const double zone = CalendarPlatformApi::PlatformGetTimeZoneValue();
  if (!MayShare(dayCount, zone)) {
    return FindLunarQuarter(dayCount, m_unshared) ? &m_unshared : nullptr;
  }
  if (zone != m_zone) {
    m_quarters.clear();
    m_zone = zone;
  }
  const auto kept = m_quarters.upper_bound(dayCount);
  if (kept != m_quarters.end() && kept->second.Holds(dayCount)) {
    return &kept->second;
  }
  LunarQuarter quarter{};
  if (!FindLunarQuarter(dayCount, quarter)) {
    return nullptr;
  }
  return &m_quarters.emplace(quarter.terms.back().time, quarter).first->second;
}
