/* SPDX-License-Identifier: MIT
 *
 * A host in C99 that follows the calling order of the header. Today is Wednesday, 13 March 2024. */
#include <almara/almara.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "api/records_layout.h"

static int failures = 0;

#define CHECK(condition)                                              \
  do {                                                                \
    if (!(condition)) {                                               \
      fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition); \
      ++failures;                                                     \
    }                                                                 \
  } while (0)

static void check_pure_functions(void) {
  CCalendarSolarDate date = CreateSolarDate(2024, 2, 30, 9);
  CHECK(native_add(INT32_MAX, 1) == INT32_MIN);
  CHECK(date.year == 2024 && date.month == 2 && date.day == 30 && date.dayOfWeek == 9);
}

static void check_fresh_engine(void) {
  tagCalendarCell cell = GetContentItem(0, 0);
  CHECK(GetContentRows() == 0 && GetContentColumns() == 0 && GetWeekNumberCount() == 0);
  CHECK(!IsTodayInBoard());
  CHECK(cell.year == 0 && cell.weekNumber == -1 && cell.type == eCalendarItemEmpty);
}

static void check_options(void) {
  char* key = GetConfigKey();
  CHECK(strcmp(key, "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1") == 0);
  free(key);
  SetDispMonth(eDispMonthWholeMonth);
  SetStartDayOfWeek(eCalendarWeekSunday);
  SetHideBreakDay(true);
  CHECK(GetDispMonth() == 3 && GetStartDayOfWeek() == 0);
  CHECK(GetHideBreakDay() && GetShowMonthInterval());
  CHECK(IsBreakDayOfWeek(0) && !IsBreakDayOfWeek(1) && !IsBreakDayOfWeek(7));
}

static void check_board(void) {
  static const int32_t first_row[7] = {25, 26, 27, 28, 29, 1, 2};
  CCalendarSolarDate today = GetToday();
  CCalendarSolarDate focus;
  int32_t column;
  InitCalendarLogicDt(eLanguageEng);
  focus = GetContentDate();
  CHECK(today.year == 2024 && today.month == 3 && today.day == 13 && today.dayOfWeek == 3);
  CHECK(focus.year == 2024 && focus.month == 3 && focus.day == 13 && focus.dayOfWeek == 0);
  CHECK(GetContentRows() == 6 && GetContentColumns() == 7);
  CHECK(IsTodayInBoard());
  for (column = 0; column < 7; ++column) {
    tagCalendarCell cell = GetContentItem(0, column);
    CHECK(cell.day == first_row[column] && cell.column == column && cell.row == 0);
    CHECK(cell.type == (column < 5    ? eCalendarItemBlank
                        : column == 5 ? eCalendarItemDay
                                      : eCalendarItemBreakDay));
    CHECK(GetCalendarWeekByColumns(column) == column);
  }
}

static void check_spans(void) {
  int32_t rows = 0;
  int32_t index;
  for (index = 0; index < GetWeekNumberCount(); ++index) {
    tagWeekNumberSpan span = GetWeekNumberItemWithIndex(index);
    CHECK(span.rows >= 1);
    rows += span.rows;
  }
  CHECK(rows == GetContentRows());
}

static void check_navigation(void) {
  GotoNextPage();
  CHECK(GetContentDate().month == 4 && GetContentDate().day == 1);
  GotoTodayOffset(-1);
  CHECK(GetContentDate().month == 2 && GetContentDate().day == 13);
  GotoSpecifiedDate(2100, 1, 1);
  CHECK(GetContentDate().month == 2);
  GotoToday();
  CHECK(GetContentDate().month == 3);
}

int main(void) {
  check_pure_functions();
  check_fresh_engine();
  check_options();
  check_board();
  check_spans();
  check_navigation();
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
