// SPDX-License-Identifier: MIT
#include "accuracy/engine.h"

#include <almara/almara.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>

#include "date/calendar_platform_api.h"
#include "lunar/calendar_lunar_solar_terms.h"

namespace almara_accuracy {

namespace {

// The engine's day count of 1900-01-01 0h local civil time.
constexpr double kDayCountOfOrigin = 2415020.0;
constexpr double kSecondsPerDay = 86400;

double MomentOf(double dayCount) {
  return dayCount - kDayCountOfOrigin - CalendarPlatformApi::PlatformGetTimeZoneValue() / 24;
}

double DayCountOf(double moment) {
  return moment + kDayCountOfOrigin + CalendarPlatformApi::PlatformGetTimeZoneValue() / 24;
}

// The engine's new moon next to a true one. Its search goes backward; from some starts around the
// spring equinox it misses the new moon next before it, and the lunar dates then search again from
// later on. So does this.
double NewMoonNextTo(double moment) {
  for (int daysBehind = 1; daysBehind <= 15; ++daysBehind) {
    const double start = DayCountOf(moment) + daysBehind;
    const double found = MomentOf(CCalendarLunarConverter::_calc_saku(start));
    if (std::fabs(found - moment) < 1) {
      return found;
    }
  }
  throw std::runtime_error("the engine has no new moon next to a true one");
}

SolarTerm ChuNextTo(const SolarTerm& term) {
  tagSolarKyurekiChu chu{};
  CCalendarLunarConverter::_calc_chu(DayCountOf(term.moment) + 1, &chu);
  return {static_cast<int>(chu.longitude), MomentOf(chu.time)};
}

std::vector<double> NewMoons(const Ephemeris& ephemeris) {
  std::vector<double> moments;
  for (const double moment : ephemeris.newMoons) {
    moments.push_back(NewMoonNextTo(moment));
  }
  return moments;
}

std::vector<SolarTerm> Chu(const Ephemeris& ephemeris) {
  std::vector<SolarTerm> terms;
  for (const SolarTerm& term : ephemeris.terms) {
    if (IsPrincipal(term)) {
      terms.push_back(ChuNextTo(term));
    }
  }
  return terms;
}

std::vector<SolarTerm> Sekki() {
  CCalendarLunarSolarTerms solarTerms;
  std::vector<SolarTerm> terms;
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    const double deltaT = CCalendarLunarSolarTerms::_deltaT(year) / kSecondsPerDay;
    const int yearStart = almara_test::DayNumber({year, 1, 1});
    for (int sekki = 0; sekki < kSekkiCount; ++sekki) {
      const int longitude = (285 + 15 * sekki) % 360;
      terms.push_back(
          {longitude, yearStart - 1 + solarTerms._Sunlongdays(year, longitude) - deltaT});
    }
  }
  return terms;
}

EngineAnswers Answers(const Host& host, const Ephemeris& ephemeris) {
  InitCalendarLogicDt(host.language);
  EngineAnswers answers{};
  answers.zone = static_cast<Zone>(CalendarPlatformApi::PlatformGetTimeZoneValue());
  for (almara_test::Civil d = almara_test::kFirstDay; d.year <= kLastYear;
       d = almara_test::NextDay(d)) {
    const CCalendarSolarDate date{d.year, d.month, d.day, 0};
    const CCalendarLunarDate lunar = ConverterLunarWithDate(date);
    answers.dates.push_back({lunar.year, lunar.month, lunar.leap, lunar.day});
    answers.terms.push_back(Check24SekkiWithDate(date));
    answers.festivals.push_back(CheckFestivalLunarWithLang(host.language, date));
  }
  answers.newMoons = NewMoons(ephemeris);
  answers.chu = Chu(ephemeris);
  answers.sekki = Sekki();
  return answers;
}

void WriteBytes(int pipe, const void* bytes, std::size_t size) {
  const char* next = static_cast<const char*>(bytes);
  while (size > 0) {
    const ssize_t written = write(pipe, next, size);
    if (written <= 0) {
      _exit(EXIT_FAILURE);
    }
    next += written;
    size -= static_cast<std::size_t>(written);
  }
}

void ReadBytes(int pipe, void* bytes, std::size_t size) {
  char* next = static_cast<char*>(bytes);
  while (size > 0) {
    const ssize_t count = read(pipe, next, size);
    if (count <= 0) {
      throw std::runtime_error("the engine's process ended early");
    }
    next += count;
    size -= static_cast<std::size_t>(count);
  }
}

template <typename Value>
void Write(int pipe, const std::vector<Value>& values) {
  const std::size_t size = values.size();
  WriteBytes(pipe, &size, sizeof size);
  WriteBytes(pipe, values.data(), size * sizeof(Value));
}

template <typename Value>
void Read(int pipe, std::vector<Value>& values) {
  std::size_t size = 0;
  ReadBytes(pipe, &size, sizeof size);
  values.resize(size);
  ReadBytes(pipe, values.data(), size * sizeof(Value));
}

void WriteAnswers(int pipe, const EngineAnswers& answers) {
  WriteBytes(pipe, &answers.zone, sizeof answers.zone);
  Write(pipe, answers.dates);
  Write(pipe, answers.terms);
  Write(pipe, answers.festivals);
  Write(pipe, answers.newMoons);
  Write(pipe, answers.chu);
  Write(pipe, answers.sekki);
}

// TZ counts hours west of universal time.
void SetMachineZone(Zone zone) { setenv("TZ", ("LOCAL" + std::to_string(-zone)).c_str(), 1); }

// The engine writes every board it builds to the standard output, which is the report's.
void SilenceStandardOutput() {
  if (dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO) < 0) {
    throw std::runtime_error("no null device for the engine's boards");
  }
}

[[noreturn]] void RunEngine(int pipe, const Host& host, const Ephemeris& ephemeris) {
  try {
    SetMachineZone(host.machine);
    SilenceStandardOutput();
    WriteAnswers(pipe, Answers(host, ephemeris));
    _exit(EXIT_SUCCESS);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    _exit(EXIT_FAILURE);
  }
}

}  // namespace

EngineProcess::EngineProcess(const Host& host, const Ephemeris& ephemeris) {
  int ends[2];
  if (pipe(ends) != 0) {
    throw std::runtime_error("no pipe to the engine's process");
  }
  m_process = fork();
  if (m_process == 0) {
    close(ends[0]);
    RunEngine(ends[1], host, ephemeris);
  }
  close(ends[1]);
  m_pipe = ends[0];
  if (m_process < 0) {
    throw std::runtime_error("no process for the engine");
  }
}

EngineProcess::~EngineProcess() {
  close(m_pipe);
  waitpid(m_process, nullptr, 0);
}

EngineAnswers EngineProcess::Read() {
  EngineAnswers answers{};
  ReadBytes(m_pipe, &answers.zone, sizeof answers.zone);
  almara_accuracy::Read(m_pipe, answers.dates);
  almara_accuracy::Read(m_pipe, answers.terms);
  almara_accuracy::Read(m_pipe, answers.festivals);
  almara_accuracy::Read(m_pipe, answers.newMoons);
  almara_accuracy::Read(m_pipe, answers.chu);
  almara_accuracy::Read(m_pipe, answers.sekki);
  return answers;
}

}  // namespace almara_accuracy
