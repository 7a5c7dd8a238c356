// SPDX-License-Identifier: MIT
#include "lunar/lunar_memo.h"

#include <optional>

namespace almara {
namespace {

// MUTATE_EXCL: a day that shares nothing has the same date.
constexpr double kFirstSharedDay = 2378496;  // 1800-01-01
// MUTATE_EXCL: a day that shares nothing has the same date.
constexpr double kLastSharedDay = 2488068;  // 2099-12-31
constexpr double kWesternmostZone = -12;    // hours
constexpr double kEasternmostZone = 14;

bool MayShare(double dayCount, double zone) {
  return dayCount >= kFirstSharedDay && dayCount <= kLastSharedDay && zone >= kWesternmostZone &&
         zone <= kEasternmostZone;
}

}  // namespace

void LunarMemo::ForgetOtherZones(double zone) {
  if (zone != m_zone) {
    m_quarters.clear();
    m_sekkiDays.clear();
    m_zone = zone;
  }
}

const LunarQuarter* LunarMemo::QuarterOf(double dayCount, double zone) {
  const bool mayShare = MayShare(dayCount, zone);
  // MUTATE_EXCL: what is not found is worked out with the same result.
  if (mayShare) {
    ForgetOtherZones(zone);
    const auto kept = m_quarters.upper_bound(dayCount);
    // MUTATE_EXCL: worked out again, a quarter is the same.
    if (kept != m_quarters.end() && kept->second.terms.front().time <= dayCount) {
      return &kept->second;
    }
  }
  const std::optional<LunarQuarter> quarter = FindLunarQuarter(dayCount, zone);
  if (!quarter.has_value()) {
    return nullptr;
  }
  if (!mayShare) {
    m_unshared = *quarter;
    return &m_unshared;
  }
  return &m_quarters.emplace(quarter->terms.back().time, *quarter).first->second;
}

const SekkiDays& LunarMemo::SekkiDaysOf(int year, double zone) {
  ForgetOtherZones(zone);
  const auto kept = m_sekkiDays.find(year);
  return kept != m_sekkiDays.end()
             ? kept->second
             : m_sekkiDays.emplace(year, SekkiDaysOfYear(year, zone)).first->second;
}

}  // namespace almara
