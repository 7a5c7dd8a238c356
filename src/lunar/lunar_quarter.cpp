// SPDX-License-Identifier: MIT
#include "lunar/lunar_quarter.h"

#include <algorithm>
#include <cmath>

#include "date/int32.h"
#include "lunar/truncated.h"

using almara::TruncateToInt32;
using almara::WrapAdd;
using almara::WrapSubtract;

namespace {

using PrincipalTerms = decltype(LunarQuarter::terms);
using NewMoons = decltype(LunarQuarter::moons);
using LunarMonths = decltype(LunarQuarter::months);

// The solstice or equinox at or before dayCount and the three principal terms behind it. False if a
// search does not settle.
bool FindPrincipalTerms(double dayCount, PrincipalTerms& terms) {
  tagSolarKyurekiNibun nibun{};
  if (CCalendarLunarConverter::_before_nibun(dayCount, &nibun) == 0) {
    return false;
  }
  terms[0] = {nibun.time, nibun.longitude};
  for (std::size_t k = 1; k < terms.size(); ++k) {
    if (CCalendarLunarConverter::_calc_chu(terms[k - 1].time + 32, &terms[k]) == 0) {
      return false;
    }
  }
  return true;
}

// Five new moons in a row, the first one next to firstTerm.
NewMoons FindNewMoons(double firstTerm) {
  NewMoons moons{};
  moons[0] = CCalendarLunarConverter::_calc_saku(firstTerm);
  for (std::size_t k = 1; k < moons.size(); ++k) {
    moons[k] = CCalendarLunarConverter::_calc_saku(moons[k - 1] + 30);
    // The same new moon found again.
    if (std::fabs(Truncated(moons[k - 1]) - Truncated(moons[k])) <= 26) {
      moons[k] = CCalendarLunarConverter::_calc_saku(moons[k - 1] + 35);
    }
  }
  return moons;
}

// Shifts the new moons by one where the month of firstTerm would not be the first of them.
void AlignNewMoons(double firstTerm, NewMoons& moons) {
  const double day = Truncated(firstTerm);
  if (Truncated(moons[1]) <= day) {
    std::copy(moons.begin() + 1, moons.end(), moons.begin());
    moons[4] = CCalendarLunarConverter::_calc_saku(moons[3] + 35);
  } else if (Truncated(moons[0]) > day) {
    std::copy_backward(moons.begin(), moons.end() - 1, moons.end());
    moons[0] = CCalendarLunarConverter::_calc_saku(moons[0] - 27);
  }
}

// Whether the month from moons[k] up to the next new moon holds no principal term terms[k].
bool HoldsNoPrincipalTerm(const PrincipalTerms& terms, const NewMoons& moons, std::size_t k) {
  const double term = Truncated(terms[k].time);
  return term <= Truncated(moons[k]) || term >= Truncated(moons[k + 1]);
}

// Numbers the months from the first term. A leap month is looked for only where five new moons fall
// within the four terms, and the first month without a term is it.
LunarMonths NumberMonths(const PrincipalTerms& terms, const NewMoons& moons) {
  bool leapDue = Truncated(moons[4]) <= Truncated(terms[3].time);
  LunarMonths months{};
  months[0] = {TruncateToInt32(terms[0].longitude / 30) + 2, 0, TruncateToInt32(moons[0])};
  for (std::size_t k = 1; k < months.size(); ++k) {
    LunarMonth& previous = months[k - 1];
    if (leapDue && k >= 2 && HoldsNoPrincipalTerm(terms, moons, k - 1)) {
      previous.number = months[k - 2].number;
      previous.leap = 1;
      leapDue = false;
    }
    months[k] = {previous.number == 12 ? 1 : previous.number + 1, 0, TruncateToInt32(moons[k])};
  }
  return months;
}

// The month that holds a day: the one before the first that begins behind it, or the one that
// begins on it.
const LunarMonth& MonthOfDay(const LunarMonths& months, int day) {
  for (std::size_t k = 0; k < months.size(); ++k) {
    if (day == months[k].start) {
      return months[k];
    }
    if (day < months[k].start) {
      return months[k > 0 ? k - 1 : 0];
    }
  }
  return months.back();
}

// The lunar year of a day: its Gregorian year, or the one before while a month 10 to 12 that began
// there lasts into the Gregorian year.
int LunarYear(double dayCount, int lunarMonth) {
  tagSolarKyurekiYMDT date{};
  CCalendarLunarConverter::_JD2YMDT(dayCount, &date);
  const int year = TruncateToInt32(date.year);
  return lunarMonth >= 10 && date.month < lunarMonth ? WrapSubtract(year, 1) : year;
}

}  // namespace

bool FindLunarQuarter(double dayCount, LunarQuarter& quarter) {
  if (!FindPrincipalTerms(dayCount, quarter.terms)) {
    return false;
  }
  const double firstTerm = quarter.terms.front().time;
  quarter.moons = FindNewMoons(firstTerm);
  AlignNewMoons(firstTerm, quarter.moons);
  quarter.months = NumberMonths(quarter.terms, quarter.moons);
  return true;
}

CCalendarLunarDate LunarDateInQuarter(const LunarQuarter& quarter, double dayCount) {
  const int day = TruncateToInt32(dayCount);
  const LunarMonth& month = MonthOfDay(quarter.months, day);
  return {LunarYear(dayCount, month.number), month.number,
          WrapAdd(WrapSubtract(day, month.start), 1), 0, month.leap};
}
