// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_YARDSTICK_ENGINE_H_
#define ALMARA_TESTS_YARDSTICK_ENGINE_H_

#include <almara/almara_types.h>

#include <map>
#include <string>

#include "festival/calendar_festival.h"
#include "lunar/calendar_lunar_converter.h"

namespace almara::test::yardstick {

// The four annotation look-ups, each a text key, a std::map and the plain computation. The
// festivals are those of the engine's rules.
class Engine {
 public:
  CCalendarLunarDate ConverterLunar(CCalendarSolarDate date);
  ESolarKyureki24 Check24Sekki(CCalendarSolarDate date);
  EFestivalSolar CheckFestivalSolar(ELanguage language, CCalendarSolarDate date);
  EFestivalLunar CheckFestivalLunar(ELanguage language, CCalendarSolarDate date);

 private:
  CCalendarLunarConverter m_converter;
  CCalendarFestival m_festival{this};
  std::map<std::string, CCalendarLunarDate> m_lunarDates;
  std::map<std::string, ESolarKyureki24> m_sekki;
  std::map<std::string, EFestivalSolar> m_solarFestivals;
  std::map<std::string, EFestivalLunar> m_lunarFestivals;
};

}  // namespace almara::test::yardstick

#endif  // ALMARA_TESTS_YARDSTICK_ENGINE_H_
