// SPDX-License-Identifier: MIT
// Names of solar terms, festivals and regions in the language of a region; English for a region
// without a table.
#ifndef ALMARA_NAMES_NAMES_H_
#define ALMARA_NAMES_NAMES_H_

#include <almara/almara_types.h>

#include <cstdint>

namespace almara {

// Static texts in UTF-8. Both null for a code without a name.
struct NameTexts {
  const char* full = nullptr;
  const char* brief = nullptr;  // the full name where that is short enough
};

NameTexts NamesOfSolarTerm(ESolarKyureki24 term, ELanguage language);
NameTexts NamesOfFestival(std::int32_t festival, ELanguage language);
NameTexts NamesOfRegion(ELanguage region, ELanguage language);

}  // namespace almara

#endif  // ALMARA_NAMES_NAMES_H_
