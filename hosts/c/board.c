/* SPDX-License-Identifier: MIT
 *
 * Shows the month of a date (today, if none is given) with week numbers, and what that date is in
 * the lunisolar calendar: a complete host of the calendar engine in C.
 */
#include <almara/almara.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

static const char* const kMonths[] = {"January",   "February", "March",    "April",
                                      "May",       "June",     "July",     "August",
                                      "September", "October",  "November", "December"};
static const char* const kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

/* Where this program writes; the engine writes every board that it builds to stdout. */
static FILE* OpenScreen(void) {
  FILE* screen = fdopen(dup(STDOUT_FILENO), "w");
  return freopen("/dev/null", "w", stdout) != NULL ? screen : NULL;
}

static void PrintHeadings(FILE* screen, int columns) {
  CCalendarSolarDate date = GetContentDate();
  char title[32];
  int length = snprintf(title, sizeof title, "%s %d", kMonths[date.month - 1], (int)date.year);
  fprintf(screen, "%*s%s\n   Wk  ", (7 + 10 * columns - length) / 2, "", title);
  for (int column = 0; column < columns; column++) {
    fprintf(screen, " %-9s", kDays[GetCalendarWeekByColumns(column)]);
  }
  fputc('\n', screen);
}

/* " 9", "10." for a break day, "[11]" for today. */
static void PrintCell(FILE* screen, tagCalendarCell cell) {
  switch (cell.type) {
    case eCalendarItemDay:
      fprintf(screen, " %2d       ", (int)cell.day);
      break;
    case eCalendarItemToday:
      fprintf(screen, "[%2d]      ", (int)cell.day);
      break;
    case eCalendarItemBreakDay:
      fprintf(screen, " %2d.      ", (int)cell.day);
      break;
    case eCalendarItemTodayBreakDay:
      fprintf(screen, "[%2d].     ", (int)cell.day);
      break;
    default:
      fprintf(screen, "          ");
  }
}

static void PrintWeeks(FILE* screen, int columns) {
  int row = 0;
  for (int index = 0; index < GetWeekNumberCount(); index++) {
    tagWeekNumberSpan span = GetWeekNumberItemWithIndex(index);
    for (int end = row + span.rows; row < end; row++) {
      fprintf(screen, "%5d  ", (int)span.weekNumber);
      for (int column = 0; column < columns; column++) {
        PrintCell(screen, GetContentItem(row, column));
      }
      fputc('\n', screen);
    }
  }
}

static void PrintAnnotations(FILE* screen, CCalendarSolarDate date) {
  CCalendarLunarDate lunar = ConverterLunarWithDate(date);
  fprintf(screen, "%d-%02d-%02d: lunar %d-%d-%d%s, solar term %d, festivals %d %d\n",
          (int)date.year, (int)date.month, (int)date.day, (int)lunar.year, (int)lunar.month,
          (int)lunar.day, lunar.leap ? " in a leap month" : "", (int)Check24SekkiWithDate(date),
          (int)CheckFestivalSolarWithLang(eLanguageChs, date),
          (int)CheckFestivalLunarWithLang(eLanguageChs, date));
}

static void PrintOptions(FILE* screen) {
  char* key = GetConfigKey();
  fprintf(screen, "options %s\n", key != NULL ? key : "unknown");
  free(key);
}

int main(int argc, char** argv) {
  int year, month, day;
  if (argc > 1 && sscanf(argv[1], "%d-%d-%d", &year, &month, &day) != 3) {
    fprintf(stderr, "usage: board [YYYY-MM-DD]\n");
    return 2;
  }
  FILE* screen = OpenScreen();
  if (screen == NULL) {
    perror("board");
    return 1;
  }
  SetDispMonth(eDispMonthWholeMonth);
  SetShowMonthInterval(false);
  InitCalendarLogicDt(eLanguageChs);
  if (argc > 1) {
    GotoSpecifiedDate(year, month, day);
  }
  PrintHeadings(screen, GetContentColumns());
  PrintWeeks(screen, GetContentColumns());
  PrintAnnotations(screen, GetContentDate());
  PrintOptions(screen);
  return fclose(screen) == 0 ? 0 : 1;
}
