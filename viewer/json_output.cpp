// SPDX-License-Identifier: MIT
#include "json_output.h"

#include <almara/almara.h>

#include <nlohmann/json.hpp>

#include "text_language.h"

namespace viewer {
namespace {

using Json = nlohmann::ordered_json;

Json dateJson(const CCalendarSolarDate& date) {
  return {
      {"year", date.year}, {"month", date.month}, {"day", date.day}, {"dayOfWeek", date.dayOfWeek}};
}

Json breakDaysJson() {
  Json days = Json::array();
  for (int day = eCalendarWeekSunday; day <= eCalendarWeekSaturday; ++day) {
    if (IsBreakDayOfWeek(day)) {
      days.push_back(day);
    }
  }
  return days;
}

Json optionsJson(const Board& board, const BoardOptions& options) {
  return {{"mode", wordFor(kModeWords, GetDispMonth())},
          {"dispMonth", GetDispMonth()},
          {"maxRow", GetMaxRow()},
          {"passedWeeks", GetPassedWeeks()},
          {"startDayOfWeek", GetStartDayOfWeek()},
          {"startWeekNumber", GetStartWeekNumber()},
          {"weekRule", wordFor(kWeekRuleWords, GetWeekNumberCalcType())},
          {"weekNumberCalcType", GetWeekNumberCalcType()},
          {"hideBreakDay", GetHideBreakDay()},
          {"showBreakDayOfWeek", GetShowBreakDayOfWeek()},
          // GetShowMonthInterval() answers with the hide-break-day flag.
          {"showMonthInterval", options.monthIntervals},
          {"breakDays", breakDaysJson()},
          {"region", wordFor(kLanguageWords, options.language)},
          {"language", options.language},
          {"configKey", board.configKey}};
}

Json spansJson(const Board& board) {
  Json spans = Json::array();
  for (const tagWeekNumberSpan& span : board.weekSpans) {
    spans.push_back({{"weekNumber", span.weekNumber},
                     {"secondWeekNumber", span.secondWeekNumber},
                     {"rows", span.rows}});
  }
  return spans;
}

Json nameJson(const DayName& name, ELanguage region) {
  return {{"code", name.code},
          {"name", fullName(name, TextLanguage::English)},
          {"localName", fullName(name, textLanguageOf(region))}};
}

Json lunarJson(const CCalendarLunarDate& lunar) {
  return {
      {"year", lunar.year}, {"month", lunar.month}, {"day", lunar.day}, {"leap", lunar.leap != 0}};
}

void addAnnotation(Json& day, const Annotation& annotation, ELanguage region) {
  Json solarTerm;
  Json festivals = Json::array();
  for (const DayName& name : namesOf(annotation)) {
    if (name.kind == DayName::Kind::SolarTerm) {
      solarTerm = nameJson(name, region);
      continue;
    }
    Json festival = {{"kind", name.kind == DayName::Kind::LunarFestival ? "lunar" : "solar"}};
    festival.update(nameJson(name, region));
    festivals.push_back(std::move(festival));
  }
  day["lunar"] = annotation.lunar.month > 0 ? lunarJson(annotation.lunar) : Json();
  day["solarTerm"] = std::move(solarTerm);
  day["festivals"] = std::move(festivals);
}

Json cellJson(const tagCalendarCell& cell, Annotator& annotator, ELanguage region) {
  Json json = {{"year", cell.year},
               {"month", cell.month},
               {"day", cell.day},
               {"dayOfWeek", cell.dayOfWeek},
               {"weekNumber", cell.weekNumber},
               {"row", cell.row},
               {"column", cell.column},
               {"type", cell.type}};
  addAnnotation(json, showsDay(cell) ? annotator.annotate(dateOf(cell)) : Annotation{}, region);
  return json;
}

Json cellsJson(const Board& board, Annotator& annotator, ELanguage region) {
  Json rows = Json::array();
  for (const auto& row : board.rows) {
    Json cells = Json::array();
    for (const tagCalendarCell& cell : row) {
      cells.push_back(cellJson(cell, annotator, region));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

Json civilDateJson(CivilDate date) {
  return dateJson({date.year, date.month, date.day, dayOfWeek(date)});
}

std::string print(const Json& json, bool ascii) { return json.dump(2, ' ', ascii) + "\n"; }

}  // namespace

std::string boardJson(const Board& board, const BoardOptions& options, Annotator& annotator,
                      bool ascii) {
  return print({{"options", optionsJson(board, options)},
                {"contentDate", dateJson(board.contentDate)},
                {"today", dateJson(board.today)},
                {"todayInBoard", board.todayOnBoard},
                {"rows", board.rows.size()},
                {"columns", board.columns()},
                {"headings", board.headings},
                {"weekNumberSpans", spansJson(board)},
                {"cells", cellsJson(board, annotator, options.language)}},
               ascii);
}

std::string dayJson(const DayReport& report, ELanguage region, bool ascii) {
  Json json = {
      {"region", wordFor(kLanguageWords, region)}, {"language", region},
      {"date", civilDateJson(report.date)},        {"today", dateJson(report.today)},
      {"daysFromToday", report.daysFromToday()},   {"weekNumber", report.weekNumber},
      {"dayOfYear", dayOfYear(report.date)},       {"daysInYear", daysInYear(report.date.year)}};
  addAnnotation(json, report.annotation, region);
  return print(json, ascii);
}

std::string yearJson(int year, const std::vector<NamedDay>& days, ELanguage region, bool ascii) {
  Json list = Json::array();
  for (const NamedDay& day : days) {
    Json json = civilDateJson(day.date);
    addAnnotation(json, day.annotation, region);
    list.push_back(std::move(json));
  }
  return print({{"region", wordFor(kLanguageWords, region)},
                {"language", region},
                {"year", year},
                {"days", std::move(list)}},
               ascii);
}

}  // namespace viewer
