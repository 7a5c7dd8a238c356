// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_DATE_MEMO_H_
#define ALMARA_DATE_DATE_MEMO_H_

#include <almara/almara_types.h>

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>

namespace almara {

// The answers given so far about dates, kept until Clear(). A question is a variant (a language, a
// rule) and a date's year, month and day, each any int; the day of week is no part of it. The memo
// grows with every new question. Not to be used from two threads at once.
//
// The days 0 to 31 of a month share a page, because whoever asks about one day of a month asks
// about the others; the page asked last is found without a search.
template <typename Answer>
class DateMemo {
 public:
  DateMemo() = default;
  DateMemo(const DateMemo&) = delete;
  DateMemo& operator=(const DateMemo&) = delete;

  // The kept answer, or else that of compute(), which is then kept. compute() may ask this memo. If
  // it throws, or memory runs out, nothing is kept.
  template <typename Compute>
  Answer GetOrCompute(std::int32_t variant, const CCalendarSolarDate& date, Compute compute) {
    Page& page = PageOf(KeyOf(variant, date));
    const std::size_t slot = SlotOf(date);
    if (!page.Keeps(slot)) {
      page.answers[slot] = compute();
      page.kept |= std::uint32_t{1} << slot;
    }
    return page.answers[slot];
  }

  // The kept answer, null if there is none. This and Size() are for tests.
  const Answer* Find(std::int32_t variant, const CCalendarSolarDate& date) const {
    const PageKey key = KeyOf(variant, date);
    const auto block = m_blocks.find(BlockOf(key));
    const Page* const page =
        block != m_blocks.end() ? block->second[SlotOfMonth(key)].get() : nullptr;
    const std::size_t slot = SlotOf(date);
    return page != nullptr && page->Keeps(slot) ? &page->answers[slot] : nullptr;
  }

  // Forgets every answer and gives its memory back.
  void Clear() {
    m_blocks = Blocks();
    m_lastPage = nullptr;
  }

  // Number of answers kept.
  std::size_t Size() const {
    std::size_t size = 0;
    for (const auto& [key, pages] : m_blocks) {
      for (const auto& page : pages) {
        size += page != nullptr ? std::bitset<kDaysOfPage>(page->kept).count() : 0;
      }
    }
    return size;
  }

 private:
  static constexpr std::uint32_t kDaysOfPage = 32;

  struct Page {
    std::uint32_t kept = 0;  // bit i: answers[i] is known
    std::array<Answer, kDaysOfPage> answers{};

    bool Keeps(std::size_t slot) const { return ((kept >> slot) & 1U) != 0; }
  };

  // Variant, year, month, and the part of the day that does not select the answer within the page.
  using PageKey = std::array<std::int32_t, 4>;

  // The pages of 16 months, those of a year among them. Blocks are few enough for their table to
  // stay in cache, so that an answer among a million waits for memory hardly more than once.
  static constexpr std::uint32_t kMonthsOfBlock = 16;
  using MonthBlock = std::array<std::unique_ptr<Page>, kMonthsOfBlock>;

  struct HashOfKey {
    std::size_t operator()(const PageKey& key) const {
      std::uint64_t hash = 0;
      for (const std::int32_t part : key) {
        hash = (hash ^ static_cast<std::uint32_t>(part)) * 0x9E3779B97F4A7C15U;
        hash ^= hash >> 32U;
      }
      return static_cast<std::size_t>(hash);
    }
  };

  static PageKey KeyOf(std::int32_t variant, const CCalendarSolarDate& date) {
    const std::uint32_t page = static_cast<std::uint32_t>(date.day) / kDaysOfPage;
    return {variant, date.year, date.month, static_cast<std::int32_t>(page)};
  }

  static std::size_t SlotOf(const CCalendarSolarDate& date) {
    return static_cast<std::uint32_t>(date.day) % kDaysOfPage;
  }

  // The key with the part of the month alone that does not select the page within the block.
  static PageKey BlockOf(PageKey key) {
    key[2] = static_cast<std::int32_t>(static_cast<std::uint32_t>(key[2]) / kMonthsOfBlock);
    return key;
  }

  static std::size_t SlotOfMonth(const PageKey& key) {
    return static_cast<std::uint32_t>(key[2]) % kMonthsOfBlock;
  }

  Page& PageOf(const PageKey& key) {
    if (m_lastPage == nullptr || key != m_lastKey) {
      std::unique_ptr<Page>& page = m_blocks[BlockOf(key)][SlotOfMonth(key)];  // GCOVR_EXCL_BR_LINE
      if (page == nullptr) {
        page = std::make_unique<Page>();  // GCOVR_EXCL_BR_LINE: both within the library
      }
      m_lastPage = page.get();
      m_lastKey = key;
    }
    return *m_lastPage;
  }

  using Blocks = std::unordered_map<PageKey, MonthBlock, HashOfKey>;
  Blocks m_blocks;
  PageKey m_lastKey{};
  Page* m_lastPage = nullptr;  // of m_lastKey
};

}  // namespace almara

#endif  // ALMARA_DATE_DATE_MEMO_H_
