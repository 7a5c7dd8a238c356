// SPDX-License-Identifier: MIT
//
// soak [seconds]: random calls for a while. Fails if memory grows by anything but the answers about
// dates not asked before; prints the bytes of each. Not a test of CTest, for its length.
#include <almara/almara.h>
#include <malloc.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <initializer_list>
#include <random>

namespace {

constexpr std::int32_t kFirstYear = 1900;
constexpr std::int32_t kLastYear = 2099;
constexpr ELanguage kLanguages = 11;
constexpr double kAllowedGrowth = 256.0 * 1024;  // bytes; room for the largest board asked for

class Random {
 public:
  std::int32_t Within(std::int32_t first, std::int32_t last) {
    return std::uniform_int_distribution<std::int32_t>(first, last)(m_engine);
  }

 private:
  std::mt19937 m_engine{1};
};

double BytesInUse() { return static_cast<double>(mallinfo2().uordblks); }

CCalendarSolarDate AnyDate(Random& random) {
  return {random.Within(kFirstYear, kLastYear), random.Within(1, 12), random.Within(1, 31), 0};
}

void LookUp(ELanguage language, const CCalendarSolarDate& date) {
  ConverterLunarWithDate(date);
  Check24SekkiWithDate(date);
  CheckFestivalSolarWithLang(language, date);
  CheckFestivalLunarWithLang(language, date);
}

// Asks everything there is to ask about the two centuries. Returns the number of answers.
double AskEverything() {
  double answers = 0;
  for (std::int32_t year = kFirstYear; year <= kLastYear; ++year) {
    for (std::int32_t month = 1; month <= 12; ++month) {
      for (std::int32_t day = 1; day <= 31; ++day) {
        for (ELanguage language = 0; language < kLanguages; ++language) {
          LookUp(language, {year, month, day, 0});
        }
        answers += 2 + 2.0 * kLanguages;
      }
    }
  }
  // The week numbers that boards keep, which count from 1 January.
  SetDispMonth(eDispMonthWholeMonth);
  SetShowMonthInterval(false);
  for (const EWeekNumberCalc type : {eWeekNumberCalcFromJan1, eWeekNumberCalcFromStartWeek}) {
    SetWeekNumberCalcType(type);
    GotoSpecifiedDate(kFirstYear, 1, 1);
    for (std::int32_t i = 0; i < (kLastYear - kFirstYear + 1) * 12; ++i) {
      GotoNextPage();
    }
  }
  return answers;
}

void SetAnyOption(Random& random) {
  SetDispMonth(random.Within(0, 5));
  SetMaxRow(random.Within(-1, 60));
  SetPassedWeeks(random.Within(-1, 8));
  SetStartDayOfWeek(random.Within(-1, 7));
  SetStartWeekNumber(random.Within(-2, 54));
  SetWeekNumberCalcType(random.Within(0, 2));
  SetShowMonthInterval(random.Within(0, 1) == 1);
  SetShowBreakDayOfWeek(random.Within(0, 1) == 1);
  SetBreakDayOfWeek(random.Within(-1, 7), random.Within(0, 1) == 1);
}

void Navigate(Random& random) {
  const CCalendarSolarDate date = AnyDate(random);
  switch (random.Within(0, 6)) {
    case 0:
      InitCalendarLogicDt(random.Within(0, kLanguages));
      break;
    case 1:
      Build();
      break;
    case 2:
      GotoToday();
      break;
    case 3:
      GotoPreviousPage();
      break;
    case 4:
      GotoNextPage();
      break;
    case 5:
      GotoSpecifiedDate(date.year, date.month, date.day);
      break;
    default:
      GotoTodayOffset(random.Within(-100, 100));
      break;
  }
}

void ReadBoard() {
  for (std::int32_t row = 0; row < GetContentRows(); ++row) {
    for (std::int32_t column = 0; column < GetContentColumns(); ++column) {
      GetContentItem(row, column);
    }
  }
  std::free(GetConfigKey());
}

}  // namespace

int main(int argc, char** argv) {
  const long seconds = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 600;
  if (std::freopen("/dev/null", "w", stdout) == nullptr) {
    return 2;
  }
  setenv("TZ", "UTC", 1);
  InitCalendarLogicDt(eLanguageChs);
  const double empty = BytesInUse();
  const double answers = AskEverything();
  const double full = BytesInUse();
  std::fprintf(stderr, "%.0f answers kept, %.1f bytes each\n", answers, (full - empty) / answers);

  Random random;
  long calls = 0;
  double most = full;
  for (const std::time_t end = std::time(nullptr) + seconds; std::time(nullptr) < end; ++calls) {
    SetAnyOption(random);
    Navigate(random);
    ReadBoard();
    LookUp(random.Within(0, kLanguages - 1), AnyDate(random));
    most = BytesInUse() > most ? BytesInUse() : most;
  }
  std::fprintf(stderr, "%ld rounds of calls, at most %.0f bytes more\n", calls, most - full);
  return most - full <= kAllowedGrowth ? 0 : 1;
}
