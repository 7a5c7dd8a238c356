// SPDX-License-Identifier: MIT
//
// The exported annotation of dates. Each hands its date to the engine without the day of the week,
// or gives its fallback while there is none.
#include <almara/almara.h>

#include "api/engine.h"

namespace {

CCalendarSolarDate WithoutDayOfWeek(CCalendarSolarDate date) {
  // MUTATE_EXCL: no look-up reads the day of the week.
  return {date.year, date.month, date.day, 0};
}

}  // namespace

// The engine exists once loading has succeeded; there is no fallback for a lunar date.
CCalendarLunarDate ConverterLunarWithDate(CCalendarSolarDate date) {
  return g_pCalendarLogic->ConverterLunar(WithoutDayOfWeek(date));
}

ESolarKyureki24 Check24SekkiWithDate(CCalendarSolarDate date) {
  return almara::Ask(&CCalendarLogic::Check24Sekki, eSekkiNone, WithoutDayOfWeek(date));
}

EFestivalSolar CheckFestivalSolarWithLang(ELanguage language, CCalendarSolarDate date) {
  return almara::Ask(&CCalendarLogic::CheckFestivalSolar, eFestivalSolarNone, language,
                     WithoutDayOfWeek(date));
}

EFestivalLunar CheckFestivalLunarWithLang(ELanguage language, CCalendarSolarDate date) {
  return almara::Ask(&CCalendarLogic::CheckFestivalLunar, eFestivalLunarNone, language,
                     WithoutDayOfWeek(date));
}

void ForgetAnnotations() { almara::Tell(&CCalendarLogic::ForgetAnnotations); }
