/* SPDX-License-Identifier: MIT */
/** @file
 * almara: a month board, lunisolar dates, solar terms and festivals for desktop calendars.
 *
 * The library holds one engine. It is created, with the default options and an empty board, when
 * the library is loaded, and lives until the process ends, even if the library is closed; there is
 * nothing to open or to close.
 *
 * A host's life with it:
 *
 *   - Load the library, or link with it. Options may be set at any time, also before the first
 *     board; a setter never rebuilds the board, Build() does.
 *   - InitCalendarLogicDt(language) once at the start: it fixes the time zone of lunar dates and
 *     solar terms and builds the board around today.
 *   - Draw the board: GetContentItem() for each of GetContentRows() x GetContentColumns() cells,
 *     GetCalendarWeekByColumns() for the headings, GetWeekNumberItemWithIndex() for each of
 *     GetWeekNumberCount() boxes of the week-number column. GetContentDate(), GetToday() and
 *     IsTodayInBoard() serve the title and a button that returns to today.
 *   - Annotate the dates on it: ConverterLunarWithDate(), Check24SekkiWithDate(),
 *     CheckFestivalSolarWithLang(), CheckFestivalLunarWithLang(). Never ask before
 *     InitCalendarLogicDt(): answers are kept, and the zone is not known yet.
 *   - Move: GotoPreviousPage(), GotoNextPage(), GotoToday(), GotoSpecifiedDate(),
 *     GotoTodayOffset(). Each builds another board to draw.
 *
 * Threads: drive the engine from one thread, usually the one that draws the window. Two board
 * builds never run at the same time, but nothing else is locked. Never call from a signal handler,
 * nor in a child process that was forked while another thread was building: the lock of that build
 * is never released there.
 *
 * Errors: there are no error codes. Every function accepts every value of its arguments. An
 * argument that makes no sense is ignored or gives the fallback stated with the function, and a
 * date that no board can be built for leaves the dates on the board, and the date it is built for,
 * as they were; only which rows and columns are visible, and the spans, are worked out again under
 * the options now in force.
 *
 * Out of memory: a failed allocation propagates as the C++ exception std::bad_alloc, which ends the
 * process of a host that is not written in C++; GetConfigKey() alone returns NULL instead. The
 * engine stays usable. Where it was the allocation of a board, the board is empty, as before the
 * first build. If memory runs out while the C library reads the file of a time zone, it takes the
 * zone for UTC from then on and reports nothing.
 *
 * Memory: a board takes about 300 bytes a row, and 800 while it is built. Rows are not limited, so
 * a host must not ask for millions of them. Answers are kept without a limit, also where the answer
 * is that there is none: one for each distinct date and language asked, and one week number for
 * each distinct date and rule other than ISO, where days are not civil. Dates that lie together
 * take about 35 bytes each for all four answers, dates scattered over the years 1.6 kB.
 * ForgetAnnotations() gives all of that back.
 *
 * Output: every board build writes the board as text to the standard output, and GotoTodayOffset()
 * writes the date it went to, unless SetPrintBoard(false) has switched that off. Text that cannot
 * be written is lost. A pipe or a socket gets it at once: a reader that has gone does no harm, and
 * one that does not read for two seconds loses text, which holds up one call, and later ones not at
 * all until it reads again. What the host has printed before goes first and may wait for the reader
 * as any printf does. A file or a terminal gets the text through the C library's stdout, as if the
 * host had printed it.
 */
#ifndef ALMARA_ALMARA_H_
#define ALMARA_ALMARA_H_

#include <almara/almara_types.h>
#include <stdbool.h>
#include <stdint.h>

#define ALMARA_VERSION_MAJOR 1        /**< changes with the SONAME */
#define ALMARA_VERSION_MINOR 1        /**< grows when functions or constants are added */
#define ALMARA_VERSION_PATCH 0        /**< grows with any other release */
#define ALMARA_VERSION_STRING "1.1.0" /**< MAJOR.MINOR.PATCH */

