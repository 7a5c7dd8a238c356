/* SPDX-License-Identifier: MIT */
/** @file
 * Records and integer constants of the almara calendar engine.
 *
 * Every record is a plain block of int32_t without padding, so that it has the same layout in C,
 * in C++ and across any foreign-function bridge. Values that stand for a choice are int32_t
 * typedefs with unnamed constants: an int outside the listed ones is legal everywhere and has the
 * stated effect, so a binding must not turn them into closed enumerations.
 */
#ifndef ALMARA_ALMARA_TYPES_H_
#define ALMARA_ALMARA_TYPES_H_

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Days ------------------------------------------------------------------------------------ */

/** Day of the week, 0 = Sunday to 6 = Saturday. */
typedef int32_t ECalendarWeek;

/** Values of ::ECalendarWeek. */
enum {
  eCalendarWeekSunday = 0,
  eCalendarWeekMonday = 1,
  eCalendarWeekTuesday = 2,
  eCalendarWeekWednesday = 3,
  eCalendarWeekThursday = 4,
  eCalendarWeekFriday = 5,
  eCalendarWeekSaturday = 6
};

/** A Gregorian date. All zeroes stands for no date. 16 bytes. */
typedef struct CCalendarSolarDate {
  int32_t year;      /**< full Gregorian year, for example 2024 */
  int32_t month;     /**< 1 = January to 12 = December */
  int32_t day;       /**< day of the month, 1 to 31 */
  int32_t dayOfWeek; /**< ::ECalendarWeek, or 0 where it was not worked out */
} CCalendarSolarDate;

/** A date of the lunisolar calendar. All zeroes stands for no answer. 20 bytes. */
typedef struct CCalendarLunarDate {
  int32_t year;     /**< the Gregorian year in which the lunar year began */
  int32_t month;    /**< lunar month, 1 to 12 */
  int32_t day;      /**< day of the lunar month, 1 to 30 (see ConverterLunarWithDate()) */
  int32_t reserved; /**< always 0 */
  int32_t leap;     /**< 1 in a leap month, else 0; a leap month has the number of the one before */
} CCalendarLunarDate;

/* ---- The board ------------------------------------------------------------------------------- */

/** Kind of a board cell, 1 to 7. */
typedef int32_t ECalendarItem;

/** Values of ::ECalendarItem. */
enum {
  eCalendarItemEmpty = 1,         /**< grid position beyond the last date; its date is 0, 0, 0 */
  eCalendarItemBlank = 2,         /**< filler of a month interval (date 0, 0, 0), or a
                                       kept-back day, which only fills the first row (real date,
                                       day of week 0) */
  eCalendarItemDay = 3,           /**< ordinary day */
  eCalendarItemToday = 4,         /**< today, not a break day */
  eCalendarItemBreakDay = 5,      /**< break day, not today */
  eCalendarItemTodayBreakDay = 6, /**< today, on a break day */
  eCalendarItemMonthTitle = 7     /**< first cell of a month interval: year 0, the month that begins
                                       after the interval, day 1 */
};

/** One cell of the board, as GetContentItem() returns it. 32 bytes. */
typedef struct tagCalendarCell {
  int32_t year;       /**< of the date shown; 0 marks a cell without a day */
  int32_t month;      /**< 1 to 12, or 0 */
  int32_t day;        /**< 1 to 31, or 0 */
  int32_t dayOfWeek;  /**< ::ECalendarWeek; 0 in cells of kind 1, 2 and 7 */
  int32_t weekNumber; /**< counted so that the start week reads 1; -1 where there is none */
  int32_t row;        /**< row on the whole board, from 0, hidden rows counted */
  int32_t column;     /**< column on the whole board, 0 to 6, hidden columns counted */
  int32_t type;       /**< ::ECalendarItem */
} tagCalendarCell;

/** A span: consecutive visible rows that share one box in the week-number column. 12 bytes. */
typedef struct tagWeekNumberSpan {
  int32_t weekNumber;       /**< week number to show, 0 when the span has none */
  int32_t secondWeekNumber; /**< a second week number met in the span, or 0 */
  int32_t rows;             /**< visible rows of the span, at least 1 */
} tagWeekNumberSpan;

