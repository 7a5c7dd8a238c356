/* SPDX-License-Identifier: MIT */
/** @file
 * The almanac: the lunisolar calendar as it is published, in both directions, with the instants of
 * the new moons and solar terms that it rests on.
 *
 * The functions here stand beside those of almara.h and know nothing of them: they need no
 * InitCalendarLogicDt(), read no zone and no clock, and give the same answers whatever the engine
 * does. Where the two differ, the almanac has the published date and the engine the date of its own
 * method; the engine's answers never change. Where both reckon in UTC+8 they differ on 149 of the
 * 73,049 days of 1900 to 2099, 119 of them at the end of 2033; before 1929 China kept another time,
 * which the almanac follows.
 *
 * Every function is pure: it depends on its arguments alone, keeps nothing, allocates nothing,
 * takes no lock and writes nothing. It may be called from any thread at any time, the first call
 * costs no more than the others, and every int is a legal argument.
 *
 * Reckoning: a month begins on the civil day of the new moon, month 11 holds the winter solstice,
 * and where 13 months begin between two months 11, the first without a principal term (one with an
 * odd number) is a leap month. The instants are those of the Swiss Ephemeris, in whole seconds.
 *
 * Example, the lunar birthday "month 8, day 15" in Korea, in 2026:
 *
 *     CCalendarLunarDate birthday = {0, 8, 15, 0, 0};
 *     CCalendarSolarDate from = {2026, 1, 1, 0};
 *     AlmanacNextAnniversary(eAlmanacKorea, birthday, from, eAlmanacAnniversaryEveryYear);
 *         gives {2026, 9, 25, 5}, a Friday
 */
#ifndef ALMARA_ALMANAC_H_
#define ALMARA_ALMANAC_H_

#include <almara/almara.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Calendars ------------------------------------------------------------------------------- */

/**
 * A calendar of the almanac: whose civil days count. Beside the values below there is one for each
 * fixed difference from universal time, see AlmanacCalendarAtOffset(). For any other int every
 * function gives "no answer".
 */
typedef int32_t EAlmanacCalendar;

/** Values of ::EAlmanacCalendar. */
enum {
  eAlmanacNone = 0,    /**< no calendar */
  eAlmanacChina = 1,   /**< Beijing local mean time (116 degrees 25 minutes east, UTC+7:45:40) to
                            1928-12-31, UTC+8 from then on */
  eAlmanacKorea = 2,   /**< as China to 1911-12-31, UTC+9 from then on */
  eAlmanacVietnam = 3, /**< as China to 1967-12-31, UTC+7 from then on */
  eAlmanacJapan = 4    /**< UTC+9. Japan publishes the terms; months are numbered by nobody there,
                            and follow the rule of the others */
};

/**
 * The calendar reckoned in one time for all years.
 *
 * @param minutes east of Greenwich, -1080 to 1080 (18 hours); any other value gives eAlmanacNone
 */
ALMARA_EXPORT EAlmanacCalendar AlmanacCalendarAtOffset(int32_t minutes);

/**
 * The calendar of a region's own country: Kor, Jpn and Vit have theirs, every other ::ELanguage and
 * every other int has China's.
 */
ALMARA_EXPORT EAlmanacCalendar AlmanacCalendarOfLanguage(ELanguage language);

/* ---- Dates -----------------------------------------------------------------------------------

   In the calendars of China and Korea one month is as it was printed and not as reckoned: month 4
   of 1906 begins on 1906-04-24, although the new moon was on 23 April at 23:52:05 of Beijing. */

/**
 * The lunar date of a Gregorian date.
 *
 * @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
 * @param date 1900-01-01 to 2099-12-31; its day of the week is not read
 * @return the lunar date, of the lunar years 1899 (its end) to 2099; all zeroes outside the span
 * and for a date that does not exist
 *
 * 2033-12-22 is {2033, 11, 1, 0, 1} in China, a leap month 11; 2024-02-10 is {2024, 1, 1, 0, 0}.
 */