/** Marks what the library exports. */
#if defined(__GNUC__)
#define ALMARA_EXPORT __attribute__((visibility("default")))
#else
#define ALMARA_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Bridge checks --------------------------------------------------------------------------- */

/**
 * The version of the library that was loaded, for example "1.1.0"; the macros above are those of
 * the header a host was built with. A static text, never to be freed. Since 1.1.
 */
ALMARA_EXPORT const char* GetLibraryVersion(void);

/**
 * Returns a + b in 32-bit wrapping arithmetic: 2147483647 + 1 is -2147483648. A host uses it to see
 * that its bridge works.
 */
ALMARA_EXPORT int32_t native_add(int32_t a, int32_t b);

/**
 * Returns {year, month, day, week} exactly as given. Nothing is checked: (2024, 2, 30, 9) comes
 * back as it is.
 */
ALMARA_EXPORT CCalendarSolarDate CreateSolarDate(int32_t year, int32_t month, int32_t day,
                                                 int32_t week);

/* ---- Building and navigating ----------------------------------------------------------------- */

/**
 * Fixes the time zone of lunar dates and solar terms and builds today's board.
 *
 * @param language ::ELanguage. 1 and 4 set UTC+8, 2 and 7 set UTC+9, whatever zone the machine runs
 *     in. Any other value leaves the zone as it is; where none was set yet, the machine's own
 *     offset of this moment is taken, in whole hours and truncated toward zero (UTC-3:30 gives -3).
 *     GetToday() and every other call that builds a board do the same where no zone was set yet.
 *
 * May be called again; the board returns to today. Answers that the annotation functions gave
 * before keep the zone they were computed with.
 */
ALMARA_EXPORT void InitCalendarLogicDt(int32_t language);

/**
 * Builds today's board under the options now in force. If the board's date already is today, a
 * page direction left by GotoPreviousPage(), GotoNextPage() or GotoSpecifiedDate() stays in force,
 * so that a page keeps its rows when an option changes.
 */
ALMARA_EXPORT void Build(void);

/** Builds today's board, as a plain build without a page direction. */
ALMARA_EXPORT void GotoToday(void);

/**
 * Pages backward. In the month arrangements (::EDispMonth 2 and 3) to the 1st of the month before
 * the board's date; in the day strip to a board that ends with the day before the first one shown;
 * in rolling weeks to one whose last row is that day's week. Before the first build, and at the
 * start of 1900, the dates of the board stay as they are.
 *
 * Outside the month arrangements this sets the page direction, even at the start of 1900. It stays
 * in force until another navigation sets or clears it, also when the arrangement is changed. Under
 * a page direction arrangement 2 has no rows, and arrangement 3 may begin after the 1st of the
 * month. It is cleared by GotoToday(), by InitCalendarLogicDt(), by GotoSpecifiedDate() with a date
 * on the board (outside arrangement 3), and by GotoTodayOffset() (outside arrangement 3).
 */
ALMARA_EXPORT void GotoPreviousPage(void);

/**
 * Pages forward: to the 1st of the month after the board's date, to a strip that begins with the
 * day after the last one shown, or to rolling weeks whose first row is that day's week; earlier
 * days of that week are blank if month intervals are on, otherwise shown. At the end of 2099 the
 * dates of the board stay as they are. Otherwise as GotoPreviousPage().
 */
ALMARA_EXPORT void GotoNextPage(void);

/**
 * Builds the board of a date. Outside the whole-month arrangement, a date before the first day
 * shown or after the last one is reached as if by paging, and sets the page direction: in the day
 * strip it becomes the last or the first day, in rolling weeks its week the last or the first row,
 * and arrangement 2 then has no rows. On an empty board every date counts as one after the last
 * day. A date within the board clears the page direction. The whole-month arrangement leaves the
 * page direction as it is.
 *
 * @param year 1900 to 2099
 * @param month 1 to 12
 * @param day 1 to 31; a day that the month does not have counts on into the next month (31 April
 *     is 1 May)
 *
 * All three 0 build today's board, as GotoToday() does. Any other value leaves the dates of the
 * board as they were (they are written to the standard output again), yet outside the whole-month
 * arrangement sets the page direction all the same.
 */
