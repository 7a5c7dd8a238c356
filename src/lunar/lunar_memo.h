// SPDX-License-Identifier: MIT
#ifndef ALMARA_LUNAR_LUNAR_MEMO_H_
#define ALMARA_LUNAR_LUNAR_MEMO_H_

#include <map>

#include "lunar/lunar_quarter.h"
#include "lunar/sekki_year.h"

namespace almara {

// The work that days share: the quarters and the years of solar terms found so far, for one zone at
// a time. About 1200 quarters and 300 years are kept at most. Not to be used from two threads at
// once.
//
// What a day finds depends on where its searches start, but from 1800 to 2099 and in whole-hour
// zones from -12 to +14 by less than a fifth of a second, while no instant comes nearer to midnight
// than nearly half a second: every day of a quarter finds the same months. Outside these years and
// zones the quarter of every day is searched for on its own.
class LunarMemo {
 public:
  // The quarter that holds a local day count, valid until the next call. Null if there is none.
  const LunarQuarter* QuarterOf(double dayCount, double zone);

  // The days of the terms of a year 1800 to 2099, valid until the next call.
  const SekkiDays& SekkiDaysOf(int year, double zone);

 private:
  void ForgetOtherZones(double zone);

  std::map<double, LunarQuarter> m_quarters;  // by the time of their last term
  std::map<int, SekkiDays> m_sekkiDays;       // by year
  double m_zone = 0;                          // hours, of both
  LunarQuarter m_unshared{};
};

}  // namespace almara

#endif  // ALMARA_LUNAR_LUNAR_MEMO_H_
