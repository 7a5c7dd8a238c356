// SPDX-License-Identifier: MIT
// AUTO GENERATED FILE, DO NOT EDIT.
//
// Made from include/almara/ by scripts/interface --write.
import 'almara_bindings.dart';

/// Day of the week, 0 = Sunday to 6 = Saturday.
///
/// A newer library may give codes that are not listed here; they read as
/// [Weekday.unknown].
enum Weekday {
  /// Code 0.
  sunday(eCalendarWeekSunday),

  /// Code 1.
  monday(eCalendarWeekMonday),

  /// Code 2.
  tuesday(eCalendarWeekTuesday),

  /// Code 3.
  wednesday(eCalendarWeekWednesday),

  /// Code 4.
  thursday(eCalendarWeekThursday),

  /// Code 5.
  friday(eCalendarWeekFriday),

  /// Code 6.
  saturday(eCalendarWeekSaturday),

  /// A code that this version of the package does not know.
  unknown(-1);

  const Weekday(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none.
  static Weekday fromCode(int code) => values.firstWhere(
    (each) => each.code == code,
    orElse: () => unknown,
  );
}

/// Kind of a board cell, 1 to 7.
///
/// A newer library may give codes that are not listed here; they read as
/// [CellKind.unknown].
enum CellKind {
  /// Code 1: grid position beyond the last date; its date is 0, 0, 0.
  empty(eCalendarItemEmpty),

  /// Code 2: filler of a month interval (date 0, 0, 0), or a kept-back day,
  /// which only fills the first row (real date, day of week 0).
  blank(eCalendarItemBlank),

  /// Code 3: ordinary day.
  day(eCalendarItemDay),

  /// Code 4: today, not a break day.
  today(eCalendarItemToday),

  /// Code 5: break day, not today.
  breakDay(eCalendarItemBreakDay),

  /// Code 6: today, on a break day.
  todayBreakDay(eCalendarItemTodayBreakDay),

  /// Code 7: first cell of a month interval: year 0, the month that begins
  /// after the interval, day 1.
  monthTitle(eCalendarItemMonthTitle),

  /// A code that this version of the package does not know.
  unknown(-1);

  const CellKind(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none.
  static CellKind fromCode(int code) => values.firstWhere(
    (each) => each.code == code,
    orElse: () => unknown,
  );
}

/// Arrangement of the board. A value outside 1 to 4 gives an empty board.
///
/// A newer library may give codes that are not listed here; they read as
/// [Arrangement.unknown].
enum Arrangement {
  /// Code 1: a fixed number of weeks around the chosen date (default).
  rollingWeeks(eDispMonthRollingWeeks),

  /// Code 2: the month from its first week, at least the wanted rows; none
  /// while a page direction is in force, see GotoPreviousPage().
  rollingTail(eDispMonthRollingTail),

  /// Code 3: exactly the weeks that hold a day of the month.
  wholeMonth(eDispMonthWholeMonth),

  /// Code 4: one row of consecutive days, the chosen one in the middle.
  dayStrip(eDispMonthDayStrip),

  /// A code that this version of the package does not know.
  unknown(-1);

  const Arrangement(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none.
  static Arrangement fromCode(int code) => values.firstWhere(
    (each) => each.code == code,
    orElse: () => unknown,
  );
}

/// Rule for week numbers. Weeks begin on Monday in all of them.
///
/// A newer library may give codes that are not listed here; they read as
/// [WeekNumberRule.unknown].
enum WeekNumberRule {
  /// Code 0: the week that holds 1 January is week 1.
  fromJan1(eWeekNumberCalcFromJan1),

  /// Code 1: ISO 8601: week 1 holds the year's first Thursday (default).
  iso8601(eWeekNumberCalcIso8601),

  /// Code 2: as 0, and counted on across the turn of the year from the start
  /// week number on.
  fromStartWeek(eWeekNumberCalcFromStartWeek),

  /// A code that this version of the package does not know.
  unknown(-1);

  const WeekNumberRule(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none.
  static WeekNumberRule fromCode(int code) => values.firstWhere(
    (each) => each.code == code,
    orElse: () => unknown,
  );
}

/// Language region: selects the time zone that InitCalendarLogicDt() fixes and
/// the festivals. Any other value, 0 included, selects no region: common
/// festivals only. "The machine's zone" is taken only where no zone was set
/// before.
///
/// A newer library may give codes that are not listed here; they read as
/// [Region.unknown].
enum Region {
  /// Code 1: Chinese (simplified): UTC+8, lunar festivals.
  chs(eLanguageChs),

