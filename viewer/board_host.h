// SPDX-License-Identifier: MIT
// Drives the engine, as any host does: hands over options, builds boards and reads them.
#ifndef ALMARA_VIEWER_BOARD_HOST_H_
#define ALMARA_VIEWER_BOARD_HOST_H_

#include "board_options.h"
#include "board_snapshot.h"
#include "civil_date.h"

namespace almara::viewer {

// Hands the options to the engine and builds today's board. Comes before everything else: it also
// fixes the time zone of the engine's lunar dates and solar terms. With `printBoards` the engine
// writes each board that it builds to the standard output. Days are counted by the calendar alone,
// so that the zone decides nothing but which day is today.
void StartEngine(const BoardOptions& options, bool printBoards);

// Hands over options that were changed later. The board stays until one of the functions below.
void ApplyOptions(const BoardOptions& options);

// Builds the board of a date as if that day were today, whatever was shown before.
void ShowDate(const BoardOptions& options, CivilDate date);

// Pages or jumps. At the first and the last page the board stays.
void TakeStep(const Step& step);

// Where a jump from today leads: pages of rows * 7 days, or months in the whole-month arrangement.
// False if that is outside the years of the calendar.
bool OffsetStaysInRange(const BoardOptions& options, CivilDate today, int offset);

// The board that was built last, and the options in force. `asked` gives what the engine does not
// tell about its options.
BoardSnapshot ReadBoard(const BoardOptions& asked);
CivilDate ReadToday();

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_BOARD_HOST_H_