ALMARA_EXPORT CCalendarLunarDate AlmanacLunarDate(EAlmanacCalendar calendar,
                                                  CCalendarSolarDate date);

/**
 * The Gregorian date of a lunar date: AlmanacLunarDate() turned around.
 *
 * @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
 * @param date year, month 1 to 12, day 1 to 30, leap 0 or 1; `reserved` is not read
 * @return the date with its day of the week. All zeroes where there is no such day: day 30 of a
 *     short month, a leap month that the year lacks, a day outside 1900-01-01 to 2099-12-31.
 */
ALMARA_EXPORT CCalendarSolarDate AlmanacSolarDate(EAlmanacCalendar calendar,
                                                  CCalendarLunarDate date);

/** Lunar new year's day of a year 1900 to 2099, with its day of the week; else all zeroes. */
ALMARA_EXPORT CCalendarSolarDate AlmanacFirstDayOfYear(EAlmanacCalendar calendar, int32_t year);

/** Days of a lunar year 1900 to 2099: 353 to 355, or 383 to 385 with a leap month; else 0. */
ALMARA_EXPORT int32_t AlmanacDaysOfYear(EAlmanacCalendar calendar, int32_t year);

/** Months of a lunar year 1900 to 2099: 12, or 13 with a leap month; else 0. */
ALMARA_EXPORT int32_t AlmanacMonthsOfYear(EAlmanacCalendar calendar, int32_t year);

/**
 * The month 1 to 12 that a lunar year 1900 to 2099 has twice, the second time as a leap month; 0
 * for a year without one and outside these years.
 */
ALMARA_EXPORT int32_t AlmanacLeapMonth(EAlmanacCalendar calendar, int32_t year);

/**
 * Days of a lunar month, 29 or 30.
 *
 * @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
 * @param year 1900 to 2099, and 1899 for a month that reaches into 1900
 * @param month 1 to 12
 * @param leap 1 for the leap month of this number, 0 for the plain one
 * @return 0 for a month that there is not
 */
ALMARA_EXPORT int32_t AlmanacDaysOfMonth(EAlmanacCalendar calendar, int32_t year, int32_t month,
                                         int32_t leap);

/* ---- Anniversaries --------------------------------------------------------------------------- */

/**
 * Rules of AlmanacNextAnniversary(): a sum of the values below. Other bits are not read; leave them
 * 0.
 */
typedef int32_t EAlmanacAnniversary;

/** Values of ::EAlmanacAnniversary. */
enum {
  eAlmanacAnniversaryEveryYear = 0,     /**< once in every lunar year */
  eAlmanacAnniversaryLeapMonthOnly = 1, /**< a date in a leap month: only in years that have this
                                             leap month, not in the plain month of the others */
  eAlmanacAnniversaryDay30Only = 2      /**< day 30: only where the month has 30 days, not on day 29
                                             of a short month */
};

/**
 * The first anniversary of a lunar month and day on or after a Gregorian date.
 *
 * A date in a leap month falls in the leap month of the years that have the same one, and in the
 * plain month of the same number in the others. Day 30 falls on day 29 where the month is short.
 * The rules turn off either, so that such a year has no anniversary.
 *
 * @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
 * @param date month 1 to 12, day 1 to 30, leap 0 or 1; `year` and `reserved` are not read
 * @param from 1900-01-01 to 2099-12-31; its day of the week is not read
 * @param rules ::EAlmanacAnniversary
 * @return the date with its day of the week. All zeroes where none follows to the end of 2099, and
 *     for arguments outside these ranges.
 *
 * To list more of them, ask again from the day after.
 */
ALMARA_EXPORT CCalendarSolarDate AlmanacNextAnniversary(EAlmanacCalendar calendar,
                                                        CCalendarLunarDate date,
                                                        CCalendarSolarDate from,
                                                        EAlmanacAnniversary rules);

/* ---- Instants -------------------------------------------------------------------------------- */

