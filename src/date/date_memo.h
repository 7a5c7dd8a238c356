// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_DATE_MEMO_H_
#define ALMARA_DATE_DATE_MEMO_H_

#include <almara/almara_types.h>

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <unordered_map>

// The answers given so far about dates, kept for good. A question is a variant (a language, a rule)
// and a date's year, month and day, each any int; the day of week is no part of it. The memo grows
// with every new question and never forgets. Not to be used from two threads at once.
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

  // The kept answer, null if there is none.
  const Answer* Find(std::int32_t variant, const CCalendarSolarDate& date) const {
    const auto page = m_pages.find(KeyOf(variant, date));
    return page != m_pages.end() && page->second.Keeps(SlotOf(date))
               ? &page->second.answers[SlotOf(date)]
               : nullptr;
  }

  // Number of answers kept.
  std::size_t Size() const {
    return std::accumulate(m_pages.begin(), m_pages.end(), std::size_t{0},
                           [](std::size_t sum, const auto& page) {
                             return sum + std::bitset<kDaysOfPage>(page.second.kept).count();
                           });
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

  // A page is found in a few reads of memory however many there are, which a tree's depth would
  // multiply.
  struct HashOfPage {
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
    const std::uint32_t block = static_cast<std::uint32_t>(date.day) / kDaysOfPage;
    return {variant, date.year, date.month, static_cast<std::int32_t>(block)};
  }

  static std::size_t SlotOf(const CCalendarSolarDate& date) {
    return static_cast<std::uint32_t>(date.day) % kDaysOfPage;
  }

  Page& PageOf(const PageKey& key) {
    if (m_lastPage == nullptr || key != m_lastKey) {
      m_lastPage = &m_pages[key];
      m_lastKey = key;
    }
    return *m_lastPage;
  }

  std::unordered_map<PageKey, Page, HashOfPage> m_pages;
  PageKey m_lastKey{};
  Page* m_lastPage = nullptr;  // of m_lastKey
};

#endif  // ALMARA_DATE_DATE_MEMO_H_
