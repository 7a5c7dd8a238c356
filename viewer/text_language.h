// SPDX-License-Identifier: MIT
// The languages that the viewer has texts in.
#pragma once

#include <almara/almara_types.h>

namespace viewer {

enum class TextLanguage {
  English,
  ChineseSimplified,
  ChineseTraditional,
  Korean,
  Japanese,
  Vietnamese,
};

// English for a region without texts of its own.
constexpr TextLanguage textLanguageOf(ELanguage region) {
  switch (region) {
    case eLanguageChs:
      return TextLanguage::ChineseSimplified;
    case eLanguageCht:
      return TextLanguage::ChineseTraditional;
    case eLanguageKor:
      return TextLanguage::Korean;
    case eLanguageJpn:
      return TextLanguage::Japanese;
    case eLanguageVit:
      return TextLanguage::Vietnamese;
    default:
      return TextLanguage::English;
  }
}

}  // namespace viewer
