// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_YARDSTICK_SOLAR_TERMS_H_
#define ALMARA_TESTS_YARDSTICK_SOLAR_TERMS_H_

#include "lunar/calendar_lunar_solar_terms.h"

namespace almara::test::yardstick {

// CCalendarLunarSolarTerms::_Sunlongdays with every day scanned from the start of the year.
double Sunlongdays(double year, double longitude);

// CCalendarLunarSolarTerms::_GetSekkiByYear for a year 1800 to 2099, by that scan.
void GetSekkiByYear(int year, tag24SekkiResult (&results)[kSekkiCount]);

// CCalendarLunarSolarTerms::Check24Sekki with the whole year computed for each question.
ESolarKyureki24 Check24Sekki(int year, int month, int day);

}  // namespace almara::test::yardstick

#endif  // ALMARA_TESTS_YARDSTICK_SOLAR_TERMS_H_
