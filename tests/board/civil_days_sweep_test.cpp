// SPDX-License-Identifier: MIT
//
// Boards, pages and solar festivals of 1900 to 2099 in civil days, under every zone file of the
// machine: the same as local time gives in UTC. And the count of zones that local time fails.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "support/board.h"
#include "support/capture_stdout.h"
#include "support/civil.h"
#include "support/clock.h"
#include "support/zone.h"

namespace almara::test {

namespace {

constexpr int kFirst = 1900;
constexpr int kLast = 2099;
constexpr ELanguage kLanguagesByWeekday[] = {eLanguageChs, eLanguageUsa, eLanguageJpn};

// One name for each different zone file, in order of name. Those of right/ count leap seconds.
std::vector<std::string> Zones() {
  const std::filesystem::path root = "/usr/share/zoneinfo";
  std::map<std::string, std::string> nameByContent;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    if (!entry.is_regular_file() || entry.is_symlink()) {
      continue;
    }
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    if (content.compare(0, 4, "TZif") == 0) {
      const std::string name = std::filesystem::relative(entry.path(), root).string();
      const auto [known, isNew] = nameByContent.try_emplace(content, name);
      // The plain name rather than the one in posix/, which is the same file.
      if (!isNew && (known->second.rfind("posix", 0) == 0 || name < known->second) &&
          name.rfind("posix", 0) != 0) {
        known->second = name;
      }
    }
  }
  std::vector<std::string> names;
  names.reserve(nameByContent.size());
  for (const auto& [content, name] : nameByContent) {
    names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

// FNV-1a over 32-bit values.
class Digest {
 public:
  void Add(std::int32_t value) {
    m_value = (m_value ^ static_cast<std::uint32_t>(value)) * 0x100000001B3U;
  }
  void Add(const CCalendarSolarDate& date) {
    Add(date.year);
    Add(date.month);
    Add(date.day);
    Add(date.dayOfWeek);
  }
  std::uint64_t Value() const { return m_value; }

 private:
  std::uint64_t m_value = 0xCBF29CE484222325U;
};

// All that a host can read of a board.
void AddBoard(Digest& digest, const Board& board) {
  for (int row = 0; row < board.GetContentRows(); ++row) {
    for (int column = 0; column < board.GetContentColumns(); ++column) {
      const CCalendarItem item = board.GetContentItem(row, column);
      digest.Add(item.GetDate());
      digest.Add(item.GetWeekNumber());
      digest.Add(item.GetRow());
      digest.Add(item.GetColumn());
      digest.Add(item.GetType());
    }
  }
  for (const tagCalendarWeekSpan& span : board.Built().spans) {
    digest.Add(span.weekNumber);
    digest.Add(span.secondWeekNumber);
    digest.Add(span.rows);
  }
  for (int column = 0; column < kDaysOfWeek; ++column) {
    digest.Add(board.GetCalendarWeekByColumns(column));
  }
  digest.Add(board.GetContentDate());
  digest.Add(board.IsTodayInBoard() ? 1 : 0);
}

// Every month in every arrangement, reached directly and as a page; the other options change from
// month to month.
void AddMonths(Digest& digest, bool civil) {
  Board board;
  board.SetCivilDays(civil);
  for (int month = 0; month < (kLast - kFirst + 1) * 12; ++month) {
    board.SetShowMonthInterval(month % 2 == 0);
    board.SetStartDayOfWeek(month % 7);
    board.SetWeekNumberCalcType(month % 3);
    board.SetMaxRows(month % 5 + 1);
    for (int mode = eDispMonthRollingWeeks; mode <= eDispMonthDayStrip; ++mode) {
      board.SetDispMonth(mode);
      const auto direction = static_cast<PageDirection>((month + mode) % 3);
      board.BuildQuietly(kFirst + month / 12, month % 12 + 1, month % 31 + 1, PageDirection::kNone);
      AddBoard(digest, board);
      board.BuildQuietly(kFirst + month / 12, month % 12 + 1, month % 31 + 1, direction);
      AddBoard(digest, board);
    }
  }
}

// Some years paged through forward and back in each arrangement, and pages far from today.
void AddPages(Digest& digest, bool civil) {
  const CaptureStdout output;
  Board board;
  board.SetCivilDays(civil);
  for (int mode = eDispMonthRollingWeeks; mode <= eDispMonthDayStrip; ++mode) {
    board.SetDispMonth(mode);
    for (int start = kFirst; start <= kLast; start += 9) {
      board.GotoSpecifiedDate(start, 1, 1);
      for (int page = 0; page < 24; ++page) {
        page % 8 < 5 ? board.GotoNextPage() : board.GotoPreviousPage();
        AddBoard(digest, board);
      }
    }
    for (const int offset : {-2000, -700, -300, -1, 1, 300, 700, 2000, 1 << 30}) {
      board.GotoTodayOffsetMonth(offset);
      AddBoard(digest, board);
    }
  }
}

// The solar festivals of every day, in the regions that count days for some.
void AddFestivals(Digest& digest, bool civil) {
  const CCalendarFestival festival(nullptr);
  const DayCounting counting = civil ? DayCounting::kCivil : DayCounting::kLocalTime;
  for (Civil day = kFirstDay; day != NextDay(kLastDay); day = NextDay(day)) {
    for (const ELanguage language : kLanguagesByWeekday) {
      digest.Add(
          festival.GetFestivalBySolar(language, {day.year, day.month, day.day, 0}, counting));
    }
  }
}

struct Digests {
  std::uint64_t months;
  std::uint64_t pages;
  std::uint64_t festivals;
};

Digests DigestsUnder(const std::string& zone, bool civil) {
  const ScopedZone scope(zone);
  SetToday(2024, 3, 13);
  Digest months;
  Digest pages;
  Digest festivals;
  AddMonths(months, civil);
  AddPages(pages, civil);
  AddFestivals(festivals, civil);
  return {months.Value(), pages.Value(), festivals.Value()};
}

TEST(CivilDaysOfEveryZone, AreThoseOfUtc) {
  const Digests expected = DigestsUnder("UTC", false);
  const std::vector<std::string> zones = Zones();
  ASSERT_GT(zones.size(), 300U) << "the machine has no time-zone database";
  for (const std::string& zone : zones) {
    const Digests digests = DigestsUnder(zone, true);
    EXPECT_EQ(digests.months, expected.months) << zone;
    EXPECT_EQ(digests.pages, expected.pages) << zone;
    EXPECT_EQ(digests.festivals, expected.festivals) << zone;
  }
}

// The years with a month whose board, in local time, shows other days than the month has.
std::vector<int> BrokenYears(const std::string& zone) {
  const ScopedZone scope(zone);
  Board board;
  board.SetDispMonth(eDispMonthWholeMonth);
  board.SetShowMonthInterval(false);
  std::vector<int> years;
  for (int year = kFirst; year <= kLast; ++year) {
    for (int month = 1; month <= 12; ++month) {
      const auto days = [&](bool civil) {
        board.SetCivilDays(civil);
        board.BuildQuietly(year, month, 1);
        Digest digest;
        for (const tagCalendarRow& row : board.Rows()) {
          for (const CCalendarItem& item : row.items) {
            digest.Add(item.GetDate());
          }
        }
        return digest.Value();
      };
      if (days(false) != days(true)) {
        years.push_back(year);
        break;
      }
    }
  }
  return years;
}

// Prints what the documents say of boards without civil days.
TEST(LocalDaysOfEveryZone, FailInSomeMonths) {
  std::map<std::string, std::vector<int>> broken;
  const std::vector<std::string> zones = Zones();
  for (const std::string& zone : zones) {
    broken[zone] = BrokenYears(zone);
  }
  const auto report = [&](int first, int last) {
    const auto within = [=](int year) { return year >= first && year <= last; };
    const auto count = [&](bool right) {
      return std::count_if(broken.begin(), broken.end(), [&](const auto& zone) {
        return (zone.first.rfind("right/", 0) == 0) == right &&
               std::any_of(zone.second.begin(), zone.second.end(), within);
      });
    };
    const auto rights = std::count_if(zones.begin(), zones.end(), [](const std::string& name) {
      return name.rfind("right/", 0) == 0;
    });
    std::printf("%d of %d zones have a broken month in %d-%d (right/: %d of %d)\n",
                static_cast<int>(count(false)),
                static_cast<int>(zones.size()) - static_cast<int>(rights), first, last,
                static_cast<int>(count(true)), static_cast<int>(rights));
  };
  report(1970, 2037);
  report(1900, 2099);
  report(2010, 2026);
  for (const auto& [zone, years] : broken) {
    std::string text = zone + ':';
    for (const int year : years) {
      text += ' ' + std::to_string(year);
    }
    if (!years.empty()) {
      std::puts(text.c_str());
    }
  }
  const auto fails = [&](const std::string& zone, int year) {
    const std::vector<int>& years = broken.at(zone);
    return std::find(years.begin(), years.end(), year) != years.end();
  };
  EXPECT_TRUE(fails("Europe/Moscow", 2014));
  EXPECT_TRUE(fails("Asia/Almaty", 2024));
  EXPECT_FALSE(fails("America/New_York", 2024));
}

}  // namespace

}  // namespace almara::test
