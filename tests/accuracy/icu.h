// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ACCURACY_ICU_H_
#define ALMARA_TESTS_ACCURACY_ICU_H_

#include "accuracy/lunar_date.h"

namespace almara_accuracy {

// A lunisolar calendar of ICU. Each has a zone of its own for the astronomy: the Chinese one UTC+8
// for all times, the Korean one UTC+9 from 1912 on and UTC+8 from 1898 to 1911.
struct IcuCalendar {
  const char* locale;
  int yearOfYear1;  // the Gregorian year in which its year 1 began
};

constexpr IcuCalendar kIcuChinese{"zh_CN@calendar=chinese", -2636};
constexpr IcuCalendar kIcuDangi{"ko_KR@calendar=dangi", -2332};

LunarDates IcuDates(const IcuCalendar& calendar);

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_ICU_H_