/**
 * The instant of a new moon or a solar term, as the calendar's clocks show it. All zeroes stands
 * for no answer. 40 bytes.
 */
typedef struct AlmanacInstant {
  int32_t year;        /**< of the civil date, 1899 to 2100 */
  int32_t month;       /**< 1 to 12 */
  int32_t day;         /**< 1 to 31 */
  int32_t dayOfWeek;   /**< ::ECalendarWeek */
  int32_t hour;        /**< 0 to 23 */
  int32_t minute;      /**< 0 to 59 */
  int32_t second;      /**< 0 to 59; the second within which it happens, not rounded */
  int32_t offset;      /**< seconds that these clocks are ahead of universal time (UT1, which is
                            within a second of UTC), -64800 to 64800 */
  int32_t uncertainty; /**< seconds by which the time may be wrong, at least 4 */
  int32_t certain;     /**< 1 if the civil date is certain: midnight is farther away than the
                            uncertainty; else 0 */
} AlmanacInstant;

/**
 * The instant of a solar term.
 *
 * @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
 * @param year 1900 to 2099
 * @param term ::ESolarKyureki24, 0 to 23
 * @return a date of that year; all zeroes outside these ranges
 *
 * The spring equinox (5) of 2084 is on 2084-03-20 at 00:00:29 in China, uncertain by 80 seconds and
 * so not certain.
 *
 * The uncertainty is 3 seconds for the table, 1 for what is measured of the Earth's rotation, and
 * from 2023 on three standard errors of its prognosis, rounded up: 365.25 * N * sqrt(N * 0.058 / 3
 * * (1 + N / 2500)) / 1000 seconds each, N being the years since 2022 (P. J. Huber's formula, given
 * by F. Espenak and J. Meeus in Five Millennium Canon of Solar Eclipses, NASA/TP-2006-214141).
 */
ALMARA_EXPORT AlmanacInstant AlmanacTermInstant(EAlmanacCalendar calendar, int32_t year,
                                                ESolarKyureki24 term);

/**
 * A new moon of a Gregorian year.
 *
 * @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
 * @param year 1900 to 2099
 * @param index 0 for the first one of the year, to 11 or 12 for the last
 * @return all zeroes where the year has no such new moon
 *
 * The uncertainty is that of AlmanacTermInstant() with 6 seconds for the table.
 */
ALMARA_EXPORT AlmanacInstant AlmanacNewMoonOfYear(EAlmanacCalendar calendar, int32_t year,
                                                  int32_t index);

/**
 * The new moon that begins a lunar month; arguments as for AlmanacDaysOfMonth(). All zeroes for a
 * month that there is not. If its day is not certain, no day of the month is.
 */
ALMARA_EXPORT AlmanacInstant AlmanacNewMoonOfMonth(EAlmanacCalendar calendar, int32_t year,
                                                   int32_t month, int32_t leap);

/* ---- Terms and festivals of a date ----------------------------------------------------------- */

/**
 * The solar term that falls on a Gregorian date 1900-01-01 to 2099-12-31.
 *
 * @return ::ESolarKyureki24, 0 to 23; -1 for a date without a term, outside the span, or that does
 *     not exist
 */
ALMARA_EXPORT ESolarKyureki24 AlmanacTermOfDate(EAlmanacCalendar calendar, CCalendarSolarDate date);

/**
 * The lunar festival of a Gregorian date, by the rules of CheckFestivalLunarWithLang() and the
 * dates of AlmanacLunarDate().
 *
 * @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
 * @param language ::ELanguage, whose festivals; the calendar need not be that region's
 * @param date 1900-01-01 to 2099-12-31; its day of the week is not read
 * @return ::EFestivalLunar; 0 for none, outside the span, and for a date that does not exist
 */
ALMARA_EXPORT EFestivalLunar AlmanacLunarFestival(EAlmanacCalendar calendar, ELanguage language,
                                                  CCalendarSolarDate date);

#ifdef __cplusplus
}
#endif

#endif /* ALMARA_ALMANAC_H_ */
