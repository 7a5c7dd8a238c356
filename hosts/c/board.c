/* SPDX-License-Identifier: MIT
 *
 * Shows the month of a date (today, if none is given) with week numbers, and what that date is in
 * the lunisolar calendar: a complete host of the calendar engine in C.
 */
#include <almara/almara_names.h>
#include <stdio.h>
#include <stdlib.h>

static const char* const kMonths[] = {"January",   "February", "March",    "April",
                                      "May",       "June",     "July",     "August",
                                      "September", "October",  "November", "December"};
static const char* const kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

static void PrintHeadings(int columns) {
  CCalendarSolarDate date = GetContentDate();
  char title[32];
  int length = snprintf(title, sizeof title, "%s %d", kMonths[date.month - 1], (int)date.year);
  printf("%*s%s\n   Wk  ", (7 + 10 * columns - length) / 2, "", title);
  for (int column = 0; column < columns; column++) {
    printf(" %-9s", kDays[GetCalendarWeekByColumns(column)]);
  }
  putchar('\n');
}

/* " 9", "10." for a break day, "[11]" for today. */
static void PrintCell(tagCalendarCell cell) {
  switch (cell.type) {
    case eCalendarItemDay:
      printf(" %2d       ", (int)cell.day);
      break;
    case eCalendarItemToday:
      printf("[%2d]      ", (int)cell.day);
      break;
    case eCalendarItemBreakDay:
      printf(" %2d.      ", (int)cell.day);
      break;
    case eCalendarItemTodayBreakDay:
      printf("[%2d].     ", (int)cell.day);
      break;
    default:
      printf("          ");
  }
}

static void PrintWeeks(int columns) {
  int row = 0;
  for (int index = 0; index < GetWeekNumberCount(); index++) {
    tagWeekNumberSpan span = GetWeekNumberItemWithIndex(index);
    for (int end = row + span.rows; row < end; row++) {
      printf("%5d  ", (int)span.weekNumber);
      for (int column = 0; column < columns; column++) {
        PrintCell(GetContentItem(row, column));
      }
      putchar('\n');
    }
  }
}

/* A date without a term or a festival has a code that has no name. */
static void PrintName(const char* name) {
  if (name != NULL) {
    printf(", %s", name);
  }
}

static void PrintAnnotations(CCalendarSolarDate date) {
  CCalendarLunarDate lunar = ConverterLunarWithDate(date);
  printf("%d-%02d-%02d: lunar %d-%d-%d%s", (int)date.year, (int)date.month, (int)date.day,
         (int)lunar.year, (int)lunar.month, (int)lunar.day, lunar.leap ? " in a leap month" : "");
  PrintName(AlmaraSolarTermName(Check24SekkiWithDate(date), eLanguageEng));
  PrintName(AlmaraFestivalName(CheckFestivalSolarWithLang(eLanguageChs, date), eLanguageEng));
  PrintName(AlmaraFestivalName(CheckFestivalLunarWithLang(eLanguageChs, date), eLanguageEng));
  putchar('\n');
}

static void PrintOptions(void) {
  char* key = GetConfigKey();
  printf("options %s\n", key != NULL ? key : "unknown");
  free(key);
}

int main(int argc, char** argv) {
  int year, month, day;
  if (argc > 1 && sscanf(argv[1], "%d-%d-%d", &year, &month, &day) != 3) {
    fprintf(stderr, "usage: board [YYYY-MM-DD]\n");
    return 2;
  }
  SetPrintBoard(false); /* the engine would write every board to the standard output, too */
  SetCivilDays(true);
  SetDispMonth(eDispMonthWholeMonth);
  SetShowMonthInterval(false);
  InitCalendarLogicDt(eLanguageChs);
  if (argc > 1) {
    GotoSpecifiedDate(year, month, day);
  }
  PrintHeadings(GetContentColumns());
  PrintWeeks(GetContentColumns());
  PrintAnnotations(GetContentDate());
  PrintOptions();
  return fflush(stdout) == 0 ? 0 : 1;
}
