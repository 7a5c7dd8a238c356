// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsEnglish() {
  Texts texts;
  texts.language = eLanguageEng;
  texts.weekdays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  texts.narrowWeekdays = {"Su", "Mo", "Tu", "We", "Th", "Fr", "Sa"};
  texts.longWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                        "Thursday", "Friday", "Saturday"};
  texts.months = {"January", "February", "March",     "April",   "May",      "June",
                  "July",    "August",   "September", "October", "November", "December"};
  texts.monthsInDates = texts.months;
  texts.shortMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

  texts.fullDate = "{w}, {d} {M} {y}";
  texts.dayOfMonth = "{S} {d}";
  texts.title = "{M} {y}";
  texts.titleMonths = "{M} - {N} {y}";
  texts.titleYears = "{M} {y} - {N} {z}";
  texts.titleMonthsBrief = "{S} - {T} {y}";
  texts.titleYearsBrief = "{S} {y} - {T} {z}";

  texts.lunarMonth = "Moon {m}";
  texts.lunarLeapMonth = "Leap {m}";
  texts.lunarDay = "L{d}";
  texts.lunarMonthBrief = "M{m}";
  texts.lunarLeapMonthBrief = "Lp{m}";
  texts.lunarDayBrief = "L{d}";
  texts.lunarDate = "day {d} of month {m}, {y}";
  texts.lunarLeapDate = "day {d} of leap month {m}, {y}";
  texts.lunarBirthday = "day {d} of month {m}";
  texts.lunarLeapBirthday = "day {d} of leap month {m}";
  texts.birthdayYears = "{c} years";

  texts.weekHeading = "Wk";
  texts.week = "Week";
  texts.dayOfYear = "Day of the year";
  texts.dayOfYearValue = "{d} of {c}";
  texts.lunarDateLabel = "Lunar date";
  texts.newMoon = "New moon";
  texts.solarTerm = "Solar term";
  texts.festivals = "Festivals";
  texts.notCertain = "Not certain";
  texts.byEngine = "Engine";
  texts.byAlmanac = "Almanac";
  texts.fromToday = "When";
  texts.today = "today";
  texts.tomorrow = "tomorrow";
  texts.yesterday = "yesterday";
  texts.inDays = "in {c} days";
  texts.daysAgo = "{c} days ago";

  texts.hint = "? help  q quit";
  texts.goTo = "Go to (YYYY-MM-DD): ";
  texts.notADate = "not a day from 1900-01-01 to 2099-12-31";
  texts.arrangement = "Arrangement: {a}";
  texts.firstDay = "First day: {w}";
  texts.rows = "Rows: {c}";
  texts.rowsNotHere = "Rows are for the arrangements rolling and tail";
  texts.calendarBegins = "The calendar begins with 1900";
  texts.calendarEnds = "The calendar ends with 2099";
  texts.clockOutside = "The clock stands outside the years 1900 to 2099";
  texts.arrowKeys = "arrows";
  texts.mouse = "mouse";
  texts.help = {
      "move over the days",
      "page backward, forward",
      "first, last day of the month",
      "a year back, forward",
      "today",
      "go to a date",
      "next arrangement: rolling, tail, month, strip",
      "a row more, less",
      "next first day of the week",
      "week numbers on, off",
      "break days on, off",
      "month intervals on, off",
      "click a day; the wheel pages",
      "this help, which any key leaves",
      "quit",
  };
  return texts;
}

}  // namespace almara::viewer
