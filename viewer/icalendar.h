// SPDX-License-Identifier: MIT
// Events as a file that calendar programs import: iCalendar, RFC 5545.
#ifndef ALMARA_VIEWER_ICALENDAR_H_
#define ALMARA_VIEWER_ICALENDAR_H_

#include <ctime>
#include <string>
#include <vector>

#include "calendar_events.h"

namespace almara::viewer {

// UTF-8, with the line ends of the format. `now` goes into each event as the time of its making.
std::string ICalendarText(const std::vector<CalendarEvent>& events, std::time_t now);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_ICALENDAR_H_
