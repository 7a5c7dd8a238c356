// SPDX-License-Identifier: MIT
// A board as JSON for scripts. The keys are stable: new ones may be added, none changes its
// meaning.
//
//   options            the options in force, under the names of the engine's functions
//     mode, dispMonth          rolling, tail, month or strip, and the engine's number for it
//     maxRow, passedWeeks, startDayOfWeek, startWeekNumber
//     weekRule, weekNumberCalcType     iso, jan1 or start, and the engine's number for it
//     hideBreakDay, showBreakDayOfWeek, showMonthInterval
//     breakDays                the break days, 0 = Sunday to 6 = Saturday
//     region, language         the region's name (chs, kor, usa ...) and the engine's number
//     configKey                the engine's text of all board options
//   contentDate        the date the board was built for {year, month, day, dayOfWeek}
//   today              today {year, month, day, dayOfWeek}
//   todayInBoard       whether today is on the board
//   rows, columns      the visible ones
//   headings           the day of the week over each column
//   weekNumberSpans    [{weekNumber, secondWeekNumber, rows}] from the top
//   cells              a list of rows, each a list of cells {year, month, day, dayOfWeek,
//                      weekNumber, row, column, type, lunar, solarTerm, festivals}
//
// Annotations of a day; in cells that show none they are null, null and empty:
//   lunar              {year, month, day, leap}, leap being true in a leap month
//   solarTerm          {code, name, localName} or null
//   festivals          [{kind, code, name, localName}], kind being "lunar" or "solar"
// The name is English, the local name in the region's own language where the viewer has it.
//
// Day:
//   region, language, date, today, daysFromToday, weekNumber, dayOfYear, daysInYear, lunar,
//   solarTerm, festivals
//
// Year:
//   region, language, year
//   days               [{year, month, day, dayOfWeek, lunar, solarTerm, festivals}], the days that
//                      have a solar term or a festival
#ifndef ALMARA_VIEWER_JSON_OUTPUT_H_
#define ALMARA_VIEWER_JSON_OUTPUT_H_

#include <string>
#include <vector>

#include "board_snapshot.h"
#include "listing.h"

namespace almara::viewer {

// With `ascii` every other character is written as an escape.
std::string BoardJson(const BoardSnapshot& board, Annotator& annotator, bool ascii);
std::string DayJson(const DayReport& report, ELanguage region, bool ascii);
std::string YearJson(int year, CivilDate today, const std::vector<NamedDay>& days, ELanguage region,
                     bool ascii);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_JSON_OUTPUT_H_
