// SPDX-License-Identifier: MIT
#include "accuracy/month_rule.h"

#include <algorithm>
#include <cstddef>

namespace almara_accuracy {

namespace {

constexpr int kWinterSolstice = 270;
constexpr int kMonthOfSolstice = 11;

struct Month {
  int start;  // day number
  bool holdsTerm = false;
  bool holdsSolstice = false;
  int year = 0;
  int number = 0;
  int leap = 0;
};

std::vector<Month> MonthsOf(const std::vector<double>& newMoons,
                            const std::vector<SolarTerm>& terms, Zone zone) {
  std::vector<Month> months;
  for (const double moment : newMoons) {
    months.push_back({LocalDay(moment, zone)});
  }
  for (const SolarTerm& term : terms) {
    const int day = LocalDay(term.moment, zone);
    const auto next = std::upper_bound(months.begin(), months.end(), day,
                                       [](int d, const Month& month) { return d < month.start; });
    if (!IsPrincipal(term) || next == months.begin()) {
      continue;
    }
    (next - 1)->holdsTerm = true;
    (next - 1)->holdsSolstice |= term.longitude == kWinterSolstice;
  }
  return months;
}

// Numbers the months from one with the winter solstice up to the next, which is not included.
void NumberSolsticeYear(std::vector<Month>::iterator first, std::vector<Month>::iterator last) {
  const auto leap = last - first == 13
                        ? std::find_if(first, last, [](const Month& m) { return !m.holdsTerm; })
                        : last;
  int number = kMonthOfSolstice;
  for (auto month = first; month != last; ++month) {
    if (month != first && month != leap) {
      number = number == 12 ? 1 : number + 1;
    }
    month->number = number;
    month->leap = month == leap ? 1 : 0;
  }
}

void NumberYears(std::vector<Month>& months) {
  int year = 0;
  for (Month& month : months) {
    if (month.number == 1 && month.leap == 0) {
      year = CivilOf(month.start).year;
    }
    month.year = year;
  }
}

}  // namespace

LunarDates DatesByRule(const std::vector<double>& newMoons, const std::vector<SolarTerm>& terms,
                       Zone zone) {
  const auto isSolsticeMonth = [](const Month& month) { return month.holdsSolstice; };
  std::vector<Month> months = MonthsOf(newMoons, terms, zone);
  auto first = std::find_if(months.begin(), months.end(), isSolsticeMonth);
  while (first != months.end()) {
    const auto next = std::find_if(first + 1, months.end(), isSolsticeMonth);
    NumberSolsticeYear(first, next);
    first = next;
  }
  NumberYears(months);

  LunarDates dates;
  std::size_t month = 0;
  for (int day = 0; day < kDays; ++day) {
    while (months[month + 1].start <= day) {
      ++month;
    }
    const Month& m = months[month];
    dates.push_back({m.year, m.number, m.leap, day - m.start + 1});
  }
  return dates;
}

}  // namespace almara_accuracy
