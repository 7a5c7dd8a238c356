// SPDX-License-Identifier: MIT
#include "json_output.h"

#include <nlohmann/json.hpp>

namespace almara::viewer {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;  // goes up when a key changes its meaning

constexpr Word<ECalendarItem> kTypeWords[] = {{"empty", eCalendarItemEmpty},
                                              {"blank", eCalendarItemBlank},
                                              {"day", eCalendarItemDay},
                                              {"today", eCalendarItemToday},
                                              {"breakDay", eCalendarItemBreakDay},
                                              {"todayBreakDay", eCalendarItemTodayBreakDay},
                                              {"monthTitle", eCalendarItemMonthTitle}};

Json DateJson(const CCalendarSolarDate& date) {
  const CivilDate civil = DateOf(date);
  return {{"date", IsoText(civil)},      {"year", date.year},
          {"month", date.month},         {"day", date.day},
          {"dayOfWeek", date.dayOfWeek}, {"dayOfWeekName", WordFor(kDayWords, DayOfWeek(civil))}};
}

Json DayNamesJson(const std::vector<ECalendarWeek>& days) {
  Json names = Json::array();
  for (const ECalendarWeek day : days) {
    names.push_back(WordFor(kDayWords, day));
  }
  return names;
}

std::vector<ECalendarWeek> BreakDays(const BoardOptions& options) {
  std::vector<ECalendarWeek> days;
  for (int day = eCalendarWeekSunday; day <= eCalendarWeekSaturday; ++day) {
    if (options.breakDays[static_cast<std::size_t>(day)]) {
      days.push_back(day);
    }
  }
  return days;
}

Json OptionsJson(const BoardSnapshot& board, LunarSource source) {
  const BoardOptions& options = board.options;
  return {{"mode", WordFor(kModeWords, options.mode)},
          {"dispMonth", options.mode},
          {"maxRow", options.rows},
          {"passedWeeks", options.passedWeeks},
          {"startDayOfWeek", options.firstDay},
          {"startDayOfWeekName", WordFor(kDayWords, options.firstDay)},
          {"startWeekNumber", options.startWeek},
          {"weekRule", WordFor(kWeekRuleWords, options.weekRule)},
          {"weekNumberCalcType", EngineWeekRule(options.weekRule)},
          {"hideBreakDay", board.hideBreakDay},
          {"showBreakDayOfWeek", board.showBreakDayOfWeek},
          {"showMonthInterval", options.monthIntervals},
          {"breakDays", BreakDays(options)},
          {"breakDayNames", DayNamesJson(BreakDays(options))},
          {"region", WordFor(kLanguageWords, options.language)},
          {"language", options.language},
          {"lunarSource", WordFor(kLunarSourceWords, source)},
          {"configKey", board.configKey}};
}

Json SpansJson(const BoardSnapshot& board) {
  Json spans = Json::array();
  for (const tagWeekNumberSpan& span : board.weekSpans) {
    spans.push_back({{"weekNumber", span.weekNumber},
                     {"secondWeekNumber", span.secondWeekNumber},
                     {"rows", span.rows}});
  }
  return spans;
}

Json NameJson(const DayName& name, ELanguage region) {
  return {{"code", name.code},
          {"name", FullName(name, eLanguageEng)},
          {"localName", FullName(name, region)}};
}

Json LunarJson(const CCalendarLunarDate& lunar) {
  return {
      {"year", lunar.year}, {"month", lunar.month}, {"day", lunar.day}, {"leap", lunar.leap != 0}};
}

void AddAnnotation(Json& day, const Annotation& annotation, ELanguage region) {
  Json solarTerm;
  Json festivals = Json::array();
  for (const DayName& name : NamesOf(annotation)) {
    if (name.kind == DayName::Kind::kSolarTerm) {
      solarTerm = NameJson(name, region);
      continue;
    }
    Json festival = {{"kind", name.kind == DayName::Kind::kLunarFestival ? "lunar" : "solar"}};
    festival.update(NameJson(name, region));
    festivals.push_back(std::move(festival));
  }
  day["lunar"] = annotation.lunar.month > 0 ? LunarJson(annotation.lunar) : Json();
  day["solarTerm"] = std::move(solarTerm);
  day["festivals"] = std::move(festivals);
}

Json CellJson(const tagCalendarCell& cell, Annotator& annotator, ELanguage region) {
  // A cell that shows no day may still have the date of one that is kept back.
  const bool dated = cell.year != 0;
  const CivilDate date = DateOf(cell);
  Json json = {{"date", dated ? Json(IsoText(date)) : Json()},
               {"year", cell.year},
               {"month", cell.month},
               {"day", cell.day},
               {"dayOfWeek", cell.dayOfWeek},
               {"dayOfWeekName", dated ? Json(WordFor(kDayWords, DayOfWeek(date))) : Json()},
               {"weekNumber", cell.weekNumber},
               {"row", cell.row},
               {"column", cell.column},
               {"type", cell.type},
               {"typeName", WordFor(kTypeWords, cell.type)}};
  AddAnnotation(json, ShowsDay(cell) ? annotator.Annotate(date) : Annotation{}, region);
  return json;
}

Json CellsJson(const BoardSnapshot& board, Annotator& annotator, ELanguage region) {
  Json rows = Json::array();
  for (const auto& row : board.rows) {
    Json cells = Json::array();
    for (const tagCalendarCell& cell : row) {
      cells.push_back(CellJson(cell, annotator, region));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

Json CivilDateJson(CivilDate date) {
  return DateJson({date.year, date.month, date.day, DayOfWeek(date)});
}

Json InstantJson(const std::optional<AlmanacInstant>& instant) {
  if (!instant) {
    return {};
  }
  Json json = DateJson({instant->year, instant->month, instant->day, instant->dayOfWeek});
  json["hour"] = instant->hour;
  json["minute"] = instant->minute;
  json["second"] = instant->second;
  json["offset"] = instant->offset;
  json["uncertainty"] = instant->uncertainty;
  json["certain"] = instant->certain != 0;
  return json;
}

void AddInstants(Json& json, const DayReport& report) {
  const DayInstants& instants = report.instants;
  const bool almanac = report.source == LunarSource::kAlmanac;
  json["lunarSource"] = WordFor(kLunarSourceWords, report.source);
  json["newMoon"] = InstantJson(instants.newMoon);
  json["solarTermInstant"] = InstantJson(instants.term);
  json["lunarCertain"] = almanac ? Json(!instants.doubtfulMoon) : Json();
  json["solarTermCertain"] = almanac ? Json(!instants.doubtfulTerm) : Json();
}

std::string Print(const Json& json, bool ascii) { return json.dump(2, ' ', ascii) + "\n"; }

}  // namespace

std::string BoardJson(const BoardSnapshot& board, Annotator& annotator, bool ascii) {
  return Print({{"version", kVersion},
                {"options", OptionsJson(board, annotator.Source())},
                {"contentDate", DateJson(board.contentDate)},
                {"today", DateJson(board.today)},
                {"todayInBoard", board.todayOnBoard},
                {"rows", board.rows.size()},
                {"columns", board.Columns()},
                {"headings", board.headings},
                {"headingNames", DayNamesJson(board.headings)},
                {"weekNumberSpans", SpansJson(board)},
                {"cells", CellsJson(board, annotator, board.options.language)}},
               ascii);
}

std::string DayJson(const DayReport& report, ELanguage region, bool ascii) {
  Json json = {{"version", kVersion},
               {"region", WordFor(kLanguageWords, region)},
               {"language", region},
               {"date", CivilDateJson(report.date)},
               {"today", DateJson(report.today)},
               {"daysFromToday", report.DaysFromToday()},
               {"weekNumber", report.weekNumber},
               {"dayOfYear", DayOfYear(report.date)},
               {"daysInYear", DaysInYear(report.date.year)}};
  AddAnnotation(json, report.annotation, region);
  AddInstants(json, report);
  json["otherSource"] = {{"source", WordFor(kLunarSourceWords, OtherSource(report.source))},
                         {"differs", report.other.DiffersFrom(report.annotation)}};
  AddAnnotation(json["otherSource"], report.other, region);
  return Print(json, ascii);
}

std::string YearJson(int year, CivilDate today, const std::vector<NamedDay>& days, ELanguage region,
                     bool ascii) {
  Json list = Json::array();
  for (const NamedDay& day : days) {
    Json json = CivilDateJson(day.date);
    json["daysFromToday"] = DayNumber(day.date) - DayNumber(today);
    AddAnnotation(json, day.annotation, region);
    list.push_back(std::move(json));
  }
  return Print({{"version", kVersion},
                {"region", WordFor(kLanguageWords, region)},
                {"language", region},
                {"year", year},
                {"days", std::move(list)}},
               ascii);
}

std::string BirthdayJson(const BirthdayReport& report, ELanguage region, bool ascii) {
  const CCalendarLunarDate& lunar = report.birthday.date;
  Json days = Json::array();
  for (const Anniversary& day : report.days) {
    Json json = CivilDateJson(day.date);
    json["daysFromToday"] = DayNumber(day.date) - DayNumber(report.today);
    json["lunar"] = LunarJson(day.lunar);
    json["years"] = lunar.year != 0 ? Json(day.years) : Json();
    json["certain"] = day.certain;
    days.push_back(std::move(json));
  }
  Json birthday = LunarJson(lunar);
  birthday["year"] = lunar.year != 0 ? Json(lunar.year) : Json();
  return Print({{"version", kVersion},
                {"region", WordFor(kLanguageWords, region)},
                {"language", region},
                {"today", CivilDateJson(report.today)},
                {"birthday", std::move(birthday)},
                {"days", std::move(days)}},
               ascii);
}

}  // namespace almara::viewer