/** Arrangement of the board. A value outside 1 to 4 gives an empty board. */
typedef int32_t EDispMonth;

/** Values of ::EDispMonth. */
enum {
  eDispMonthRollingWeeks = 1, /**< a fixed number of weeks around the chosen date (default) */
  eDispMonthRollingTail = 2,  /**< the month from its first week, at least the wanted rows; none
                                   while a page direction is in force, see GotoPreviousPage() */
  eDispMonthWholeMonth = 3,   /**< exactly the weeks that hold a day of the month */
  eDispMonthDayStrip = 4      /**< one row of consecutive days, the chosen one in the middle */
};

/** Rule for week numbers. Weeks begin on Monday in all of them. */
typedef int32_t EWeekNumberCalc;

/** Values of ::EWeekNumberCalc. */
enum {
  eWeekNumberCalcFromJan1 = 0, /**< the week that holds 1 January is week 1 */
  eWeekNumberCalcIso8601 = 1,  /**< ISO 8601: week 1 holds the year's first Thursday (default) */
  eWeekNumberCalcFromStartWeek = 2 /**< as 0, and counted on across the turn of the year from the
                                        start week number on */
};

/* ---- Regions --------------------------------------------------------------------------------- */

/**
 * Language region: selects the time zone that InitCalendarLogicDt() fixes and the festivals.
 * Any other value, 0 included, selects no region: common festivals only. "The machine's zone" is
 * taken only where no zone was set before.
 */
typedef int32_t ELanguage;

/** Values of ::ELanguage. */
enum {
  eLanguageChs = 1, /**< Chinese (simplified): UTC+8, lunar festivals */
  eLanguageKor = 2, /**< Korean: UTC+9, lunar festivals */
  eLanguageUsa = 3, /**< English (United States): the machine's zone */
  eLanguageCht = 4, /**< Chinese (traditional): UTC+8, lunar festivals */
  eLanguageRus = 5, /**< Russian: the machine's zone */
  eLanguageDeu = 6, /**< German: the machine's zone */
  eLanguageJpn = 7, /**< Japanese: UTC+9 */
  eLanguageEng = 8, /**< English: the machine's zone */
  eLanguageVit = 9, /**< Vietnamese: the machine's zone, lunar festivals */
  eLanguageTha = 10 /**< Thai: the machine's zone */
};

/* ---- Solar terms ----------------------------------------------------------------------------- */

/**
 * One of the 24 solar terms, in the order of the calendar year: term i falls on the day on which
 * the Sun's apparent longitude reaches (285 + 15 * i) mod 360 degrees. -1 stands for no term.
 */
typedef int32_t ESolarKyureki24;

/** Values of ::ESolarKyureki24. */
enum {
  eSekkiNone = -1,
  eSekkiMinorCold = 0,          /**< 285 degrees, about 5 January */
  eSekkiMajorCold = 1,          /**< 300 degrees, about 20 January */
  eSekkiStartOfSpring = 2,      /**< 315 degrees, about 4 February */
  eSekkiRainWater = 3,          /**< 330 degrees, about 19 February */
  eSekkiAwakeningOfInsects = 4, /**< 345 degrees, about 5 March */
  eSekkiSpringEquinox = 5,      /**< 0 degrees, about 20 March */
  eSekkiClearAndBright = 6,     /**< 15 degrees, about 5 April */
  eSekkiGrainRain = 7,          /**< 30 degrees, about 20 April */
  eSekkiStartOfSummer = 8,      /**< 45 degrees, about 5 May */
  eSekkiGrainBuds = 9,          /**< 60 degrees, about 21 May */
  eSekkiGrainInEar = 10,        /**< 75 degrees, about 6 June */
  eSekkiSummerSolstice = 11,    /**< 90 degrees, about 21 June */
  eSekkiMinorHeat = 12,         /**< 105 degrees, about 7 July */
  eSekkiMajorHeat = 13,         /**< 120 degrees, about 23 July */
  eSekkiStartOfAutumn = 14,     /**< 135 degrees, about 7 August */
  eSekkiEndOfHeat = 15,         /**< 150 degrees, about 23 August */
  eSekkiWhiteDew = 16,          /**< 165 degrees, about 7 September */
  eSekkiAutumnEquinox = 17,     /**< 180 degrees, about 23 September */
  eSekkiColdDew = 18,           /**< 195 degrees, about 8 October */
  eSekkiFrostsDescent = 19,     /**< 210 degrees, about 23 October */
  eSekkiStartOfWinter = 20,     /**< 225 degrees, about 7 November */
  eSekkiMinorSnow = 21,         /**< 240 degrees, about 22 November */
  eSekkiMajorSnow = 22,         /**< 255 degrees, about 7 December */
  eSekkiWinterSolstice = 23     /**< 270 degrees, about 21 December */
};

