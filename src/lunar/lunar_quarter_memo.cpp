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

void LunarQuarterMemo::ForgetOtherZones(double zone) {
  if (zone != m_zone) {
    m_quarters.clear();
    m_zone = zone;
  }
}

const LunarQuarter* LunarQuarterMemo::QuarterOf(double dayCount) {
  const double zone = CalendarPlatformApi::PlatformGetTimeZoneValue();
  const bool mayShare = MayShare(dayCount, zone);
  if (mayShare) {
    ForgetOtherZones(zone);
    const auto kept = m_quarters.upper_bound(dayCount);
    if (kept != m_quarters.end() && kept->second.terms.front().time <= dayCount) {
      return &kept->second;
    }
  }
  LunarQuarter quarter{};
  if (!FindLunarQuarter(dayCount, quarter)) {
    return nullptr;
  }
  if (!mayShare) {
    m_unshared = quarter;
    return &m_unshared;
  }
  return &m_quarters.emplace(quarter.terms.back().time, quarter).first->second;
}