  /// Code 2: Korean: UTC+9, lunar festivals.
  kor(eLanguageKor),

  /// Code 3: English (United States): the machine's zone.
  usa(eLanguageUsa),

  /// Code 4: Chinese (traditional): UTC+8, lunar festivals.
  cht(eLanguageCht),

  /// Code 5: Russian: the machine's zone.
  rus(eLanguageRus),

  /// Code 6: German: the machine's zone.
  deu(eLanguageDeu),

  /// Code 7: Japanese: UTC+9.
  jpn(eLanguageJpn),

  /// Code 8: English: the machine's zone.
  eng(eLanguageEng),

  /// Code 9: Vietnamese: the machine's zone, lunar festivals.
  vit(eLanguageVit),

  /// Code 10: Thai: the machine's zone.
  tha(eLanguageTha),

  /// A code that this version of the package does not know.
  unknown(-1);

  const Region(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none.
  static Region fromCode(int code) => values.firstWhere(
    (each) => each.code == code,
    orElse: () => unknown,
  );
}

/// One of the 24 solar terms, in the order of the calendar year: term i falls
/// on the day on which the Sun's apparent longitude reaches (285 + 15 * i) mod
/// 360 degrees.
///
/// A newer library may give codes that are not listed here; they read as
/// [SolarTerm.unknown].
enum SolarTerm {
  /// Code 0: 285 degrees, about 5 January.
  minorCold(eSekkiMinorCold),

  /// Code 1: 300 degrees, about 20 January.
  majorCold(eSekkiMajorCold),

  /// Code 2: 315 degrees, about 4 February.
  startOfSpring(eSekkiStartOfSpring),

  /// Code 3: 330 degrees, about 19 February.
  rainWater(eSekkiRainWater),

  /// Code 4: 345 degrees, about 5 March.
  awakeningOfInsects(eSekkiAwakeningOfInsects),

  /// Code 5: 0 degrees, about 20 March.
  springEquinox(eSekkiSpringEquinox),

  /// Code 6: 15 degrees, about 5 April.
  clearAndBright(eSekkiClearAndBright),

  /// Code 7: 30 degrees, about 20 April.
  grainRain(eSekkiGrainRain),

  /// Code 8: 45 degrees, about 5 May.
  startOfSummer(eSekkiStartOfSummer),

  /// Code 9: 60 degrees, about 21 May.
  grainBuds(eSekkiGrainBuds),

  /// Code 10: 75 degrees, about 6 June.
  grainInEar(eSekkiGrainInEar),

  /// Code 11: 90 degrees, about 21 June.
  summerSolstice(eSekkiSummerSolstice),

  /// Code 12: 105 degrees, about 7 July.
  minorHeat(eSekkiMinorHeat),

  /// Code 13: 120 degrees, about 23 July.
  majorHeat(eSekkiMajorHeat),

  /// Code 14: 135 degrees, about 7 August.
  startOfAutumn(eSekkiStartOfAutumn),

  /// Code 15: 150 degrees, about 23 August.
  endOfHeat(eSekkiEndOfHeat),

  /// Code 16: 165 degrees, about 7 September.
  whiteDew(eSekkiWhiteDew),

  /// Code 17: 180 degrees, about 23 September.
  autumnEquinox(eSekkiAutumnEquinox),

  /// Code 18: 195 degrees, about 8 October.
  coldDew(eSekkiColdDew),

  /// Code 19: 210 degrees, about 23 October.
  frostsDescent(eSekkiFrostsDescent),

  /// Code 20: 225 degrees, about 7 November.
  startOfWinter(eSekkiStartOfWinter),

  /// Code 21: 240 degrees, about 22 November.
  minorSnow(eSekkiMinorSnow),

  /// Code 22: 255 degrees, about 7 December.
  majorSnow(eSekkiMajorSnow),

  /// Code 23: 270 degrees, about 21 December.
  winterSolstice(eSekkiWinterSolstice),

  /// A code that this version of the package does not know.
  unknown(-1);

