// SPDX-License-Identifier: MIT
#include "listing.h"

#include <algorithm>

#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kGap = 3;  // cells between the columns of the legend

std::vector<CivilDate> DaysOfYear(int year) {
  std::vector<CivilDate> days(static_cast<std::size_t>(DaysInYear(year)));
  int number = DayNumber({year, 1, 1});
  for (CivilDate& day : days) {
    day = FromDayNumber(number++);
  }
  return days;
}

Role RoleOf(DayName::Kind kind) {
  return kind == DayName::Kind::kSolarTerm ? Role::kSolarTerm : Role::kFestival;
}

Line LegendEntry(const NamedDay& day, const Texts& texts, int dateWidth) {
  Line entry = {{" " + Fit(DayOfMonthText(texts, day.date), dateWidth, "", Align::kRight) + "  ",
                 Role::kHint}};
  Append(entry, NamesLine(day.annotation, texts.language));
  return entry;
}

// "   1 Mon  in 12 days   New Year's Day"
Line DayOfYearEntry(const NamedDay& day, const std::string& fromToday, int fromTodayWidth,
                    const Texts& texts) {
  const std::string number = Fit(std::to_string(day.date.day), 4, "", Align::kRight);
  const std::string weekday = Fit(Weekday(texts, DayOfWeek(day.date)), 4, "");
  Line entry = {{number + " " + weekday + "  "},
                {Fit(fromToday, fromTodayWidth, "") + "  ", Role::kHint}};
  Append(entry, NamesLine(day.annotation, texts.language));
  return entry;
}

struct LabelledLine {
  const char* label;
  Line value;
};

// The values under each other, a dash where there is none.
std::vector<Line> LabelledLines(const std::vector<LabelledLine>& rows) {
  int labelWidth = 0;
  for (const auto& [label, value] : rows) {
    labelWidth = std::max(labelWidth, DisplayWidth(label));
  }
  std::vector<Line> lines;
  for (const auto& [label, value] : rows) {
    Line line = {{"  " + Fit(label, labelWidth, "") + "  ", Role::kHint}};
    Append(line, value.empty() ? Line{{"-"}} : value);
    lines.push_back(line);
  }
  return lines;
}

Line TermLine(const Annotation& annotation, ELanguage language) {
  Annotation term;
  term.solarTerm = annotation.solarTerm;
  return NamesLine(term, language);
}

Line FestivalsLine(const Annotation& annotation, ELanguage language) {
  Annotation festivals = annotation;
  festivals.solarTerm = eSekkiNone;
  return NamesLine(festivals, language);
}

Line DoubtsLine(const DayInstants& instants, const Texts& texts) {
  Line line;
  if (instants.doubtfulMoon) {
    line.push_back({std::string(texts.newMoon) + " " + DoubtText(*instants.doubtfulMoon)});
  }
  if (instants.doubtfulTerm) {
    line.push_back(
        {(line.empty() ? "" : ", ") +
         FullName({DayName::Kind::kSolarTerm, instants.doubtfulTerm->term}, texts.language) + " " +
         DoubtText(instants.doubtfulTerm->instant)});
  }
  return line;
}

// What the other says otherwise.
Line DifferenceLine(const Annotation& annotation, const Annotation& other, const Texts& texts) {
  Line line;
  const auto add = [&line](const char* label, const Line& value) {
    line.push_back({(line.empty() ? "" : ", ") + std::string(label) + ": "});
    Append(line, value.empty() ? Line{{"-"}} : value);
  };
  const std::string lunarDate = LunarDateText(texts, other.lunar);
  if (lunarDate != LunarDateText(texts, annotation.lunar)) {
    add(texts.lunarDateLabel, {{lunarDate}});
  }
  if (other.solarTerm != annotation.solarTerm) {
    add(texts.solarTerm, TermLine(other, texts.language));
  }
  if (other.lunarFestival != annotation.lunarFestival) {
    add(texts.festivals, FestivalsLine(other, texts.language));
  }
  return line;
}

}  // namespace

std::vector<NamedDay> NamedDays(const std::vector<CivilDate>& days, Annotator& annotator) {
  std::vector<NamedDay> named;
  for (const CivilDate date : days) {
    const Annotation annotation = annotator.Annotate(date);
    if (annotation.HasName()) {
      named.push_back({date, annotation});
    }
  }
  return named;
}

std::vector<NamedDay> NamedDaysOfYear(int year, Annotator& annotator) {
  return NamedDays(DaysOfYear(year), annotator);
}

