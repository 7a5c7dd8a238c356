// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ACCURACY_ENGINE_H_
#define ALMARA_TESTS_ACCURACY_ENGINE_H_

#include <sys/types.h>

#include <cstdint>
#include <vector>

#include "accuracy/ephemeris.h"
#include "accuracy/lunar_date.h"

namespace almara_accuracy {

// What a host of the engine says and what its machine is set to.
struct Host {
  std::int32_t language;  // ELanguage for InitCalendarLogicDt()
  Zone machine;           // in whole hours
};

// What the engine says, and the instants behind it.
struct EngineAnswers {
  Zone zone;                     // in force after InitCalendarLogicDt()
  LunarDates dates;              // ConverterLunarWithDate()
  std::vector<int> terms;        // Check24SekkiWithDate(), by day number
  std::vector<int> festivals;    // CheckFestivalLunarWithLang(), by day number
  std::vector<double> newMoons;  // of the lunar dates, one for each of the ephemeris
  std::vector<SolarTerm> chu;    // of the lunar dates, one for each principal term
  std::vector<SolarTerm> sekki;  // of Check24SekkiWithDate(), the 24 of each year of the report
};

// An engine in a process of its own.
class EngineProcess {
 public:
  // Starts it. The ephemeris tells next to which moments the engine's instants are.
  EngineProcess(const Host& host, const Ephemeris& ephemeris);
  ~EngineProcess();
  EngineProcess(const EngineProcess&) = delete;
  EngineProcess& operator=(const EngineProcess&) = delete;

  // Waits for the answers. To be called once.
  EngineAnswers Read();

 private:
  int m_pipe;
  pid_t m_process;
};

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_ENGINE_H_