ALMARA_EXPORT void GotoSpecifiedDate(int32_t year, int32_t month, int32_t day);

/**
 * Builds the board some pages away from today.
 *
 * @param offset in the whole-month arrangement, months from this month (negative: before it), on
 *     today's day of the month or the month's last day if it is shorter. In every other
 *     arrangement, pages of GetMaxRow() weeks from today. 7 * rows * offset days, and these
 *     in seconds, are formed in 32-bit wrapping arithmetic: more than 24855 days away the target is
 *     some other date.
 *
 * A target outside 1900 to 2099 leaves the dates of the board as they were. Writes "build-logic
 * Y-M-D" (whole month: "Y-M-D", the day -1 outside 1900 to 2099) to the standard output, without a
 * line end.
 */
ALMARA_EXPORT void GotoTodayOffset(int32_t offset);

/* ---- Reading the board ----------------------------------------------------------------------- */

/** Visible rows, 0 to 50; 0 before the first build. */
ALMARA_EXPORT int32_t GetContentRows(void);

/** Visible columns, 0 to 7; 0 before the first build. A rejected date then makes it 7, without
 * rows.
 */
ALMARA_EXPORT int32_t GetContentColumns(void);

/**
 * The cell at a visible row and column.
 *
 * @param row 0 to GetContentRows() - 1
 * @param column 0 to GetContentColumns() - 1
 * @return the cell; outside these ranges an empty one: date 0, week number -1, row 0, column 0,
 *     kind 1. Note that the row and column inside the cell count hidden rows and columns too.
 */
ALMARA_EXPORT tagCalendarCell GetContentItem(int32_t row, int32_t column);

/**
 * The day of the week to head a visible column with.
 *
 * @param column 0 to GetContentColumns() - 1
 * @return ::ECalendarWeek. In the day strip the weekday of the date shown there, 0 for a column
 * that is not visible. Otherwise (start day of week + board column) mod 7: for columns from
 *     GetContentColumns() to 6 the start day of week mod 7, for columns below 0 or above 6 it is 0,
 *     and with a start day of week below 0, or where the sum wraps, it may be negative.
 */
ALMARA_EXPORT ECalendarWeek GetCalendarWeekByColumns(int32_t column);

/** Number of spans in the week-number column; 0 before the first build. */
ALMARA_EXPORT int32_t GetWeekNumberCount(void);

/**
 * One span of the week-number column, from the top.
 *
 * @param index 0 to GetWeekNumberCount() - 1; any other gives {0, 0, 0}
 */
ALMARA_EXPORT tagWeekNumberSpan GetWeekNumberItemWithIndex(int32_t index);

/**
 * The date that the board was last built for, exactly as it was asked for (2023-02-31 stays
 * 2023-02-31); its day of week is always 0. All zeroes before the first build.
 */
ALMARA_EXPORT CCalendarSolarDate GetContentDate(void);

/** Today's date in the machine's zone, with its day of week. Does not touch the board. */
ALMARA_EXPORT CCalendarSolarDate GetToday(void);

/**
 * Whether the last build put today on the board, hidden columns included. From 2100 on no board of
 * today can be built, so that the last one stays, with the day that was today then.
 */
ALMARA_EXPORT bool IsTodayInBoard(void);

/* ---- Annotating dates ------------------------------------------------------------------------

   What the four functions have in common:

   - They take a date by year, month and day; its day of the week is not read. Dates are not checked
     and not put right: see each function for a date that does not exist.
   - Lunar dates and solar terms are those of the zone that InitCalendarLogicDt() fixed, whole hours
     from universal time: the civil day that holds the new moon or the term counts. Before the zone
     is known they mean nothing, so initialise first.
   - Answers are kept until ForgetAnnotations(). The first answer for a date (of a festival: for a
     language and date) is what every later call gets, also after InitCalendarLogicDt() has changed
     the zone.
   - A date asked for the first time is worked out, and most of that work serves the dates around
     it; a date asked again is only looked up. */