/* ---- Festivals of the solar calendar --------------------------------------------------------- */

/** Code of a festival of the Gregorian calendar; 0 stands for none. almara_names.h has names. */
typedef int32_t EFestivalSolar;

/** Values of ::EFestivalSolar. */
enum {
  eFestivalSolarNone = 0,

  /* Common: found for every language unless the region has one of its own on the day. 1006 and the
     last five are found in the regions named only. */
  eFestivalSolarNewYearsDay = 1000,   /**< 1 January */
  eFestivalSolarWomensDay = 1001,     /**< 8 March */
  eFestivalSolarAprilFoolsDay = 1002, /**< 1 April */
  eFestivalSolarHealthDay = 1003,     /**< 7 April, World Health Day */
  eFestivalSolarEarthDay = 1004,      /**< 22 April */
  eFestivalSolarLabourDay = 1005,     /**< 1 May */
  eFestivalSolarChildrensDay = 1006,  /**< Chs, Rus, Deu, Vit 1 June; Deu also 20 September; Cht
                                           4 April; Usa first Sunday of June; Eng 14 July; Tha
                                           second Saturday of January */
  eFestivalSolarNoTobaccoDay = 1007,  /**< 31 May, World No-Tobacco Day */
  eFestivalSolarHalloween = 1008,     /**< 31 October */
  eFestivalSolarThanksgiving = 1009,  /**< fourth Thursday of November */
  eFestivalSolarChristmasEve = 1010,  /**< 24 December */
  eFestivalSolarChristmasDay = 1011,  /**< 25 December */
  eFestivalSolarNewYearsEve = 1012,   /**< 31 December */
  eFestivalSolarArborDay = 1013,      /**< Chs, Cht 12 March; Kor 5 April */
  eFestivalSolarValentinesDay = 1014, /**< Chs, Cht 14 February */
  eFestivalSolarMothersDay = 1015,    /**< Chs, Cht second Sunday of May */
  eFestivalSolarFathersDay = 1016,    /**< Chs third Sunday of June; Cht 8 August */
  eFestivalSolarTeachersDay = 1017,   /**< Chs 10 September; Cht 28 September */

  /* Chinese */
  eFestivalSolarConsumerRightsDay = 2000,  /**< Chs 15 March */
  eFestivalSolarYouthDay = 2001,           /**< Chs 4 May */
  eFestivalSolarPartyFoundationDay = 2002, /**< Chs 1 July */
  eFestivalSolarArmyDay = 2003,            /**< Chs 1 August */
  eFestivalSolarNationalDayChs = 2004,     /**< Chs 1 October */
  eFestivalSolarPeaceMemorialDay = 2005,   /**< Cht 28 February */
  eFestivalSolarNationalDayCht = 2006,     /**< Cht 10 October */

  /* Korean */
  eFestivalSolarIndependenceMovementDay = 3000,  /**< 1 March */
  eFestivalSolarChildrensDayKor = 3001,          /**< 5 May */
  eFestivalSolarMemorialDayKor = 3002,           /**< 6 June */
  eFestivalSolarLiberationDayKor = 3003,         /**< 15 August */
  eFestivalSolarNationalFoundationDayKor = 3004, /**< 3 October */
  eFestivalSolarHangulDay = 3005,                /**< 9 October */
  eFestivalSolarChristmasKor = 3006,             /**< 25 December, before the common one */

