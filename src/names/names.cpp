// SPDX-License-Identifier: MIT
#include "names/names.h"

#include <cstddef>
#include <stdexcept>

#include "names/chinese_simplified.h"
#include "names/chinese_traditional.h"
#include "names/english.h"
#include "names/german.h"
#include "names/japanese.h"
#include "names/korean.h"
#include "names/russian.h"
#include "names/thai.h"
#include "names/vietnamese.h"

namespace almara {
namespace {

// The tables are packed by the compiler: one array of characters and offsets into it, so that the
// library has neither pointers to relocate nor anything to do when it is loaded.

enum Kind : std::size_t { kSolarTerm, kFestival, kRegion, kKinds };

struct Table {
  template <std::size_t kSize>
  constexpr Table(const Name (&names)[kSize]) : first(names), size(kSize) {}

  const Name* first;
  std::size_t size;
};

struct Language {
  ELanguage code;
  Table tables[kKinds];
};

// English, the first, is taken for every other language.
constexpr Language kLanguages[] = {
    {eLanguageEng, {kEnglishSolarTerms, kEnglishFestivals, kEnglishRegions}},
    {eLanguageChs,
     {kChineseSimplifiedSolarTerms, kChineseSimplifiedFestivals, kChineseSimplifiedRegions}},
    {eLanguageCht,
     {kChineseTraditionalSolarTerms, kChineseTraditionalFestivals, kChineseTraditionalRegions}},
    {eLanguageKor, {kKoreanSolarTerms, kKoreanFestivals, kKoreanRegions}},
    {eLanguageJpn, {kJapaneseSolarTerms, kJapaneseFestivals, kJapaneseRegions}},
    {eLanguageVit, {kVietnameseSolarTerms, kVietnameseFestivals, kVietnameseRegions}},
    {eLanguageDeu, {kGermanSolarTerms, kGermanFestivals, kGermanRegions}},
    {eLanguageRus, {kRussianSolarTerms, kRussianFestivals, kRussianRegions}},
    {eLanguageTha, {kThaiSolarTerms, kThaiFestivals, kThaiRegions}},
};
constexpr std::size_t kLanguageCount = sizeof(kLanguages) / sizeof(Language);

constexpr std::size_t CountRows() {
  std::size_t rows = 0;
  for (const Table& table : kLanguages[0].tables) {
    rows += table.size;
  }
  return rows;
}

constexpr std::size_t BytesOf(std::string_view text) { return text.empty() ? 0 : text.size() + 1; }

constexpr std::size_t CountBytes() {
  std::size_t bytes = 0;
  for (const Language& language : kLanguages) {
    for (const Table& table : language.tables) {
      for (std::size_t index = 0; index < table.size; ++index) {
        bytes += BytesOf(table.first[index].full) + BytesOf(table.first[index].brief);
      }
    }
  }
  return bytes;
}

using Offset = std::uint16_t;
constexpr std::size_t kRows = CountRows();
constexpr std::size_t kBytes = CountBytes();
static_assert(kBytes <= UINT16_MAX);

struct Offsets {
  Offset full;
  Offset brief;
};

struct Packed {
  ELanguage languages[kLanguageCount];
  std::size_t firstRows[kKinds + 1];
  std::int32_t codes[kRows];
  Offsets names[kLanguageCount][kRows];
  char texts[kBytes];
};

// The row of a code, kRows if there is none.
constexpr std::size_t RowOf(const Packed& packed, std::size_t kind, std::int32_t code) {
  for (std::size_t row = packed.firstRows[kind]; row < packed.firstRows[kind + 1]; ++row) {
    if (packed.codes[row] == code) {
      return row;
    }
  }
  return kRows;
}

// Does not compile if a table lacks a code, has one twice, or one that has no English name.
class Packer {
 public:
  constexpr Packed Pack() {
    PutCodes();
    for (std::size_t language = 0; language < kLanguageCount; ++language) {
      m_packed.languages[language] = kLanguages[language].code;
      for (std::size_t kind = 0; kind < kKinds; ++kind) {
        PutTable(language, kind);
      }
    }
    return m_packed;
  }

 private:
  constexpr void PutCodes() {
    std::size_t row = 0;
    for (std::size_t kind = 0; kind < kKinds; ++kind) {
      const Table& table = kLanguages[0].tables[kind];
      for (std::size_t index = 0; index < table.size; ++index) {
        m_packed.codes[row++] = table.first[index].code;
      }
      m_packed.firstRows[kind + 1] = row;
    }
  }

  constexpr void PutTable(std::size_t language, std::size_t kind) {
    const Table& table = kLanguages[language].tables[kind];
    if (table.size != kLanguages[0].tables[kind].size) {
      throw std::logic_error("a table has not the same number of entries as the English one");
    }
    bool found[kRows]{};
    for (std::size_t index = 0; index < table.size; ++index) {
      const Name& name = table.first[index];
      const std::size_t row = RowOf(m_packed, kind, name.code);
      if (row == kRows || found[row]) {
        throw std::logic_error("a code without an English name, or one that comes up twice");
      }
      found[row] = true;
      m_packed.names[language][row] = Put(name);
    }
  }

  constexpr Offsets Put(const Name& name) {
    const Offset full = PutText(name.full);
    return {full, name.brief.empty() ? full : PutText(name.brief)};
  }

  constexpr Offset PutText(std::string_view text) {
    const std::size_t begin = m_end;
    for (const char character : text) {
      m_packed.texts[m_end++] = character;
    }
    m_packed.texts[m_end++] = '\0';
    return static_cast<Offset>(begin);
  }

  Packed m_packed{};
  std::size_t m_end = 0;
};

constexpr Packed kPacked = Packer().Pack();

std::size_t IndexOf(ELanguage language) {
  for (std::size_t index = 0; index < kLanguageCount; ++index) {
    if (kPacked.languages[index] == language) {
      return index;
    }
  }
  return 0;
}

NameTexts NamesOf(Kind kind, std::int32_t code, ELanguage language) {
  const std::size_t row = RowOf(kPacked, kind, code);
  if (row == kRows) {
    return {};
  }
  const Offsets& offsets = kPacked.names[IndexOf(language)][row];
  return {&kPacked.texts[offsets.full], &kPacked.texts[offsets.brief]};
}

}  // namespace

NameTexts NamesOfSolarTerm(ESolarKyureki24 term, ELanguage language) {
  return NamesOf(kSolarTerm, term, language);
}

NameTexts NamesOfFestival(std::int32_t festival, ELanguage language) {
  return NamesOf(kFestival, festival, language);
}

NameTexts NamesOfRegion(ELanguage region, ELanguage language) {
  return NamesOf(kRegion, region, language);
}

}  // namespace almara
