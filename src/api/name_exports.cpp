// SPDX-License-Identifier: MIT
// The exported functions of almara_names.h.
#include <almara/almara_names.h>

#include "names/names.h"

const char* AlmaraSolarTermName(ESolarKyureki24 term, ELanguage language) {
  return almara::NamesOfSolarTerm(term, language).full;
}

const char* AlmaraSolarTermBriefName(ESolarKyureki24 term, ELanguage language) {
  return almara::NamesOfSolarTerm(term, language).brief;
}

const char* AlmaraFestivalName(std::int32_t festival, ELanguage language) {
  return almara::NamesOfFestival(festival, language).full;
}

const char* AlmaraFestivalBriefName(std::int32_t festival, ELanguage language) {
  return almara::NamesOfFestival(festival, language).brief;
}

const char* AlmaraRegionName(ELanguage region, ELanguage language) {
  return almara::NamesOfRegion(region, language).full;
}
