/* SPDX-License-Identifier: MIT
 *
 * The days of a month: the smallest host of the calendar engine.
 */
#include <almara/almara.h>
#include <stdio.h>
#include <unistd.h>

int main(void) {
  FILE* screen = fdopen(dup(STDOUT_FILENO), "w");
  if (screen == NULL || freopen("/dev/null", "w", stdout) == NULL) {
    return 1; /* the engine writes every board to stdout; this program writes to screen */
  }
  SetDispMonth(eDispMonthWholeMonth);
  SetShowMonthInterval(false);
  InitCalendarLogicDt(eLanguageEng);
  GotoSpecifiedDate(2024, 2, 1);
  for (int32_t row = 0; row < GetContentRows(); row++) {
    for (int32_t column = 0; column < GetContentColumns(); column++) {
      tagCalendarCell cell = GetContentItem(row, column);
      fprintf(screen, cell.month == 2 ? "%4d" : "    ", (int)cell.day);
    }
    fprintf(screen, "\n");
  }
  return fclose(screen);
}
