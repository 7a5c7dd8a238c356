// SPDX-License-Identifier: MIT
#include "listing.h"

#include <algorithm>
#include <utility>

#include "text_layout.h"

namespace viewer {
namespace {

constexpr int kGap = 3;  // cells between the columns of the legend

Role roleOf(DayName::Kind kind) {
  return kind == DayName::Kind::SolarTerm ? Role::SolarTerm : Role::Festival;
}

int widthOf(const Line& line) {
  int width = 0;
  for (const Piece& piece : line) {
    width += displayWidth(piece.text);
  }
  return width;
}

void append(Line& line, const Line& more) { line.insert(line.end(), more.begin(), more.end()); }

Line legendEntry(const NamedDay& day, const Texts& texts, int dateWidth) {
  Line entry = {
      {" " + fit(dayOfMonthText(texts, day.date), dateWidth, "", Align::Right) + "  ", Role::Hint}};
  append(entry, namesLine(day.annotation, texts.language));
  return entry;
}

Line dayOfYearEntry(const NamedDay& day, const Texts& texts) {
  const std::string number = fit(std::to_string(day.date.day), 4, "", Align::Right);
  const std::string weekday = fit(texts.weekdays[dayOfWeek(day.date)], 4, "");
  Line entry = {{number + " " + weekday + "  ", Role::Plain}};
  append(entry, namesLine(day.annotation, texts.language));
  return entry;
}

}  // namespace

std::vector<NamedDay> namedDays(const std::vector<CivilDate>& days, Annotator& annotator) {
  std::vector<NamedDay> named;
  for (const CivilDate date : days) {
    const Annotation annotation = annotator.annotate(date);
    if (annotation.hasName()) {
      named.push_back({date, annotation});
    }
  }
  return named;
}

std::vector<NamedDay> namedDaysOfYear(int year, Annotator& annotator) {
  std::vector<CivilDate> days(static_cast<std::size_t>(daysInYear(year)));
  int number = dayNumber({year, 1, 1});
  for (CivilDate& day : days) {
    day = fromDayNumber(number++);
  }
  return namedDays(days, annotator);
}

Line namesLine(const Annotation& annotation, TextLanguage language) {
  Line line;
  for (const DayName& name : namesOf(annotation)) {
    if (!line.empty()) {
      line.push_back({", ", Role::Plain});
    }
    line.push_back({fullName(name, language), roleOf(name.kind)});
  }
  return line;
}

std::vector<Line> legendLines(const std::vector<NamedDay>& days, const Texts& texts, int width) {
  int dateWidth = 0;
  for (const NamedDay& day : days) {
    dateWidth = std::max(dateWidth, displayWidth(dayOfMonthText(texts, day.date)));
  }
  std::vector<Line> entries;
  int entryWidth = 1;
  for (const NamedDay& day : days) {
    entries.push_back(legendEntry(day, texts, dateWidth));
    entryWidth = std::max(entryWidth, widthOf(entries.back()));
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
      line.push_back({repeat(" ", column - widthOf(line)), Role::Plain});
    }
    append(line, entries[index]);
  }
  return lines;
}

std::vector<Line> yearLines(int year, const std::vector<NamedDay>& days, const Texts& texts) {
  std::vector<Line> lines;
  int month = 0;
  for (const NamedDay& day : days) {
    if (day.date.month != month) {
      month = day.date.month;
      if (!lines.empty()) {
        lines.emplace_back();
      }
      lines.push_back({{monthsText(texts, {year, month, 1}, {year, month, 1}), Role::Title}});
    }
    lines.push_back(dayOfYearEntry(day, texts));
  }
  return lines;
}

std::vector<Line> dayLines(const DayReport& report, const Texts& texts) {
  Annotation terms;
  terms.solarTerm = report.annotation.solarTerm;
  Annotation festivals = report.annotation;
  festivals.solarTerm = eSekkiNone;

  const std::pair<const char*, Line> kRows[] = {
      {texts.fromToday, {{fromTodayText(texts, report.daysFromToday())}}},
      {texts.week, {{std::to_string(report.weekNumber)}}},
      {texts.dayOfYear, {{dayOfYearText(texts, report.date)}}},
      {texts.lunarDateLabel, {{lunarDateText(texts, report.annotation.lunar)}}},
      {texts.solarTerm, namesLine(terms, texts.language)},
      {texts.festivals, namesLine(festivals, texts.language)},
  };
  int labelWidth = 0;
  for (const auto& [label, value] : kRows) {
    labelWidth = std::max(labelWidth, displayWidth(label));
  }

  std::vector<Line> lines = {{{fullDateText(texts, report.date), Role::Title}}};
  for (const auto& [label, value] : kRows) {
    Line line = {{"  " + fit(label, labelWidth, "") + "  ", Role::Hint}};
    append(line, value.empty() ? Line{{"-"}} : value);
    lines.push_back(line);
  }
  return lines;
}

}  // namespace viewer