  /* United States */
  eFestivalSolarIndependenceDay = 4000,     /**< 4 July */
  eFestivalSolarMartinLutherKingDay = 4001, /**< third Monday of January */
  eFestivalSolarLaborDayUsa = 4002,         /**< first Monday of September */
  eFestivalSolarEaster = 4003,              /**< Easter Sunday; see CheckFestivalSolarWithLang() */
  eFestivalSolarGoodFriday = 4004,          /**< the Friday before Easter Sunday */

  /* Japanese */
  eFestivalSolarGanjitsu = 5000,              /**< 1 January, before the common one */
  eFestivalSolarComingOfAgeDay = 5001,        /**< second Monday of January */
  eFestivalSolarFoundationDayJpn = 5002,      /**< 11 February */
  eFestivalSolarHinamatsuri = 5003,           /**< 3 March */
  eFestivalSolarShowaDay = 5004,              /**< 29 April */
  eFestivalSolarConstitutionDayJpn = 5005,    /**< 3 May */
  eFestivalSolarGreeneryDay = 5006,           /**< 4 May */
  eFestivalSolarChildrensDayJpn = 5007,       /**< 5 May */
  eFestivalSolarMarineDay = 5008,             /**< third Monday of July */
  eFestivalSolarRespectForTheAgedDay = 5009,  /**< third Monday of September */
  eFestivalSolarSportsDay = 5010,             /**< second Monday of October */
  eFestivalSolarCultureDay = 5011,            /**< 3 November */
  eFestivalSolarLabourThanksgivingDay = 5012, /**< 23 November, before the common one */
  eFestivalSolarEmperorsBirthday = 5013,      /**< 23 December */

  /* Vietnamese */
  eFestivalSolarReunificationDay = 6000,   /**< 30 April */
  eFestivalSolarHoChiMinhsBirthday = 6001, /**< 19 May */
  eFestivalSolarNationalDayVit = 6002      /**< 2 September */
};

/* ---- Festivals of the lunar calendar --------------------------------------------------------- */

/**
 * Code of a festival of the lunisolar calendar; 0 stands for none. Only the languages named have
 * it. A leap month has no festivals. 20011 is never returned.
 */
typedef int32_t EFestivalLunar;

/** Values of ::EFestivalLunar. */
enum {
  eFestivalLunarNone = 0,
  eFestivalLunarNewYearsDay = 20000,     /**< month 1, day 1: Chs, Cht, Kor, Vit */
  eFestivalLunarLanternFestival = 20001, /**< month 1, day 15: Chs, Cht, Vit */
  eFestivalLunarDragonBoat = 20002,      /**< month 5, day 5: Chs, Cht, Vit */
  eFestivalLunarDoubleSeventh = 20003,   /**< month 7, day 7: Chs, Cht */
  eFestivalLunarGhostFestival = 20004,   /**< month 7, day 15: Chs, Cht, Vit */
  eFestivalLunarMidAutumn = 20005,       /**< month 8, day 15: Chs, Cht, Kor, Vit */
  eFestivalLunarDoubleNinth = 20006,     /**< month 9, day 9: Chs, Cht, Vit */
  eFestivalLunarLaba = 20007,            /**< month 12, day 8: Chs, Cht */
  eFestivalLunarLittleNewYear = 20008,   /**< month 12, day 23: Chs */
  eFestivalLunarNewYearsEve = 20009,     /**< last day of month 12: Chs, Cht, Vit */
  eFestivalLunarBuddhasBirthday = 20010, /**< month 4, day 8: Kor */
  eFestivalLunarHungKings = 20012        /**< month 3, day 10: Vit */
};

#ifdef __cplusplus
}
#endif

#endif /* ALMARA_ALMARA_TYPES_H_ */