  const SolarTerm(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none. Null
  /// for -1, which stands for no value.
  static SolarTerm? fromCode(int code) => code == eSekkiNone
      ? null
      : values.firstWhere((each) => each.code == code, orElse: () => unknown);
}

/// Code of a festival of the Gregorian calendar. almara_names.h has names.
///
/// A newer library may give codes that are not listed here; they read as
/// [SolarFestival.unknown].
enum SolarFestival {
  /// Code 1000: 1 January.
  newYearsDay(eFestivalSolarNewYearsDay),

  /// Code 1001: 8 March.
  womensDay(eFestivalSolarWomensDay),

  /// Code 1002: 1 April.
  aprilFoolsDay(eFestivalSolarAprilFoolsDay),

  /// Code 1003: 7 April, World Health Day.
  healthDay(eFestivalSolarHealthDay),

  /// Code 1004: 22 April.
  earthDay(eFestivalSolarEarthDay),

  /// Code 1005: 1 May.
  labourDay(eFestivalSolarLabourDay),

  /// Code 1006: Chs, Rus, Deu, Vit 1 June; Deu also 20 September; Cht 4 April;
  /// Usa first Sunday of June; Eng 14 July; Tha second Saturday of January.
  childrensDay(eFestivalSolarChildrensDay),

  /// Code 1007: 31 May, World No-Tobacco Day.
  noTobaccoDay(eFestivalSolarNoTobaccoDay),

  /// Code 1008: 31 October.
  halloween(eFestivalSolarHalloween),

  /// Code 1009: fourth Thursday of November.
  thanksgiving(eFestivalSolarThanksgiving),

  /// Code 1010: 24 December.
  christmasEve(eFestivalSolarChristmasEve),

  /// Code 1011: 25 December.
  christmasDay(eFestivalSolarChristmasDay),

  /// Code 1012: 31 December.
  newYearsEve(eFestivalSolarNewYearsEve),

  /// Code 1013: Chs, Cht 12 March; Kor 5 April.
  arborDay(eFestivalSolarArborDay),

  /// Code 1014: Chs, Cht 14 February.
  valentinesDay(eFestivalSolarValentinesDay),

  /// Code 1015: Chs, Cht second Sunday of May.
  mothersDay(eFestivalSolarMothersDay),

  /// Code 1016: Chs third Sunday of June; Cht 8 August.
  fathersDay(eFestivalSolarFathersDay),

  /// Code 1017: Chs 10 September; Cht 28 September.
  teachersDay(eFestivalSolarTeachersDay),

  /// Code 2000: Chs 15 March.
  consumerRightsDay(eFestivalSolarConsumerRightsDay),

  /// Code 2001: Chs 4 May.
  youthDay(eFestivalSolarYouthDay),

  /// Code 2002: Chs 1 July.
  partyFoundationDay(eFestivalSolarPartyFoundationDay),

  /// Code 2003: Chs 1 August.
  armyDay(eFestivalSolarArmyDay),

  /// Code 2004: Chs 1 October.
  nationalDayChs(eFestivalSolarNationalDayChs),

  /// Code 2005: Cht 28 February.
  peaceMemorialDay(eFestivalSolarPeaceMemorialDay),

  /// Code 2006: Cht 10 October.
  nationalDayCht(eFestivalSolarNationalDayCht),

  /// Code 3000: 1 March.
  independenceMovementDay(eFestivalSolarIndependenceMovementDay),

  /// Code 3001: 5 May.
  childrensDayKor(eFestivalSolarChildrensDayKor),

  /// Code 3002: 6 June.
  memorialDayKor(eFestivalSolarMemorialDayKor),

  /// Code 3003: 15 August.
  liberationDayKor(eFestivalSolarLiberationDayKor),

  /// Code 3004: 3 October.
  nationalFoundationDayKor(eFestivalSolarNationalFoundationDayKor),

  /// Code 3005: 9 October.
  hangulDay(eFestivalSolarHangulDay),

  /// Code 3006: 25 December, before the common one.
  christmasKor(eFestivalSolarChristmasKor),

  /// Code 4000: 4 July.
  independenceDay(eFestivalSolarIndependenceDay),

  /// Code 4001: third Monday of January.
  martinLutherKingDay(eFestivalSolarMartinLutherKingDay),

  /// Code 4002: first Monday of September.
  laborDayUsa(eFestivalSolarLaborDayUsa),

  /// Code 4003: Easter Sunday; see CheckFestivalSolarWithLang().
  easter(eFestivalSolarEaster),

  /// Code 4004: the Friday before Easter Sunday.
  goodFriday(eFestivalSolarGoodFriday),

