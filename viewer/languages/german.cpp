// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsGerman() {
  Texts texts;
  texts.language = eLanguageDeu;
  texts.weekdays = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};
  texts.narrowWeekdays = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};
  texts.longWeekdays = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                        "Donnerstag", "Freitag", "Samstag"};
  texts.months = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                  "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
  texts.monthsInDates = texts.months;
  texts.shortMonths = {"Jan", "Feb", "Mär", "Apr", "Mai", "Jun",
                       "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};

  texts.fullDate = "{w}, {d}. {M} {y}";
  texts.dayOfMonth = "{d}. {S}";
  texts.title = "{M} {y}";
  texts.titleMonths = "{M} - {N} {y}";
  texts.titleYears = "{M} {y} - {N} {z}";
  texts.titleMonthsBrief = "{S} - {T} {y}";
  texts.titleYearsBrief = "{S} {y} - {T} {z}";

  texts.lunarMonth = "Mond {m}";
  texts.lunarLeapMonth = "Schalt {m}";
  texts.lunarDay = "L{d}";
  texts.lunarMonthBrief = "M{m}";
  texts.lunarLeapMonthBrief = "S{m}";
  texts.lunarDayBrief = "L{d}";
  texts.lunarDate = "Tag {d} des {m}. Monats {y}";
  texts.lunarLeapDate = "Tag {d} des {m}. Schaltmonats {y}";
  texts.lunarBirthday = "Tag {d} des {m}. Monats";
  texts.lunarLeapBirthday = "Tag {d} des {m}. Schaltmonats";
  texts.birthdayYears = "{c} Jahre";

  texts.weekHeading = "KW";
  texts.week = "Woche";
  texts.dayOfYear = "Tag des Jahres";
  texts.dayOfYearValue = "{d} von {c}";
  texts.lunarDateLabel = "Mondkalender";
  texts.newMoon = "Neumond";
  texts.solarTerm = "Sonnenperiode";
  texts.festivals = "Festtage";
  texts.notCertain = "Unsicher";
  texts.byEngine = "Engine";
  texts.byAlmanac = "Almanach";
  texts.fromToday = "Wann";
  texts.today = "heute";
  texts.tomorrow = "morgen";
  texts.yesterday = "gestern";
  texts.inDays = "in {c} Tagen";
  texts.daysAgo = "vor {c} Tagen";

  texts.hint = "? Hilfe  q Ende";
  texts.goTo = "Gehe zu (JJJJ-MM-TT): ";
  texts.notADate = "kein Tag von 1900-01-01 bis 2099-12-31";
  texts.arrangement = "Anordnung: {a}";
  texts.firstDay = "Erster Wochentag: {w}";
  texts.rows = "Zeilen: {c}";
  texts.rowsNotHere = "Zeilen gibt es nur bei rolling und tail";
  texts.calendarBegins = "Der Kalender beginnt mit 1900";
  texts.calendarEnds = "Der Kalender endet mit 2099";
  texts.clockOutside = "Die Uhr steht außerhalb der Jahre 1900 bis 2099";
  texts.arrowKeys = "Pfeile";
  texts.mouse = "Maus";
  texts.help = {
      "über die Tage gehen",
      "zurück-, vorblättern",
      "erster, letzter Tag des Monats",
      "ein Jahr zurück, vor",
      "heute",
      "zu einem Tag gehen",
      "nächste Anordnung: rolling, tail, month, strip",
      "eine Zeile mehr, weniger",
      "anderer erster Wochentag",
      "Wochennummern an, aus",
      "Ruhetage an, aus",
      "Monatsbänder an, aus",
      "Klick wählt einen Tag, das Rad blättert",
      "diese Hilfe, jede Taste verlässt sie",
      "Ende",
  };
  return texts;
}

}  // namespace almara::viewer
