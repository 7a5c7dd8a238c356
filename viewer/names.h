// SPDX-License-Identifier: MIT
// Names of the solar terms and festivals, which the engine knows by number only.
#pragma once

#include <almara/almara_types.h>

#include <string>

#include "text_language.h"

namespace viewer {

// In the language, or in English where it has no name of its own. A code that is not in the table
// gives the number.
std::string solarTermName(ESolarKyureki24 term, TextLanguage language);
std::string solarFestivalName(EFestivalSolar festival, TextLanguage language);
std::string lunarFestivalName(EFestivalLunar festival, TextLanguage language);

// A form of at most nine cells for a place under a day; the name itself where there is no other.
std::string solarTermBrief(ESolarKyureki24 term, TextLanguage language);
std::string solarFestivalBrief(EFestivalSolar festival, TextLanguage language);
std::string lunarFestivalBrief(EFestivalLunar festival, TextLanguage language);

}  // namespace viewer
