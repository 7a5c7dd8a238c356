// SPDX-License-Identifier: MIT
#include "icalendar.h"

#include <almara/almara.h>  // ALMARA_VERSION_STRING
#include <libical/ical.h>

#include <memory>

namespace almara::viewer {
namespace {

using Component = std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)>;

icaltimetype DayOf(CivilDate date) {
  icaltimetype day = icaltime_null_date();
  day.year = date.year;
  day.month = date.month;
  day.day = date.day;
  return day;
}

// Owned by the caller. The end of an event of whole days is the day after.
icalcomponent* NewEvent(const CalendarEvent& event, icaltimetype stamp) {
  icalcomponent* component = icalcomponent_new(ICAL_VEVENT_COMPONENT);
  icalcomponent_set_uid(component, event.uid.c_str());
  icalcomponent_set_dtstamp(component, stamp);
  icalcomponent_set_dtstart(component, DayOf(event.date));
  icalcomponent_set_dtend(component, DayOf(FromDayNumber(DayNumber(event.date) + 1)));
  icalcomponent_set_summary(component, event.summary.c_str());
  if (!event.description.empty()) {
    icalcomponent_set_description(component, event.description.c_str());
  }
  // The day is not taken up by it.
  icalcomponent_add_property(component, icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT));
  return component;
}

}  // namespace

std::string ICalendarText(const std::vector<CalendarEvent>& events, std::time_t now) {
  const Component calendar(icalcomponent_new(ICAL_VCALENDAR_COMPONENT), &icalcomponent_free);
  icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
  icalcomponent_add_property(
      calendar.get(),
      icalproperty_new_prodid("-//almara//almara-board " ALMARA_VERSION_STRING "//EN"));
  icalcomponent_add_property(calendar.get(), icalproperty_new_calscale("GREGORIAN"));
  const icaltimetype stamp = icaltime_from_timet_with_zone(now, 0, icaltimezone_get_utc_timezone());
  for (const CalendarEvent& event : events) {
    icalcomponent_add_component(calendar.get(), NewEvent(event, stamp));
  }
  const std::unique_ptr<char, decltype(&icalmemory_free_buffer)> text(
      icalcomponent_as_ical_string_r(calendar.get()), &icalmemory_free_buffer);
  return text.get();
}

}  // namespace almara::viewer
