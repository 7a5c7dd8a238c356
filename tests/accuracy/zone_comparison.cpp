// SPDX-License-Identifier: MIT
#include "accuracy/zone_comparison.h"

#include <almara/almara_types.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <utility>

#include "accuracy/month_rule.h"

namespace almara_accuracy {

namespace {

constexpr double kSecondsPerDay = 86400;
constexpr int kTermsOfYear = 24;

InstantError Error(double trueMoment, double engineMoment) {
  return {trueMoment, (engineMoment - trueMoment) * kSecondsPerDay};
}

bool InReport(double moment) { return moment >= 0 && moment < kDays; }

// The terms of the years of the report in one zone: the ephemeris' beside the engine's.
std::vector<PairedTerm> PairTerms(const EngineAnswers& engine, const Ephemeris& ephemeris) {
  auto next = std::find_if(ephemeris.terms.begin(), ephemeris.terms.end(), [&](const auto& term) {
    return LocalDay(term.moment, engine.zone) >= 0;
  });
  std::vector<PairedTerm> pairs;
  for (const SolarTerm& term : engine.sekki) {
    if (next->longitude != term.longitude) {
      throw std::runtime_error("the engine's solar terms are not those of the ephemeris");
    }
    pairs.push_back({term.longitude, next->moment, term.moment});
    ++next;
  }
  return pairs;
}

// The solar term that the engine's answers have on each day must be that of the engine's instants,
// or the report would explain something else than it counts.
void ExpectTermDaysOfInstants(const EngineAnswers& engine) {
  std::vector<int> terms(engine.terms.size(), eSekkiNone);
  int sekki = 0;
  for (const SolarTerm& term : engine.sekki) {
    terms[static_cast<std::size_t>(LocalDay(term.moment, engine.zone))] = sekki++ % kTermsOfYear;
  }
  if (terms != engine.terms) {
    throw std::runtime_error("the engine's days of the solar terms are not those of its instants");
  }
}

std::vector<PairedTerm> DeviatingTerms(const EngineAnswers& engine, const Ephemeris& ephemeris) {
  ExpectTermDaysOfInstants(engine);
  std::vector<PairedTerm> deviations;
  for (const PairedTerm& term : PairTerms(engine, ephemeris)) {
    if (LocalDay(term.trueMoment, engine.zone) != LocalDay(term.engineMoment, engine.zone)) {
      deviations.push_back(term);
    }
  }
  return deviations;
}

// Days of festivals by lunar year and code.
using FestivalDays = std::map<std::pair<int, int>, int>;

FestivalDays EngineFestivals(const EngineAnswers& engine) {
  FestivalDays days;
  for (std::size_t day = 0; day < engine.dates.size(); ++day) {
    if (engine.festivals[day] != eFestivalLunarNone) {
      days[{engine.dates[day].year, engine.festivals[day]}] = static_cast<int>(day);
    }
  }
  return days;
}

// The festivals that the engine has, placed by another calendar.
FestivalDays FestivalsBy(const LunarDates& dates, const EngineAnswers& engine) {
  std::map<std::pair<int, int>, int> codes;  // by month and day
  for (std::size_t day = 0; day < engine.dates.size(); ++day) {
    if (engine.festivals[day] != eFestivalLunarNewYearsEve) {
      codes.insert({{engine.dates[day].month, engine.dates[day].day}, engine.festivals[day]});
    }
  }
  FestivalDays days;
  for (std::size_t day = 0; day < dates.size(); ++day) {
    const LunarDate& date = dates[day];
    const auto code = codes.find({date.month, date.day});
    if (date.leap == 0 && code != codes.end() && code->second != eFestivalLunarNone) {
      days[{date.year, code->second}] = static_cast<int>(day);
    }
  }
  return days;
}

std::optional<int> Find(const FestivalDays& days, const std::pair<int, int>& key) {
  const auto found = days.find(key);
  return found != days.end() ? std::optional<int>(found->second) : std::nullopt;
}

std::vector<FestivalDeviation> DeviatingFestivals(const EngineAnswers& engine,
                                                  const LunarDates& trueDates) {
  const FestivalDays engineDays = EngineFestivals(engine);
  const FestivalDays trueDays = FestivalsBy(trueDates, engine);
  FestivalDays all = engineDays;
  all.insert(trueDays.begin(), trueDays.end());
  std::vector<FestivalDeviation> deviations;
  for (const auto& [key, day] : all) {
    const std::optional<int> engineDay = Find(engineDays, key);
    const std::optional<int> trueDay = Find(trueDays, key);
    if (key.second != eFestivalLunarNewYearsEve && engineDay != trueDay) {
      deviations.push_back({key.second, engineDay, trueDay});
    }
  }
  return deviations;
}

}  // namespace

ZoneComparison CompareZone(EngineAnswers engine, const Ephemeris& ephemeris, LunarDates icuDates) {
  ZoneComparison comparison{};
  comparison.trueDates = DatesByRule(ephemeris.newMoons, ephemeris.terms, engine.zone);
  comparison.ruleDates = DatesByRule(engine.newMoons, engine.chu, engine.zone);
  comparison.fromEphemeris = FindDeviations(engine.dates, comparison.trueDates);
  if (!icuDates.empty()) {
    comparison.fromIcu = FindDeviations(engine.dates, icuDates);
  }
  comparison.terms = DeviatingTerms(engine, ephemeris);
  comparison.festivals = DeviatingFestivals(engine, comparison.trueDates);
  comparison.icuDates = std::move(icuDates);
  comparison.engine = std::move(engine);
  return comparison;
}

ErrorSummary NewMoonErrors(const EngineAnswers& engine, const Ephemeris& ephemeris) {
  std::vector<InstantError> errors;
  for (std::size_t k = 0; k < ephemeris.newMoons.size(); ++k) {
    if (InReport(ephemeris.newMoons[k])) {
      errors.push_back(Error(ephemeris.newMoons[k], engine.newMoons[k]));
    }
  }
  return Summarize(std::move(errors));
}

ErrorSummary ChuErrors(const EngineAnswers& engine, const Ephemeris& ephemeris) {
  std::vector<InstantError> errors;
  auto chu = engine.chu.begin();
  for (const SolarTerm& term : ephemeris.terms) {
    if (!IsPrincipal(term)) {
      continue;
    }
    if (chu->longitude != term.longitude) {
      throw std::runtime_error("the engine's principal terms are not those of the ephemeris");
    }
    if (InReport(term.moment)) {
      errors.push_back(Error(term.moment, chu->moment));
    }
    ++chu;
  }
  return Summarize(std::move(errors));
}

ErrorSummary SekkiErrors(const EngineAnswers& engine, const Ephemeris& ephemeris) {
  std::vector<InstantError> errors;
  for (const PairedTerm& term : PairTerms(engine, ephemeris)) {
    errors.push_back(Error(term.trueMoment, term.engineMoment));
  }
  return Summarize(std::move(errors));
}

DecidingNewMoon NewMoonNextToMidnight(const EngineAnswers& engine, const Ephemeris& ephemeris,
                                      int dayBehind) {
  const double midnight = dayBehind - engine.zone / 24.0;
  const auto next = std::min_element(
      ephemeris.newMoons.begin(), ephemeris.newMoons.end(),
      [=](double a, double b) { return std::fabs(a - midnight) < std::fabs(b - midnight); });
  return {*next, engine.newMoons[static_cast<std::size_t>(next - ephemeris.newMoons.begin())]};
}

}  // namespace almara_accuracy