/**
 * The lunar date of a Gregorian date: the Chinese lunisolar calendar in the zone now in force.
 *
 * @param date meant for 1900 to 2099. Any other year is converted by the same series, which grow
 *     worse with the distance: some ten thousand years away the day may lie outside its range, from
 *     about a million years away there may be no answer, and more than 5.88 million years away
 *     there is none.
 * @return the lunar date; all zeroes for no answer.
 *     - year: the Gregorian year in which the lunar year began
 *     - month: 1 to 12
 *     - day: 1 to 30
 *     - leap: 1 in a leap month, which has the number of the month before it
 *
 * 2024-02-10 is {2024, 1, 1, 0, 0} in UTC+8, the lunar new year; 2023-03-22 is {2023, 2, 1, 0, 1}.
 *
 * Months are numbered anew from each solstice and equinox, so at a few of these the numbers do not
 * join: in UTC+8 and UTC+9 the leap month that begins on 2033-12-22 is 11 and follows month 10. The
 * 30 days from 2017-02-26 on are month 2 in every zone.
 *
 * A day that its month does not have counts on from the month's beginning (2023-02-30 is the lunar
 * date of 2 March); months outside 1 to 12 count on by 30.59 days each, a month below 1 first as
 * that month of the year before plus 12. The lunar year is right for them as well.
 */
ALMARA_EXPORT CCalendarLunarDate ConverterLunarWithDate(CCalendarSolarDate date);

/**
 * The solar term that falls on a Gregorian date.
 *
 * @param date years 1800 to 2099
 * @return ::ESolarKyureki24, 0 to 23; -1 for a date without a term, for a year outside 1800 to 2099
 *     and for a date that does not exist
 *
 * 2024-06-21 is 11, the summer solstice, in UTC+8; in UTC that is 2024-06-20.
 */
ALMARA_EXPORT ESolarKyureki24 Check24SekkiWithDate(CCalendarSolarDate date);

/**
 * The festival of the Gregorian calendar on a date.
 *
 * @param language ::ELanguage. Its region's own festival wins over a common one on the same day: 25
 *     December is 3006 in Korean and 1011 elsewhere. A value without a region has the common ones.
 * @param date any year. Festivals on the n-th weekday of a month are found from 1900 to 2099 only.
 * @return ::EFestivalSolar, 0 for none. A date that does not exist has none; see below for the
 *     exceptions.
 *
 * Easter Sunday (eFestivalSolarEaster, eLanguageUsa) is found only if the last eLanguageUsa date
 * worked out before was of the same year. Two consequences of answers being kept:
 *
 * - the first date of a year may not be Easter Sunday itself, or 0 is kept for it for good. A host
 *   that asks for whole months in order finds it, since 1 March comes before;
 * - an answer that is kept is not worked out again: after 2024-01-01, 2025-01-01, 2024-01-01 the
 *   last year worked out is 2025.
 *
 * Good Friday is found at once, except in the years 1 to 31, where it may be another year's. The
 * first eLanguageUsa date of a year, if it has month 0 and day 0, gives 4003, and before year 1 the
 * rule of Easter may give a 30 or 31 February.
 */
ALMARA_EXPORT EFestivalSolar CheckFestivalSolarWithLang(ELanguage language,
                                                        CCalendarSolarDate date);

/**
 * The festival of the lunar calendar on a Gregorian date.
 *
 * @param language ::ELanguage. Only 1, 2, 4 and 9 have lunar festivals; any other value gives 0.
 *     The zone is that of the lunar dates, so ask with the language that InitCalendarLogicDt() got.
 * @param date as for ConverterLunarWithDate(), whose answer decides; it is kept too
 * @return ::EFestivalLunar, 0 for none. A leap month has no festivals; lunar new year's eve is the
 *     last day of month 12, whether that is the 29th or the 30th.
 */
