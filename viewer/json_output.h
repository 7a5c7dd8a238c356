// SPDX-License-Identifier: MIT
// A board, a day, a year or a birthday as JSON for scripts. The keys stand in
// docs/almara-board.schema.json. They are stable: new ones may be added, none changes its meaning.
#ifndef ALMARA_VIEWER_JSON_OUTPUT_H_
#define ALMARA_VIEWER_JSON_OUTPUT_H_

#include <string>
#include <vector>

#include "birthdays.h"
#include "board_snapshot.h"
#include "listing.h"

namespace almara::viewer {

// With `ascii` every other character is written as an escape.
std::string BoardJson(const BoardSnapshot& board, Annotator& annotator, bool ascii);
std::string DayJson(const DayReport& report, ELanguage region, bool ascii);
std::string YearJson(int year, CivilDate today, const std::vector<NamedDay>& days, ELanguage region,
                     bool ascii);
std::string BirthdayJson(const BirthdayReport& report, ELanguage region, bool ascii);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_JSON_OUTPUT_H_
