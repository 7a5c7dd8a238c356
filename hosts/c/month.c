/* SPDX-License-Identifier: MIT
 *
 * The days of a month: the smallest host of the calendar engine.
 */
#include <almara/almara.h>
#include <stdio.h>

int main(void) {
  SetPrintBoard(false); /* the engine would write every board to the standard output, too */
  SetCivilDays(true);
  SetDispMonth(eDispMonthWholeMonth);
  SetShowMonthInterval(false);
  InitCalendarLogicDt(eLanguageEng);
  GotoSpecifiedDate(2024, 2, 1);
  for (int32_t row = 0; row < GetContentRows(); row++) {
    for (int32_t column = 0; column < GetContentColumns(); column++) {
      tagCalendarCell cell = GetContentItem(row, column);
      printf(cell.month == 2 ? "%4d" : "    ", (int)cell.day);
    }
    printf("\n");
  }
  return 0;
}
