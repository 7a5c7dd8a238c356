// SPDX-License-Identifier: MIT
#include "lunar/lunar_quarter.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "date/int32.h"
#include "lunar/julian_date.h"
#include "lunar/truncated.h"

namespace almara {
namespace {

using PrincipalTerms = decltype(LunarQuarter::terms);
using NewMoons = decltype(LunarQuarter::moons);
using QuarterMonths = decltype(LunarQuarter::months);

// Days from a principal term to a moment between the next two; terms are 29.4 to 31.5 days apart.
constexpr double kPastNextTerm = 32;
// Days from a new moon to two moments between the next two; new moons are 29.2 to 29.9 days apart.
constexpr double kPastNextMoon = 30;
constexpr double kWellPastNextMoon = 35;
// Days back from a new moon to a moment after the one before it.
constexpr double kPastPreviousMoon = 27;
// New moons that are no more days apart than these are the same.
constexpr double kSameMoon = 26;  // MUTATE_EXCL: two found are never the same.
// The month that holds the spring equinox, 0 degrees.
constexpr int kMonthOfEquinox = 2;

// The solstice or equinox at or before dayCount and the three principal terms after it. None if a
// search does not settle.
std::optional<PrincipalTerms> FindPrincipalTerms(double dayCount, double zone) {
  PrincipalTerms terms{};
  std::optional<SunCrossing> found = SolsticeOrEquinoxBefore(dayCount, zone);
  for (std::size_t k = 0; found.has_value(); ++k) {
    terms[k] = *found;
    if (k + 1 == terms.size()) {
      return terms;
    }
    found = PrincipalTermBefore(found->time + kPastNextTerm, zone);
  }
  return std::nullopt;
}

// Five new moons in a row, the first one next to firstTerm.
NewMoons FindNewMoons(double firstTerm, double zone) {
  NewMoons moons{};
  moons[0] = NewMoonBefore(firstTerm, zone);
  for (std::size_t k = 1; k < moons.size(); ++k) {
    moons[k] = NewMoonBefore(moons[k - 1] + kPastNextMoon, zone);
    // The same new moon found again.
    // MUTATE_EXCL: from 30 days after a new moon the next one is found.
    if (std::fabs(Truncated(moons[k - 1]) - Truncated(moons[k])) <= kSameMoon) {
      // MUTATE_EXCL: as above, this is never reached.
      moons[k] = NewMoonBefore(moons[k - 1] + kWellPastNextMoon, zone);
    }
  }
  return moons;
}

// Shifts the new moons by one where the month of firstTerm would not be the first of them.
void AlignNewMoons(double firstTerm, double zone, NewMoons& moons) {
  const double day = Truncated(firstTerm);
  if (Truncated(moons[1]) <= day) {
    std::copy(moons.begin() + 1, moons.end(), moons.begin());
    moons[4] = NewMoonBefore(moons[3] + kWellPastNextMoon, zone);
  } else if (Truncated(moons[0]) > day) {
    std::copy_backward(moons.begin(), moons.end() - 1, moons.end());
    moons[0] = NewMoonBefore(moons[0] - kPastPreviousMoon, zone);
  }
}

// Whether terms[k] falls outside the month of moons[k]. A term on the month's first day counts as
// outside.
bool HoldsNoPrincipalTerm(const PrincipalTerms& terms, const NewMoons& moons, std::size_t k) {
  const double term = Truncated(terms[k].time);
  return term <= Truncated(moons[k]) || term >= Truncated(moons[k + 1]);
}

// Numbers the months from the first term. A leap month is looked for only where five new moons fall
// within the four terms, and the first month without a term is it.
QuarterMonths NumberMonths(const PrincipalTerms& terms, const NewMoons& moons) {
  bool leapDue = Truncated(moons[4]) <= Truncated(terms[3].time);
  QuarterMonths months{};
  months[0] = {TruncateToInt32(terms[0].longitude / 30) + kMonthOfEquinox, 0,
               TruncateToInt32(moons[0])};
  for (std::size_t k = 1; k < months.size(); ++k) {
    QuarterMonth& previous = months[k - 1];
    if (leapDue && k >= 2 && HoldsNoPrincipalTerm(terms, moons, k - 1)) {
      previous.number = months[k - 2].number;
      previous.leap = 1;
      leapDue = false;
    }
    months[k] = {previous.number == 12 ? 1 : previous.number + 1, 0, TruncateToInt32(moons[k])};
  }
  return months;
}

// The month that holds a day: the one before the first that begins after it, or the one that
// begins on it.
const QuarterMonth& MonthOfDay(const QuarterMonths& months, int day) {
  for (std::size_t k = 0; k < months.size(); ++k) {
    if (day == months[k].start) {
      return months[k];
    }
    if (day < months[k].start) {
      // MUTATE_EXCL: no day comes before the first of its months.
      return months[k > 0 ? k - 1 : 0];
    }
  }
  return months.back();
}

// The lunar year of a day: its Gregorian year, or the one before while a month 10 to 12 that began
// there lasts into the Gregorian year.
int LunarYear(double dayCount, int lunarMonth) {
  const tagSolarKyurekiYMDT date = DateOfDayCount(dayCount);
  const int year = TruncateToInt32(date.year);
  return lunarMonth >= 10 && date.month < lunarMonth ? WrapSubtract(year, 1) : year;
}

}  // namespace

std::optional<LunarQuarter> FindLunarQuarter(double dayCount, double zone) {
  const std::optional<PrincipalTerms> terms = FindPrincipalTerms(dayCount, zone);
  if (!terms.has_value()) {
    return std::nullopt;
  }
  const double firstTerm = terms->front().time;
  NewMoons moons = FindNewMoons(firstTerm, zone);
  AlignNewMoons(firstTerm, zone, moons);
  return LunarQuarter{*terms, moons, NumberMonths(*terms, moons)};
}

CCalendarLunarDate LunarDateInQuarter(const LunarQuarter& quarter, double dayCount) {
  const int day = TruncateToInt32(dayCount);
  const QuarterMonth& month = MonthOfDay(quarter.months, day);
  return {LunarYear(dayCount, month.number), month.number,
          WrapAdd(WrapSubtract(day, month.start), 1), 0, month.leap};
}

}  // namespace almara