ALMARA_EXPORT EFestivalLunar CheckFestivalLunarWithLang(ELanguage language,
                                                        CCalendarSolarDate date);

/* ---- Options --------------------------------------------------------------------------------- */

/** The arrangement of the board, ::EDispMonth as it was set; 1 by default. */
ALMARA_EXPORT EDispMonth GetDispMonth(void);

/** Sets the arrangement. Not checked: a value outside 1 to 4 gives boards without rows. */
ALMARA_EXPORT void SetDispMonth(EDispMonth mode);

/** Week rows of arrangements 1 and 2; 5 by default. */
ALMARA_EXPORT int32_t GetMaxRow(void);

/**
 * Sets the week rows. Not checked: with 0 or less arrangement 1 has no rows. At most 50 rows become
 * visible. Useful are 1 to 50; memory and time grow with the value.
 */
ALMARA_EXPORT void SetMaxRow(int32_t rows);

/** Whole weeks shown before the week of the date in arrangement 1; 1 by default. */
ALMARA_EXPORT int32_t GetPassedWeeks(void);

/** Sets the passed weeks. Not checked; useful are 0 to GetMaxRow() - 1. */
ALMARA_EXPORT void SetPassedWeeks(int32_t weeks);

/** The day of the week in the first column, ::ECalendarWeek as it was set; 1 (Monday) by default.
 */
ALMARA_EXPORT ECalendarWeek GetStartDayOfWeek(void);

/**
 * Sets the day of the week in the first column. Not checked: for a value outside 0 to 6 the dates
 * are laid out from Monday, while headings and hidden break days count from the value as it is.
 */
ALMARA_EXPORT void SetStartDayOfWeek(ECalendarWeek day);

/** The week number that is shown as week 1; 1 by default. */
ALMARA_EXPORT int32_t GetStartWeekNumber(void);

/**
 * Sets the week number that is shown as week 1. Not checked. Useful are 1 to 53; a value of -1 or
 * less also gives a number to cells that have none.
 */
ALMARA_EXPORT void SetStartWeekNumber(int32_t week);

/** The hide-break-day flag; false by default. It is stored and reported only. */
ALMARA_EXPORT bool GetHideBreakDay(void);

/**
 * Sets the hide-break-day flag, which no board reads: use SetShowBreakDayOfWeek() to hide break
 * days.
 *
 * Of this and every other bool argument only the lowest bit of the byte counts, so that a bridge
 * that hands over 2 has said false.
 */
ALMARA_EXPORT void SetHideBreakDay(bool hide);

/**
 * The hide-break-day flag, the same as GetHideBreakDay(), not what SetShowMonthInterval() wrote:
 * that flag can be read back through GetConfigKey() only.
 */
ALMARA_EXPORT bool GetShowMonthInterval(void);

/**
 * Sets whether a month interval of seven cells is inserted before the first day of a month, and
 * days that only fill the first row are left blank: days before the board's month and, after paging
 * forward in arrangement 1, days before the board's date. True by default.
 */
ALMARA_EXPORT void SetShowMonthInterval(bool show);

/** Whether break-day columns are shown; true by default. */
ALMARA_EXPORT bool GetShowBreakDayOfWeek(void);

/** Sets whether break-day columns, and rows left without content, are shown. Columns are hidden by
 * their place: the start day of week heads the first one. A day strip begins on any weekday, so
 * there the columns hidden are not those of the break days; do not hide break days in a strip. */
ALMARA_EXPORT void SetShowBreakDayOfWeek(bool show);

/** The rule for week numbers, ::EWeekNumberCalc as it was set; 1 (ISO 8601) by default. */
ALMARA_EXPORT EWeekNumberCalc GetWeekNumberCalcType(void);

