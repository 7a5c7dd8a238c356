// SPDX-License-Identifier: MIT
// Names of the solar terms and festivals, which the engine knows by number only.
#ifndef ALMARA_VIEWER_NAMES_H_
#define ALMARA_VIEWER_NAMES_H_

#include <almara/almara_types.h>

#include <string>

#include "text_language.h"

namespace almara::viewer {

// In the language, or in English where it has no name of its own. A code that is not in the table
// gives the number.
std::string SolarTermName(ESolarKyureki24 term, TextLanguage language);
std::string SolarFestivalName(EFestivalSolar festival, TextLanguage language);
std::string LunarFestivalName(EFestivalLunar festival, TextLanguage language);

// A form of at most nine cells for a place under a day; the name itself where there is no other.
std::string SolarTermBrief(ESolarKyureki24 term, TextLanguage language);
std::string SolarFestivalBrief(EFestivalSolar festival, TextLanguage language);
std::string LunarFestivalBrief(EFestivalLunar festival, TextLanguage language);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_NAMES_H_