  /// Code 5000: 1 January, before the common one.
  ganjitsu(eFestivalSolarGanjitsu),

  /// Code 5001: second Monday of January.
  comingOfAgeDay(eFestivalSolarComingOfAgeDay),

  /// Code 5002: 11 February.
  foundationDayJpn(eFestivalSolarFoundationDayJpn),

  /// Code 5003: 3 March.
  hinamatsuri(eFestivalSolarHinamatsuri),

  /// Code 5004: 29 April.
  showaDay(eFestivalSolarShowaDay),

  /// Code 5005: 3 May.
  constitutionDayJpn(eFestivalSolarConstitutionDayJpn),

  /// Code 5006: 4 May.
  greeneryDay(eFestivalSolarGreeneryDay),

  /// Code 5007: 5 May.
  childrensDayJpn(eFestivalSolarChildrensDayJpn),

  /// Code 5008: third Monday of July.
  marineDay(eFestivalSolarMarineDay),

  /// Code 5009: third Monday of September.
  respectForTheAgedDay(eFestivalSolarRespectForTheAgedDay),

  /// Code 5010: second Monday of October.
  sportsDay(eFestivalSolarSportsDay),

  /// Code 5011: 3 November.
  cultureDay(eFestivalSolarCultureDay),

  /// Code 5012: 23 November, before the common one.
  labourThanksgivingDay(eFestivalSolarLabourThanksgivingDay),

  /// Code 5013: 23 December.
  emperorsBirthday(eFestivalSolarEmperorsBirthday),

  /// Code 6000: 30 April.
  reunificationDay(eFestivalSolarReunificationDay),

  /// Code 6001: 19 May.
  hoChiMinhsBirthday(eFestivalSolarHoChiMinhsBirthday),

  /// Code 6002: 2 September.
  nationalDayVit(eFestivalSolarNationalDayVit),

  /// A code that this version of the package does not know.
  unknown(-1);

  const SolarFestival(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none. Null
  /// for 0, which stands for no value.
  static SolarFestival? fromCode(int code) => code == eFestivalSolarNone
      ? null
      : values.firstWhere((each) => each.code == code, orElse: () => unknown);
}

/// Code of a festival of the lunisolar calendar. Only the languages named have
/// it. A leap month has no festivals. 20011 is never returned.
///
/// A newer library may give codes that are not listed here; they read as
/// [LunarFestival.unknown].
enum LunarFestival {
  /// Code 20000: month 1, day 1: Chs, Cht, Kor, Vit.
  newYearsDay(eFestivalLunarNewYearsDay),

  /// Code 20001: month 1, day 15: Chs, Cht, Vit.
  lanternFestival(eFestivalLunarLanternFestival),

  /// Code 20002: month 5, day 5: Chs, Cht, Vit.
  dragonBoat(eFestivalLunarDragonBoat),

  /// Code 20003: month 7, day 7: Chs, Cht.
  doubleSeventh(eFestivalLunarDoubleSeventh),

  /// Code 20004: month 7, day 15: Chs, Cht, Vit.
  ghostFestival(eFestivalLunarGhostFestival),

  /// Code 20005: month 8, day 15: Chs, Cht, Kor, Vit.
  midAutumn(eFestivalLunarMidAutumn),

  /// Code 20006: month 9, day 9: Chs, Cht, Vit.
  doubleNinth(eFestivalLunarDoubleNinth),

  /// Code 20007: month 12, day 8: Chs, Cht.
  laba(eFestivalLunarLaba),

  /// Code 20008: month 12, day 23: Chs.
  littleNewYear(eFestivalLunarLittleNewYear),

  /// Code 20009: last day of month 12: Chs, Cht, Vit.
  newYearsEve(eFestivalLunarNewYearsEve),

  /// Code 20010: month 4, day 8: Kor.
  buddhasBirthday(eFestivalLunarBuddhasBirthday),

  /// Code 20012: month 3, day 10: Vit.
  hungKings(eFestivalLunarHungKings),

  /// A code that this version of the package does not know.
  unknown(-1);

  const LunarFestival(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

  /// The value of a [code] of the C interface, [unknown] if there is none. Null
  /// for 0, which stands for no value.
  static LunarFestival? fromCode(int code) => code == eFestivalLunarNone
      ? null
      : values.firstWhere((each) => each.code == code, orElse: () => unknown);
}