std::vector<NamedDay> DaysNamedByOther(int year, Annotator& annotator) {
  std::vector<NamedDay> named;
  for (const CivilDate date : DaysOfYear(year)) {
    const Annotation own = annotator.Annotate(date);
    Annotation other = annotator.AnnotateByOther(date);
    other.solarFestival = eFestivalSolarNone;
    const bool differs =
        other.solarTerm != own.solarTerm || other.lunarFestival != own.lunarFestival;
    if (differs && other.HasName()) {
      named.push_back({date, other});
    }
  }
  return named;
}

Line NamesLine(const Annotation& annotation, ELanguage language) {
  Line line;
  for (const DayName& name : NamesOf(annotation)) {
    if (!line.empty()) {
      line.push_back({", ", Role::kPlain});
    }
    line.push_back({FullName(name, language), RoleOf(name.kind)});
  }
  return line;
}

std::vector<Line> LegendLines(const std::vector<NamedDay>& days, const Texts& texts, int width) {
  int dateWidth = 0;
  for (const NamedDay& day : days) {
    dateWidth = std::max(dateWidth, DisplayWidth(DayOfMonthText(texts, day.date)));
  }
  std::vector<Line> entries;
  int entryWidth = 1;
  for (const NamedDay& day : days) {
    entries.push_back(LegendEntry(day, texts, dateWidth));
    entryWidth = std::max(entryWidth, WidthOf(entries.back()));
  }

  // The days run down the columns.
  const int fitting = std::max((width + kGap) / (entryWidth + kGap), 1);
  const std::size_t rows =
      (entries.size() + static_cast<std::size_t>(fitting) - 1) / static_cast<std::size_t>(fitting);
  std::vector<Line> lines(rows);
  for (std::size_t index = 0; index < entries.size(); ++index) {
    Line& line = lines[index % rows];
    if (index >= rows) {
      const int column = static_cast<int>(index / rows) * (entryWidth + kGap);
      line.push_back({Repeat(" ", column - WidthOf(line)), Role::kPlain});
    }
    Append(line, entries[index]);
  }
  return lines;
}

std::vector<Line> YearLines(int year, CivilDate today, const std::vector<NamedDay>& days,
                            const Texts& texts) {
  std::vector<std::string> fromToday;
  int width = 0;
  for (const NamedDay& day : days) {
    fromToday.push_back(FromTodayText(texts, DayNumber(day.date) - DayNumber(today)));
    width = std::max(width, DisplayWidth(fromToday.back()));
  }
  std::vector<Line> lines;
  int month = 0;
  for (std::size_t index = 0; index < days.size(); ++index) {
    const NamedDay& day = days[index];
    if (day.date.month != month) {
      month = day.date.month;
      if (!lines.empty()) {
        lines.emplace_back();
      }
      lines.push_back({{MonthsText(texts, {year, month, 1}, {year, month, 1}), Role::kTitle}});
    }
    lines.push_back(DayOfYearEntry(day, fromToday[index], width, texts));
  }
  return lines;
}

std::vector<Line> DayLines(const DayReport& report, const Texts& texts) {
  const DayInstants& instants = report.instants;
  std::vector<LabelledLine> rows = {
      {texts.fromToday, {{FromTodayText(texts, report.DaysFromToday())}}},
      {texts.week, {{std::to_string(report.weekNumber)}}},
      {texts.dayOfYear, {{DayOfYearText(texts, report.date)}}},
      {texts.lunarDateLabel, {{LunarDateText(texts, report.annotation.lunar)}}}};
  if (instants.newMoon) {
    rows.push_back({texts.newMoon, {{InstantText(*instants.newMoon)}}});
  }
  rows.push_back({texts.solarTerm, TermLine(report.annotation, texts.language)});
  if (instants.term) {
    rows.back().value.push_back({", " + TimeText(*instants.term)});
  }
  rows.push_back({texts.festivals, FestivalsLine(report.annotation, texts.language)});
  if (!instants.AreCertain()) {
    rows.push_back({texts.notCertain, DoubtsLine(instants, texts)});
  }
  if (report.other.DiffersFrom(report.annotation)) {
    const bool almanac = report.source == LunarSource::kAlmanac;
    rows.push_back({almanac ? texts.byEngine : texts.byAlmanac,
                    DifferenceLine(report.annotation, report.other, texts)});
  }
  std::vector<Line> lines = {{{FullDateText(texts, report.date), Role::kTitle}}};
  Append(lines, LabelledLines(rows));
  return lines;
}

}  // namespace almara::viewer
