// SPDX-License-Identifier: MIT
#include "icalendar.h"

#include <almara/almara.h>
#include <gtest/gtest.h>
#include <libical/ical.h>

#include <memory>
#include <set>

namespace almara::viewer {
namespace {

constexpr std::time_t kNow = 1710237600;  // 2024-03-12 10:00:00 UTC

std::vector<CalendarEvent> AllEvents(ELanguage region, LunarSource source) {
  InitCalendarLogicDt(region);
  Annotator annotator(region, source);
  return EventsOfYears(kFirstYear, kLastYear, region, annotator,
                       {{{1984, 10, 29, 0, 1}, R"(A, B; C\ "D")"}, {{0, 8, 15, 0, 0}, "엄마"}});
}

TEST(ICalendar, TheFormatIsKeptAndReadsBackAsItWas) {
  const std::string text = ICalendarText(AllEvents(eLanguageKor, LunarSource::kAlmanac), kNow);
  const std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)> calendar(
      icalparser_parse_string(text.c_str()), &icalcomponent_free);
  ASSERT_NE(calendar, nullptr);
  EXPECT_EQ(icalcomponent_count_errors(calendar.get()), 0);
  const std::unique_ptr<char, decltype(&icalmemory_free_buffer)> again(
      icalcomponent_as_ical_string_r(calendar.get()), &icalmemory_free_buffer);
  EXPECT_EQ(again.get(), text);
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find("\r\n", begin);
    ASSERT_NE(end, std::string::npos);
    EXPECT_LE(end - begin, 75U) << text.substr(begin, end - begin);
    begin = end + 2;
  }
}

TEST(ICalendar, EveryEventOfTwoHundredYearsHasAUidOfItsOwn) {
  for (const ELanguage region : {eLanguageChs, eLanguageCht, eLanguageKor, eLanguageJpn,
                                 eLanguageVit, eLanguageUsa, eLanguageDeu}) {
    for (const LunarSource source : {LunarSource::kAlmanac, LunarSource::kEngine}) {
      const std::vector<CalendarEvent> events = AllEvents(region, source);
      std::set<std::string> uids;
      for (const CalendarEvent& event : events) {
        EXPECT_TRUE(uids.insert(event.uid).second) << event.uid;
      }
      EXPECT_GT(uids.size(), 200U * 30U);
    }
  }
}

}  // namespace
}  // namespace almara::viewer