/**
 * Sets the rule for week numbers. Not checked: any value but 1 and 2 counts as 0.
 *
 * Without SetCivilDays() all rules but 1 count the seconds of local time since 1 January. From the
 * day the clocks go forward until they go back, dates come out one day short: in Berlin, 1 April
 * 2024, a Monday, is still in week 13. The first answer for a date is kept until
 * ForgetAnnotations().
 */
ALMARA_EXPORT void SetWeekNumberCalcType(EWeekNumberCalc type);

/** Whether days are counted by the calendar alone; false at load. Since 1.1. */
ALMARA_EXPORT bool GetCivilDays(void);

/**
 * Sets whether days are counted by the calendar alone. Switch it on before the first board, unless
 * a host depends on the boards that are built without it.
 *
 * Off, the days of boards, pages, offsets, week numbers and festivals on a weekday are counted as
 * 86400 seconds of the machine's local time. Wherever a zone set its standard time back, or calls
 * winter time daylight saving, a board then shows a day twice and each later one under the wrong
 * weekday: Moscow in October 2014, Almaty in February and March 2024, Dublin every winter. On, all
 * of them are what they are off in a machine that runs in UTC on the same date; today's date alone
 * comes from the machine's clock and zone. A board is also built in a fraction of the time.
 *
 * A change forgets the kept week numbers and festivals. The board stays until the next build.
 * Lunar dates and solar terms do not depend on it, and GetConfigKey() does not tell it. Since 1.1.
 */
ALMARA_EXPORT void SetCivilDays(bool on);

/**
 * Marks a day of the week as break day or takes the mark away. By default Saturday and Sunday are
 * marked.
 *
 * @param dayOfWeek ::ECalendarWeek; a value outside 0 to 6 changes nothing
 * @param isBreak whether it is to be a break day
 */
ALMARA_EXPORT void SetBreakDayOfWeek(int32_t dayOfWeek, bool isBreak);

/** Whether a day of the week is a break day; false for a value outside 0 to 6. */
ALMARA_EXPORT bool IsBreakDayOfWeek(int32_t dayOfWeek);

/**
 * A text that holds every option but SetCivilDays(), so that it changes whenever one does: two
 * equal keys mean equal options. "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1" by default; the numbers are
 * the arrangement, rows, columns of the strip, passed weeks, start day of week, start week number,
 * hide-break-day flag, rule for week numbers, month intervals, in parentheses the break days from
 * Monday to Sunday, and whether break days are shown.
 *
 * @return a new NUL-terminated text that the caller owns and releases with ReleaseText() or the C
 *     library's free(), or NULL if there is no memory for it
 */
ALMARA_EXPORT char* GetConfigKey(void);

/**
 * Releases a text that GetConfigKey() returned, for hosts without the C library's free() at hand.
 * NULL is ignored; any other pointer must come from GetConfigKey() and be released once. Since 1.1.
 */
ALMARA_EXPORT void ReleaseText(char* text);

/* ---- Kept answers and output ------------------------------------------------------------------
 */

/**
 * Forgets every kept answer, week numbers included, the year of Easter that
 * CheckFestivalSolarWithLang() remembers, and the zone: what is asked from here on is answered as
 * in a process that has just loaded the library. For a change of language at run time, and for a
 * host whose own side starts afresh. Options and the board stay as they are; call
 * InitCalendarLogicDt() next, which fixes the zone again. Since 1.1.
 */
ALMARA_EXPORT void ForgetAnnotations(void);

/**
 * Sets whether builds and GotoTodayOffset() write to the standard output; true by default. Switch
 * it off unless the text is wanted, before the first board. No part of GetConfigKey(). Since 1.1.
 */
ALMARA_EXPORT void SetPrintBoard(bool print);

/** Whether builds and GotoTodayOffset() write to the standard output. Since 1.1. */
ALMARA_EXPORT bool GetPrintBoard(void);

#ifdef __cplusplus
}
#endif

#endif /* ALMARA_ALMARA_H_ */
