// SPDX-License-Identifier: MIT
#include "calendar_events.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "day_instants.h"
#include "listing.h"

namespace almara::viewer {
namespace {

// "<what>-<year>-<region>@almara-board"
std::string Uid(const std::string& what, int year, ELanguage region) {
  return what + "-" + std::to_string(year) + "-" + WordFor(kLanguageWords, region) +
         "@almara-board";
}

// A number for a name, the same on every machine: FNV-1a, 64 bits.
std::string Fingerprint(const std::string& name) {
  constexpr std::uint64_t kBasis = 0xcbf29ce484222325;
  constexpr std::uint64_t kPrime = 0x100000001b3;
  std::uint64_t hash = kBasis;
  for (const char c : name) {
    hash = (hash ^ static_cast<unsigned char>(c)) * kPrime;
  }
  char text[20];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
  return text;
}

std::string LunarDescription(const CCalendarLunarDate& lunar, bool certain, const Texts& texts) {
  const std::string date = LunarDateText(texts, lunar);
  return certain ? date : date + " (" + texts.notCertain + ")";
}

// A term comes once in a Gregorian year and a lunar festival once in a lunar one, on whatever day.
// A solar festival may have two days of a year, which never move.
CalendarEvent EventOf(const DayName& name, const NamedDay& day, ELanguage region,
                      const Annotator& annotator, const Texts& texts) {
  const std::string code = std::to_string(name.code);
  CalendarEvent event = {"", day.date, FullName(name, texts.language), ""};
  const bool almanac = annotator.Source() == LunarSource::kAlmanac;
  switch (name.kind) {
    case DayName::Kind::kSolarTerm:
      event.uid = Uid("term-" + code, day.date.year, region);
      if (almanac) {
        const AlmanacInstant instant =
            AlmanacTermInstant(annotator.Calendar(), day.date.year, name.code);
        event.description = instant.certain != 0 ? InstantText(instant) : DoubtText(instant);
      }
      break;
    case DayName::Kind::kLunarFestival: {
      const CCalendarLunarDate& lunar = day.annotation.lunar;
      event.uid = Uid("lunar-" + code, lunar.year, region);
      event.description =
          LunarDescription(lunar, !almanac || IsMonthCertain(annotator.Calendar(), lunar), texts);
      break;
    }
    case DayName::Kind::kSolarFestival:
      event.uid = Uid("solar-" + code + "-" + std::to_string(day.date.month) + "-" +
                          std::to_string(day.date.day),
                      day.date.year, region);
      break;
  }
  return event;
}

CalendarEvent EventOf(const LunarBirthday& birthday, const Anniversary& day, ELanguage region,
                      const Texts& texts) {
  const CCalendarLunarDate& lunar = birthday.date;
  const std::string what = std::string("birthday-") + (lunar.leap != 0 ? "leap" : "") +
                           std::to_string(lunar.month) + "-" + std::to_string(lunar.day) + "-" +
                           Fingerprint(birthday.name);
  return {Uid(what, day.lunar.year, region), day.date, birthday.name,
          LunarDescription(day.lunar, day.certain, texts)};
}

}  // namespace

std::vector<CalendarEvent> EventsOfYears(int firstYear, int lastYear, ELanguage region,
                                         Annotator& annotator,
                                         const std::vector<LunarBirthday>& birthdays) {
  const Texts texts = TextsFor(region, true);  // the format is UTF-8 in every locale
  std::vector<CalendarEvent> events;
  for (int year = firstYear; year <= lastYear; ++year) {
    for (const NamedDay& day : NamedDaysOfYear(year, annotator)) {
      for (const DayName& name : NamesOf(day.annotation)) {
        events.push_back(EventOf(name, day, region, annotator, texts));
      }
    }
  }
  for (const LunarBirthday& birthday : birthdays) {
    for (const Anniversary& day : AnniversariesOf(annotator.Calendar(), birthday, {firstYear, 1, 1},
                                                  {lastYear, 12, 31}, kMostAnniversaries)) {
      events.push_back(EventOf(birthday, day, region, texts));
    }
  }
  std::stable_sort(events.begin(), events.end(),
                   [](const CalendarEvent& a, const CalendarEvent& b) { return a.date < b.date; });
  return events;
}

}  // namespace almara::viewer
