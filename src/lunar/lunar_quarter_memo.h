// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_LUNAR_QUARTER_MEMO_H_
#define ALMARA_LUNAR_LUNAR_QUARTER_MEMO_H_

#include <map>

#include "lunar/lunar_quarter.h"

// The quarters found so far in the zone in force, so that the 90 days of one share the work of one.
//
// What a day finds depends on where its searches start, but from 1800 to 2099 and in whole-hour
// zones from -12 to +14 by less than a fifth of a second, while no instant comes nearer to midnight
// than nearly half a second: every day of a quarter finds the same months. Outside these years and
// zones every day is searched for on its own. Not to be used from two threads at once.
class LunarQuarterMemo {
 public:
  // The quarter that holds a local day count, valid until the next call. Null if there is none.
  const LunarQuarter* QuarterOf(double dayCount);

 private:
  void ForgetOtherZones(double zone);

  std::map<double, LunarQuarter> m_quarters;  // by the time of their last term
  double m_zone = 0;                          // hours, of m_quarters
  LunarQuarter m_unshared{};
};

#endif  // ALMARA_LUNAR_LUNAR_QUARTER_MEMO_H_
