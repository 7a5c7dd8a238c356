// SPDX-License-Identifier: MIT
// AUTO GENERATED FILE, DO NOT EDIT.
//
// Made from include/almara/ by scripts/interface --write.
// ignore_for_file: type=lint, unused_import, unused_element
import 'dart:ffi' as ffi;

/// The exported functions of the almara calendar engine.
class AlmaraBindings {
  /// Holds the symbol lookup function.
  final ffi.Pointer<T> Function<T extends ffi.NativeType>(String symbolName)
  _lookup;

  /// The symbols are looked up in [dynamicLibrary].
  AlmaraBindings(ffi.DynamicLibrary dynamicLibrary)
    : _lookup = dynamicLibrary.lookup;

  /// The symbols are looked up with [lookup].
  AlmaraBindings.fromLookup(
    ffi.Pointer<T> Function<T extends ffi.NativeType>(String symbolName) lookup,
  ) : _lookup = lookup;

  /// The calendar reckoned in one time for all years.
  ///
  /// @param minutes east of Greenwich, -1080 to 1080 (18 hours); any other value gives eAlmanacNone
  int AlmanacCalendarAtOffset(int minutes) {
    return _AlmanacCalendarAtOffset(minutes);
  }

  late final _AlmanacCalendarAtOffsetPtr =
      _lookup<ffi.NativeFunction<EAlmanacCalendar Function(ffi.Int32)>>(
        'AlmanacCalendarAtOffset',
      );
  late final _AlmanacCalendarAtOffset = _AlmanacCalendarAtOffsetPtr
      .asFunction<int Function(int)>(isLeaf: true);

  /// The calendar of a region's own country: Kor, Jpn and Vit have theirs, every other ::ELanguage and
  /// every other int has China's.
  int AlmanacCalendarOfLanguage(int language) {
    return _AlmanacCalendarOfLanguage(language);
  }

  late final _AlmanacCalendarOfLanguagePtr =
      _lookup<ffi.NativeFunction<EAlmanacCalendar Function(ELanguage)>>(
        'AlmanacCalendarOfLanguage',
      );
  late final _AlmanacCalendarOfLanguage = _AlmanacCalendarOfLanguagePtr
      .asFunction<int Function(int)>(isLeaf: true);

  /// Days of a lunar month, 29 or 30.
  ///
  /// @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
  /// @param year 1900 to 2099, and 1899 for a month that reaches into 1900
  /// @param month 1 to 12
  /// @param leap 1 for the leap month of this number, 0 for the plain one
  /// @return 0 for a month that there is not
  int AlmanacDaysOfMonth(int calendar, int year, int month, int leap) {
    return _AlmanacDaysOfMonth(calendar, year, month, leap);
  }

  late final _AlmanacDaysOfMonthPtr =
      _lookup<
        ffi.NativeFunction<
          ffi.Int32 Function(EAlmanacCalendar, ffi.Int32, ffi.Int32, ffi.Int32)
        >
      >('AlmanacDaysOfMonth');
  late final _AlmanacDaysOfMonth = _AlmanacDaysOfMonthPtr
      .asFunction<int Function(int, int, int, int)>(isLeaf: true);

  /// Days of a lunar year 1900 to 2099: 353 to 355, or 383 to 385 with a leap month; else 0.
  int AlmanacDaysOfYear(int calendar, int year) {
    return _AlmanacDaysOfYear(calendar, year);
  }

  late final _AlmanacDaysOfYearPtr =
      _lookup<
        ffi.NativeFunction<ffi.Int32 Function(EAlmanacCalendar, ffi.Int32)>
      >('AlmanacDaysOfYear');
  late final _AlmanacDaysOfYear = _AlmanacDaysOfYearPtr
      .asFunction<int Function(int, int)>(isLeaf: true);

  /// Lunar new year's day of a year 1900 to 2099, with its day of the week; else all zeroes.
  CCalendarSolarDate AlmanacFirstDayOfYear(int calendar, int year) {
    return _AlmanacFirstDayOfYear(calendar, year);
  }

  late final _AlmanacFirstDayOfYearPtr =
      _lookup<
        ffi.NativeFunction<
          CCalendarSolarDate Function(EAlmanacCalendar, ffi.Int32)
        >
      >('AlmanacFirstDayOfYear');
  late final _AlmanacFirstDayOfYear = _AlmanacFirstDayOfYearPtr
      .asFunction<CCalendarSolarDate Function(int, int)>(isLeaf: true);

  /// The month 1 to 12 that a lunar year 1900 to 2099 has twice, the second time as a leap month; 0
  /// for a year without one and outside these years.
  int AlmanacLeapMonth(int calendar, int year) {
    return _AlmanacLeapMonth(calendar, year);
  }

  late final _AlmanacLeapMonthPtr =
      _lookup<
        ffi.NativeFunction<ffi.Int32 Function(EAlmanacCalendar, ffi.Int32)>
      >('AlmanacLeapMonth');
  late final _AlmanacLeapMonth = _AlmanacLeapMonthPtr
      .asFunction<int Function(int, int)>(isLeaf: true);

  /// The lunar date of a Gregorian date.
  ///
  /// @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
  /// @param date 1900-01-01 to 2099-12-31; its day of the week is not read
  /// @return the lunar date, of the lunar years 1899 (its end) to 2099; all zeroes outside the span
  /// and for a date that does not exist
  ///
  /// 2033-12-22 is {2033, 11, 1, 0, 1} in China, a leap month 11; 2024-02-10 is {2024, 1, 1, 0, 0}.
  CCalendarLunarDate AlmanacLunarDate(int calendar, CCalendarSolarDate date) {
    return _AlmanacLunarDate(calendar, date);
  }

  late final _AlmanacLunarDatePtr =
      _lookup<
        ffi.NativeFunction<
          CCalendarLunarDate Function(EAlmanacCalendar, CCalendarSolarDate)
        >
      >('AlmanacLunarDate');
  late final _AlmanacLunarDate = _AlmanacLunarDatePtr
      .asFunction<CCalendarLunarDate Function(int, CCalendarSolarDate)>(
        isLeaf: true,
      );

  /// The lunar festival of a Gregorian date, by the rules of CheckFestivalLunarWithLang() and the
  /// dates of AlmanacLunarDate().
  ///
  /// @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
  /// @param language ::ELanguage, whose festivals; the calendar need not be that region's
  /// @param date 1900-01-01 to 2099-12-31; its day of the week is not read
  /// @return ::EFestivalLunar; 0 for none, outside the span, and for a date that does not exist
  int AlmanacLunarFestival(
    int calendar,
    int language,
    CCalendarSolarDate date,
  ) {
    return _AlmanacLunarFestival(calendar, language, date);
  }

  late final _AlmanacLunarFestivalPtr =
      _lookup<
        ffi.NativeFunction<
          EFestivalLunar Function(
            EAlmanacCalendar,
            ELanguage,
            CCalendarSolarDate,
          )
        >
      >('AlmanacLunarFestival');
  late final _AlmanacLunarFestival = _AlmanacLunarFestivalPtr
      .asFunction<int Function(int, int, CCalendarSolarDate)>(isLeaf: true);

  /// Months of a lunar year 1900 to 2099: 12, or 13 with a leap month; else 0.
  int AlmanacMonthsOfYear(int calendar, int year) {
    return _AlmanacMonthsOfYear(calendar, year);
  }

  late final _AlmanacMonthsOfYearPtr =
      _lookup<
        ffi.NativeFunction<ffi.Int32 Function(EAlmanacCalendar, ffi.Int32)>
      >('AlmanacMonthsOfYear');
  late final _AlmanacMonthsOfYear = _AlmanacMonthsOfYearPtr
      .asFunction<int Function(int, int)>(isLeaf: true);

  /// The new moon that begins a lunar month; arguments as for AlmanacDaysOfMonth(). All zeroes for a
  /// month that there is not. If its day is not certain, no day of the month is.
  AlmanacInstant AlmanacNewMoonOfMonth(
    int calendar,
    int year,
    int month,
    int leap,
  ) {
    return _AlmanacNewMoonOfMonth(calendar, year, month, leap);
  }

  late final _AlmanacNewMoonOfMonthPtr =
      _lookup<
        ffi.NativeFunction<
          AlmanacInstant Function(
            EAlmanacCalendar,
            ffi.Int32,
            ffi.Int32,
            ffi.Int32,
          )
        >
      >('AlmanacNewMoonOfMonth');
  late final _AlmanacNewMoonOfMonth = _AlmanacNewMoonOfMonthPtr
      .asFunction<AlmanacInstant Function(int, int, int, int)>(isLeaf: true);

  /// A new moon of a Gregorian year.
  ///
  /// @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
  /// @param year 1900 to 2099
  /// @param index 0 for the first one of the year, to 11 or 12 for the last
  /// @return all zeroes where the year has no such new moon
  ///
  /// The uncertainty is that of AlmanacTermInstant() with 6 seconds for the table.
  AlmanacInstant AlmanacNewMoonOfYear(int calendar, int year, int index) {
    return _AlmanacNewMoonOfYear(calendar, year, index);
  }

  late final _AlmanacNewMoonOfYearPtr =
      _lookup<
        ffi.NativeFunction<
          AlmanacInstant Function(EAlmanacCalendar, ffi.Int32, ffi.Int32)
        >
      >('AlmanacNewMoonOfYear');
  late final _AlmanacNewMoonOfYear = _AlmanacNewMoonOfYearPtr
      .asFunction<AlmanacInstant Function(int, int, int)>(isLeaf: true);

  /// The first anniversary of a lunar month and day on or after a Gregorian date.
  ///
  /// A date in a leap month falls in the leap month of the years that have the same one, and in the
  /// plain month of the same number in the others. Day 30 falls on day 29 where the month is short.
  /// The rules turn off either, so that such a year has no anniversary.
  ///
  /// @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
  /// @param date month 1 to 12, day 1 to 30, leap 0 or 1; `year` and `reserved` are not read
  /// @param from 1900-01-01 to 2099-12-31; its day of the week is not read
  /// @param rules ::EAlmanacAnniversary
  /// @return the date with its day of the week. All zeroes where none follows to the end of 2099, and
  ///     for arguments outside these ranges.
  ///
  /// To list more of them, ask again from the day after.
  CCalendarSolarDate AlmanacNextAnniversary(
    int calendar,
    CCalendarLunarDate date,
    CCalendarSolarDate from,
    int rules,
  ) {
    return _AlmanacNextAnniversary(calendar, date, from, rules);
  }

  late final _AlmanacNextAnniversaryPtr =
      _lookup<
        ffi.NativeFunction<
          CCalendarSolarDate Function(
            EAlmanacCalendar,
            CCalendarLunarDate,
            CCalendarSolarDate,
            EAlmanacAnniversary,
          )
        >
      >('AlmanacNextAnniversary');
  late final _AlmanacNextAnniversary = _AlmanacNextAnniversaryPtr
      .asFunction<
        CCalendarSolarDate Function(
          int,
          CCalendarLunarDate,
          CCalendarSolarDate,
          int,
        )
      >(isLeaf: true);

  /// The Gregorian date of a lunar date: AlmanacLunarDate() turned around.
  ///
  /// @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
  /// @param date year, month 1 to 12, day 1 to 30, leap 0 or 1; `reserved` is not read
  /// @return the date with its day of the week. All zeroes where there is no such day: day 30 of a
  ///     short month, a leap month that the year lacks, a day outside 1900-01-01 to 2099-12-31.
  CCalendarSolarDate AlmanacSolarDate(int calendar, CCalendarLunarDate date) {
    return _AlmanacSolarDate(calendar, date);
  }

  late final _AlmanacSolarDatePtr =
      _lookup<
        ffi.NativeFunction<
          CCalendarSolarDate Function(EAlmanacCalendar, CCalendarLunarDate)
        >
      >('AlmanacSolarDate');
  late final _AlmanacSolarDate = _AlmanacSolarDatePtr
      .asFunction<CCalendarSolarDate Function(int, CCalendarLunarDate)>(
        isLeaf: true,
      );

  /// The instant of a solar term.
  ///
  /// @param calendar ::EAlmanacCalendar; any other value is answered as a date outside the span
  /// @param year 1900 to 2099
  /// @param term ::ESolarKyureki24, 0 to 23
  /// @return a date of that year; all zeroes outside these ranges
  ///
  /// The spring equinox (5) of 2084 is on 2084-03-20 at 00:00:29 in China, uncertain by 80 seconds and
  /// so not certain.
  ///
  /// The uncertainty is 3 seconds for the table, 1 for what is measured of the Earth's rotation, and
  /// from 2023 on three standard errors of its prognosis, rounded up: 365.25 * N * sqrt(N * 0.058 / 3
  /// * (1 + N / 2500)) / 1000 seconds each, N being the years since 2022 (P. J. Huber's formula, given
  /// by F. Espenak and J. Meeus in Five Millennium Canon of Solar Eclipses, NASA/TP-2006-214141).
  AlmanacInstant AlmanacTermInstant(int calendar, int year, int term) {
    return _AlmanacTermInstant(calendar, year, term);
  }

  late final _AlmanacTermInstantPtr =
      _lookup<
        ffi.NativeFunction<
          AlmanacInstant Function(EAlmanacCalendar, ffi.Int32, ESolarKyureki24)
        >
      >('AlmanacTermInstant');
  late final _AlmanacTermInstant = _AlmanacTermInstantPtr
      .asFunction<AlmanacInstant Function(int, int, int)>(isLeaf: true);

  /// The solar term that falls on a Gregorian date 1900-01-01 to 2099-12-31.
  ///
  /// @return ::ESolarKyureki24, 0 to 23; -1 for a date without a term, outside the span, or that does
  ///     not exist
  int AlmanacTermOfDate(int calendar, CCalendarSolarDate date) {
    return _AlmanacTermOfDate(calendar, date);
  }

  late final _AlmanacTermOfDatePtr =
      _lookup<
        ffi.NativeFunction<
          ESolarKyureki24 Function(EAlmanacCalendar, CCalendarSolarDate)
        >
      >('AlmanacTermOfDate');
  late final _AlmanacTermOfDate = _AlmanacTermOfDatePtr
      .asFunction<int Function(int, CCalendarSolarDate)>(isLeaf: true);

  /// As AlmaraFestivalName(), in at most nine cells, as for AlmaraSolarTermBriefName().
  ffi.Pointer<ffi.Char> AlmaraFestivalBriefName(int festival, int language) {
    return _AlmaraFestivalBriefName(festival, language);
  }

  late final _AlmaraFestivalBriefNamePtr =
      _lookup<
        ffi.NativeFunction<ffi.Pointer<ffi.Char> Function(ffi.Int32, ELanguage)>
      >('AlmaraFestivalBriefName');
  late final _AlmaraFestivalBriefName = _AlmaraFestivalBriefNamePtr
      .asFunction<ffi.Pointer<ffi.Char> Function(int, int)>(isLeaf: true);

  /// The name of a festival.
  ///
  /// @param festival ::EFestivalSolar or ::EFestivalLunar, whose codes never coincide
  /// @param language ::ELanguage, whose table
  /// @return NULL for any int that is none of these codes, 0 (no festival) included
  ffi.Pointer<ffi.Char> AlmaraFestivalName(int festival, int language) {
    return _AlmaraFestivalName(festival, language);
  }

  late final _AlmaraFestivalNamePtr =
      _lookup<
        ffi.NativeFunction<ffi.Pointer<ffi.Char> Function(ffi.Int32, ELanguage)>
      >('AlmaraFestivalName');
  late final _AlmaraFestivalName = _AlmaraFestivalNamePtr
      .asFunction<ffi.Pointer<ffi.Char> Function(int, int)>(isLeaf: true);

  /// The name of a region, for a menu: that of its language. With the region itself as language it is
  /// what its speakers call it.
  ///
  /// @param region ::ELanguage, 1 to 10
  /// @param language ::ELanguage, whose table
  /// @return NULL for any other region
  ffi.Pointer<ffi.Char> AlmaraRegionName(int region, int language) {
    return _AlmaraRegionName(region, language);
  }

  late final _AlmaraRegionNamePtr =
      _lookup<
        ffi.NativeFunction<ffi.Pointer<ffi.Char> Function(ELanguage, ELanguage)>
      >('AlmaraRegionName');
  late final _AlmaraRegionName = _AlmaraRegionNamePtr
      .asFunction<ffi.Pointer<ffi.Char> Function(int, int)>(isLeaf: true);

  /// As AlmaraSolarTermName(), in at most nine cells of a terminal (a Chinese character takes two), to
  /// stand under a day: the name itself, or a short form where it is longer.
  ffi.Pointer<ffi.Char> AlmaraSolarTermBriefName(int term, int language) {
    return _AlmaraSolarTermBriefName(term, language);
  }

  late final _AlmaraSolarTermBriefNamePtr =
      _lookup<
        ffi.NativeFunction<
          ffi.Pointer<ffi.Char> Function(ESolarKyureki24, ELanguage)
        >
      >('AlmaraSolarTermBriefName');
  late final _AlmaraSolarTermBriefName = _AlmaraSolarTermBriefNamePtr
      .asFunction<ffi.Pointer<ffi.Char> Function(int, int)>(isLeaf: true);

  /// The name of a solar term.
  ///
  /// @param term ::ESolarKyureki24, 0 to 23
  /// @param language ::ELanguage, whose table
  /// @return NULL for any other term, -1 included
  ffi.Pointer<ffi.Char> AlmaraSolarTermName(int term, int language) {
    return _AlmaraSolarTermName(term, language);
  }

  late final _AlmaraSolarTermNamePtr =
      _lookup<
        ffi.NativeFunction<
          ffi.Pointer<ffi.Char> Function(ESolarKyureki24, ELanguage)
        >
      >('AlmaraSolarTermName');
  late final _AlmaraSolarTermName = _AlmaraSolarTermNamePtr
      .asFunction<ffi.Pointer<ffi.Char> Function(int, int)>(isLeaf: true);

  /// Builds today's board under the options now in force. If the board's date already is today, a
  /// page direction left by GotoPreviousPage(), GotoNextPage() or GotoSpecifiedDate() stays in force,
  /// so that a page keeps its rows when an option changes.
  void Build() {
    return _Build();
  }

  late final _BuildPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function()>>('Build');
  late final _Build = _BuildPtr.asFunction<void Function()>();

  /// The solar term that falls on a Gregorian date.
  ///
  /// @param date years 1800 to 2099
  /// @return ::ESolarKyureki24, 0 to 23; -1 for a date without a term, for a year outside 1800 to 2099
  ///     and for a date that does not exist
  ///
  /// 2024-06-21 is 11, the summer solstice, in UTC+8; in UTC that is 2024-06-20.
  int Check24SekkiWithDate(CCalendarSolarDate date) {
    return _Check24SekkiWithDate(date);
  }

  late final _Check24SekkiWithDatePtr =
      _lookup<ffi.NativeFunction<ESolarKyureki24 Function(CCalendarSolarDate)>>(
        'Check24SekkiWithDate',
      );
  late final _Check24SekkiWithDate = _Check24SekkiWithDatePtr
      .asFunction<int Function(CCalendarSolarDate)>();

  /// The festival of the lunar calendar on a Gregorian date.
  ///
  /// @param language ::ELanguage. Only 1, 2, 4 and 9 have lunar festivals; any other value gives 0.
  ///     The zone is that of the lunar dates, so ask with the language that InitCalendarLogicDt() got.
  /// @param date as for ConverterLunarWithDate(), whose answer decides; it is kept too
  /// @return ::EFestivalLunar, 0 for none. A leap month has no festivals; lunar new year's eve is the
  ///     last day of month 12, whether that is the 29th or the 30th.
  int CheckFestivalLunarWithLang(int language, CCalendarSolarDate date) {
    return _CheckFestivalLunarWithLang(language, date);
  }

  late final _CheckFestivalLunarWithLangPtr =
      _lookup<
        ffi.NativeFunction<
          EFestivalLunar Function(ELanguage, CCalendarSolarDate)
        >
      >('CheckFestivalLunarWithLang');
  late final _CheckFestivalLunarWithLang = _CheckFestivalLunarWithLangPtr
      .asFunction<int Function(int, CCalendarSolarDate)>();

  /// The festival of the Gregorian calendar on a date.
  ///
  /// @param language ::ELanguage. Its region's own festival wins over a common one on the same day: 25
  ///     December is 3006 in Korean and 1011 elsewhere. A value without a region has the common ones.
  /// @param date any year. Festivals on the n-th weekday of a month are found from 1900 to 2099 only.
  /// @return ::EFestivalSolar, 0 for none. A date that does not exist has none; see below for the
  ///     exceptions.
  ///
  /// Easter Sunday (eFestivalSolarEaster, eLanguageUsa) is found only if the last eLanguageUsa date
  /// worked out before was of the same year. Two consequences of answers being kept:
  ///
  /// - the first date of a year may not be Easter Sunday itself, or 0 is kept for it for good. A host
  ///   that asks for whole months in order finds it, since 1 March comes before;
  /// - an answer that is kept is not worked out again: after 2024-01-01, 2025-01-01, 2024-01-01 the
  ///   last year worked out is 2025.
  ///
  /// Good Friday is found at once, except in the years 1 to 31, where it may be another year's. The
  /// first eLanguageUsa date of a year, if it has month 0 and day 0, gives 4003, and before year 1 the
  /// rule of Easter may give a 30 or 31 February.
  int CheckFestivalSolarWithLang(int language, CCalendarSolarDate date) {
    return _CheckFestivalSolarWithLang(language, date);
  }

  late final _CheckFestivalSolarWithLangPtr =
      _lookup<
        ffi.NativeFunction<
          EFestivalSolar Function(ELanguage, CCalendarSolarDate)
        >
      >('CheckFestivalSolarWithLang');
  late final _CheckFestivalSolarWithLang = _CheckFestivalSolarWithLangPtr
      .asFunction<int Function(int, CCalendarSolarDate)>();

  /// The lunar date of a Gregorian date: the Chinese lunisolar calendar in the zone now in force.
  ///
  /// @param date meant for 1900 to 2099. Any other year is converted by the same series, which grow
  ///     worse with the distance: some ten thousand years away the day may lie outside its range, from
  ///     about a million years away there may be no answer, and more than 5.88 million years away
  ///     there is none.
  /// @return the lunar date; all zeroes for no answer.
  ///     - year: the Gregorian year in which the lunar year began
  ///     - month: 1 to 12
  ///     - day: 1 to 30
  ///     - leap: 1 in a leap month, which has the number of the month before it
  ///
  /// 2024-02-10 is {2024, 1, 1, 0, 0} in UTC+8, the lunar new year; 2023-03-22 is {2023, 2, 1, 0, 1}.
  ///
  /// Months are numbered anew from each solstice and equinox, so at a few of these the numbers do not
  /// join: in UTC+8 and UTC+9 the leap month that begins on 2033-12-22 is 11 and follows month 10. The
  /// 30 days from 2017-02-26 on are month 2 in every zone.
  ///
  /// A day that its month does not have counts on from the month's beginning (2023-02-30 is the lunar
  /// date of 2 March); months outside 1 to 12 count on by 30.59 days each, a month below 1 first as
  /// that month of the year before plus 12. The lunar year is right for them as well.
  CCalendarLunarDate ConverterLunarWithDate(CCalendarSolarDate date) {
    return _ConverterLunarWithDate(date);
  }

  late final _ConverterLunarWithDatePtr =
      _lookup<
        ffi.NativeFunction<CCalendarLunarDate Function(CCalendarSolarDate)>
      >('ConverterLunarWithDate');
  late final _ConverterLunarWithDate = _ConverterLunarWithDatePtr
      .asFunction<CCalendarLunarDate Function(CCalendarSolarDate)>();

  /// Returns {year, month, day, week} exactly as given. Nothing is checked: (2024, 2, 30, 9) comes
  /// back as it is.
  CCalendarSolarDate CreateSolarDate(int year, int month, int day, int week) {
    return _CreateSolarDate(year, month, day, week);
  }

  late final _CreateSolarDatePtr =
      _lookup<
        ffi.NativeFunction<
          CCalendarSolarDate Function(
            ffi.Int32,
            ffi.Int32,
            ffi.Int32,
            ffi.Int32,
          )
        >
      >('CreateSolarDate');
  late final _CreateSolarDate = _CreateSolarDatePtr
      .asFunction<CCalendarSolarDate Function(int, int, int, int)>(
        isLeaf: true,
      );

  /// Forgets every kept answer, week numbers included, the year of Easter that
  /// CheckFestivalSolarWithLang() remembers, and the zone: what is asked from here on is answered as
  /// in a process that has just loaded the library. For a change of language at run time, and for a
  /// host whose own side starts afresh. Options and the board stay as they are; call
  /// InitCalendarLogicDt() next, which fixes the zone again. Since 1.1.
  void ForgetAnnotations() {
    return _ForgetAnnotations();
  }

  late final _ForgetAnnotationsPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function()>>('ForgetAnnotations');
  late final _ForgetAnnotations = _ForgetAnnotationsPtr
      .asFunction<void Function()>();

  /// The day of the week to head a visible column with.
  ///
  /// @param column 0 to GetContentColumns() - 1
  /// @return ::ECalendarWeek. In the day strip the weekday of the date shown there, 0 for a column
  /// that is not visible. Otherwise (start day of week + board column) mod 7: for columns from
  ///     GetContentColumns() to 6 the start day of week mod 7, for columns below 0 or above 6 it is 0,
  ///     and with a start day of week below 0, or where the sum wraps, it may be negative.
  int GetCalendarWeekByColumns(int column) {
    return _GetCalendarWeekByColumns(column);
  }

  late final _GetCalendarWeekByColumnsPtr =
      _lookup<ffi.NativeFunction<ECalendarWeek Function(ffi.Int32)>>(
        'GetCalendarWeekByColumns',
      );
  late final _GetCalendarWeekByColumns = _GetCalendarWeekByColumnsPtr
      .asFunction<int Function(int)>(isLeaf: true);

  /// Whether days are counted by the calendar alone; false at load. Since 1.1.
  bool GetCivilDays() {
    return _GetCivilDays();
  }

  late final _GetCivilDaysPtr =
      _lookup<ffi.NativeFunction<ffi.Bool Function()>>('GetCivilDays');
  late final _GetCivilDays = _GetCivilDaysPtr
      .asFunction<bool Function()>(isLeaf: true);

  /// A text that holds every option but SetCivilDays(), so that it changes whenever one does: two
  /// equal keys mean equal options. "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1" by default; the numbers are
  /// the arrangement, rows, columns of the strip, passed weeks, start day of week, start week number,
  /// hide-break-day flag, rule for week numbers, month intervals, in parentheses the break days from
  /// Monday to Sunday, and whether break days are shown.
  ///
  /// @return a new NUL-terminated text that the caller owns and releases with ReleaseText() or the C
  ///     library's free(), or NULL if there is no memory for it
  ffi.Pointer<ffi.Char> GetConfigKey() {
    return _GetConfigKey();
  }

  late final _GetConfigKeyPtr =
      _lookup<ffi.NativeFunction<ffi.Pointer<ffi.Char> Function()>>(
        'GetConfigKey',
      );
  late final _GetConfigKey = _GetConfigKeyPtr
      .asFunction<ffi.Pointer<ffi.Char> Function()>();

  /// Visible columns, 0 to 7; 0 before the first build. A rejected date then makes it 7, without
  /// rows.
  int GetContentColumns() {
    return _GetContentColumns();
  }

  late final _GetContentColumnsPtr =
      _lookup<ffi.NativeFunction<ffi.Int32 Function()>>('GetContentColumns');
  late final _GetContentColumns = _GetContentColumnsPtr
      .asFunction<int Function()>(isLeaf: true);

  /// The date that the board was last built for, exactly as it was asked for (2023-02-31 stays
  /// 2023-02-31); its day of week is always 0. All zeroes before the first build.
  CCalendarSolarDate GetContentDate() {
    return _GetContentDate();
  }

  late final _GetContentDatePtr =
      _lookup<ffi.NativeFunction<CCalendarSolarDate Function()>>(
        'GetContentDate',
      );
  late final _GetContentDate = _GetContentDatePtr
      .asFunction<CCalendarSolarDate Function()>(isLeaf: true);

  /// The cell at a visible row and column.
  ///
  /// @param row 0 to GetContentRows() - 1
  /// @param column 0 to GetContentColumns() - 1
  /// @return the cell; outside these ranges an empty one: date 0, week number -1, row 0, column 0,
  ///     kind 1. Note that the row and column inside the cell count hidden rows and columns too.
  tagCalendarCell GetContentItem(int row, int column) {
    return _GetContentItem(row, column);
  }

  late final _GetContentItemPtr =
      _lookup<
        ffi.NativeFunction<tagCalendarCell Function(ffi.Int32, ffi.Int32)>
      >('GetContentItem');
  late final _GetContentItem = _GetContentItemPtr
      .asFunction<tagCalendarCell Function(int, int)>(isLeaf: true);

  /// Visible rows, 0 to 50; 0 before the first build.
  int GetContentRows() {
    return _GetContentRows();
  }

  late final _GetContentRowsPtr =
      _lookup<ffi.NativeFunction<ffi.Int32 Function()>>('GetContentRows');
  late final _GetContentRows = _GetContentRowsPtr
      .asFunction<int Function()>(isLeaf: true);

  /// The arrangement of the board, ::EDispMonth as it was set; 1 by default.
  int GetDispMonth() {
    return _GetDispMonth();
  }

  late final _GetDispMonthPtr =
      _lookup<ffi.NativeFunction<EDispMonth Function()>>('GetDispMonth');
  late final _GetDispMonth = _GetDispMonthPtr
      .asFunction<int Function()>(isLeaf: true);

  /// The hide-break-day flag; false by default. It is stored and reported only.
  bool GetHideBreakDay() {
    return _GetHideBreakDay();
  }

  late final _GetHideBreakDayPtr =
      _lookup<ffi.NativeFunction<ffi.Bool Function()>>('GetHideBreakDay');
  late final _GetHideBreakDay = _GetHideBreakDayPtr
      .asFunction<bool Function()>(isLeaf: true);

  /// The version of the library that was loaded, for example "1.1.0"; the macros above are those of
  /// the header a host was built with. A static text, never to be freed. Since 1.1.
  ffi.Pointer<ffi.Char> GetLibraryVersion() {
    return _GetLibraryVersion();
  }

  late final _GetLibraryVersionPtr =
      _lookup<ffi.NativeFunction<ffi.Pointer<ffi.Char> Function()>>(
        'GetLibraryVersion',
      );
  late final _GetLibraryVersion = _GetLibraryVersionPtr
      .asFunction<ffi.Pointer<ffi.Char> Function()>(isLeaf: true);

  /// Week rows of arrangements 1 and 2; 5 by default.
  int GetMaxRow() {
    return _GetMaxRow();
  }

  late final _GetMaxRowPtr =
      _lookup<ffi.NativeFunction<ffi.Int32 Function()>>('GetMaxRow');
  late final _GetMaxRow = _GetMaxRowPtr
      .asFunction<int Function()>(isLeaf: true);

  /// Whole weeks shown before the week of the date in arrangement 1; 1 by default.
  int GetPassedWeeks() {
    return _GetPassedWeeks();
  }

  late final _GetPassedWeeksPtr =
      _lookup<ffi.NativeFunction<ffi.Int32 Function()>>('GetPassedWeeks');
  late final _GetPassedWeeks = _GetPassedWeeksPtr
      .asFunction<int Function()>(isLeaf: true);

  /// Whether builds and GotoTodayOffset() write to the standard output. Since 1.1.
  bool GetPrintBoard() {
    return _GetPrintBoard();
  }

  late final _GetPrintBoardPtr =
      _lookup<ffi.NativeFunction<ffi.Bool Function()>>('GetPrintBoard');
  late final _GetPrintBoard = _GetPrintBoardPtr
      .asFunction<bool Function()>(isLeaf: true);

  /// Whether break-day columns are shown; true by default.
  bool GetShowBreakDayOfWeek() {
    return _GetShowBreakDayOfWeek();
  }

  late final _GetShowBreakDayOfWeekPtr =
      _lookup<ffi.NativeFunction<ffi.Bool Function()>>('GetShowBreakDayOfWeek');
  late final _GetShowBreakDayOfWeek = _GetShowBreakDayOfWeekPtr
      .asFunction<bool Function()>(isLeaf: true);

  /// The hide-break-day flag, the same as GetHideBreakDay(), not what SetShowMonthInterval() wrote:
  /// that flag can be read back through GetConfigKey() only.
  bool GetShowMonthInterval() {
    return _GetShowMonthInterval();
  }

  late final _GetShowMonthIntervalPtr =
      _lookup<ffi.NativeFunction<ffi.Bool Function()>>('GetShowMonthInterval');
  late final _GetShowMonthInterval = _GetShowMonthIntervalPtr
      .asFunction<bool Function()>(isLeaf: true);

  /// The day of the week in the first column, ::ECalendarWeek as it was set; 1 (Monday) by default.
  int GetStartDayOfWeek() {
    return _GetStartDayOfWeek();
  }

  late final _GetStartDayOfWeekPtr =
      _lookup<ffi.NativeFunction<ECalendarWeek Function()>>(
        'GetStartDayOfWeek',
      );
  late final _GetStartDayOfWeek = _GetStartDayOfWeekPtr
      .asFunction<int Function()>(isLeaf: true);

  /// The week number that is shown as week 1; 1 by default.
  int GetStartWeekNumber() {
    return _GetStartWeekNumber();
  }

  late final _GetStartWeekNumberPtr =
      _lookup<ffi.NativeFunction<ffi.Int32 Function()>>('GetStartWeekNumber');
  late final _GetStartWeekNumber = _GetStartWeekNumberPtr
      .asFunction<int Function()>(isLeaf: true);

  /// Today's date in the machine's zone, with its day of week. Does not touch the board.
  CCalendarSolarDate GetToday() {
    return _GetToday();
  }

  late final _GetTodayPtr =
      _lookup<ffi.NativeFunction<CCalendarSolarDate Function()>>('GetToday');
  late final _GetToday = _GetTodayPtr
      .asFunction<CCalendarSolarDate Function()>();

  /// The rule for week numbers, ::EWeekNumberCalc as it was set; 1 (ISO 8601) by default.
  int GetWeekNumberCalcType() {
    return _GetWeekNumberCalcType();
  }

  late final _GetWeekNumberCalcTypePtr =
      _lookup<ffi.NativeFunction<EWeekNumberCalc Function()>>(
        'GetWeekNumberCalcType',
      );
  late final _GetWeekNumberCalcType = _GetWeekNumberCalcTypePtr
      .asFunction<int Function()>(isLeaf: true);

  /// Number of spans in the week-number column; 0 before the first build.
  int GetWeekNumberCount() {
    return _GetWeekNumberCount();
  }

  late final _GetWeekNumberCountPtr =
      _lookup<ffi.NativeFunction<ffi.Int32 Function()>>('GetWeekNumberCount');
  late final _GetWeekNumberCount = _GetWeekNumberCountPtr
      .asFunction<int Function()>(isLeaf: true);

  /// One span of the week-number column, from the top.
  ///
  /// @param index 0 to GetWeekNumberCount() - 1; any other gives {0, 0, 0}
  tagWeekNumberSpan GetWeekNumberItemWithIndex(int index) {
    return _GetWeekNumberItemWithIndex(index);
  }

  late final _GetWeekNumberItemWithIndexPtr =
      _lookup<ffi.NativeFunction<tagWeekNumberSpan Function(ffi.Int32)>>(
        'GetWeekNumberItemWithIndex',
      );
  late final _GetWeekNumberItemWithIndex = _GetWeekNumberItemWithIndexPtr
      .asFunction<tagWeekNumberSpan Function(int)>(isLeaf: true);

  /// Pages forward: to the 1st of the month after the board's date, to a strip that begins with the
  /// day after the last one shown, or to rolling weeks whose first row is that day's week; earlier
  /// days of that week are blank if month intervals are on, otherwise shown. At the end of 2099 the
  /// dates of the board stay as they are. Otherwise as GotoPreviousPage().
  void GotoNextPage() {
    return _GotoNextPage();
  }

  late final _GotoNextPagePtr =
      _lookup<ffi.NativeFunction<ffi.Void Function()>>('GotoNextPage');
  late final _GotoNextPage = _GotoNextPagePtr.asFunction<void Function()>();

  /// Pages backward. In the month arrangements (::EDispMonth 2 and 3) to the 1st of the month before
  /// the board's date; in the day strip to a board that ends with the day before the first one shown;
  /// in rolling weeks to one whose last row is that day's week. Before the first build, and at the
  /// start of 1900, the dates of the board stay as they are.
  ///
  /// Outside the month arrangements this sets the page direction, even at the start of 1900. It stays
  /// in force until another navigation sets or clears it, also when the arrangement is changed. Under
  /// a page direction arrangement 2 has no rows, and arrangement 3 may begin after the 1st of the
  /// month. It is cleared by GotoToday(), by InitCalendarLogicDt(), by GotoSpecifiedDate() with a date
  /// on the board (outside arrangement 3), and by GotoTodayOffset() (outside arrangement 3).
  void GotoPreviousPage() {
    return _GotoPreviousPage();
  }

  late final _GotoPreviousPagePtr =
      _lookup<ffi.NativeFunction<ffi.Void Function()>>('GotoPreviousPage');
  late final _GotoPreviousPage = _GotoPreviousPagePtr
      .asFunction<void Function()>();

  /// Builds the board of a date. Outside the whole-month arrangement, a date before the first day
  /// shown or after the last one is reached as if by paging, and sets the page direction: in the day
  /// strip it becomes the last or the first day, in rolling weeks its week the last or the first row,
  /// and arrangement 2 then has no rows. On an empty board every date counts as one after the last
  /// day. A date within the board clears the page direction. The whole-month arrangement leaves the
  /// page direction as it is.
  ///
  /// @param year 1900 to 2099
  /// @param month 1 to 12
  /// @param day 1 to 31; a day that the month does not have counts on into the next month (31 April
  ///     is 1 May)
  ///
  /// All three 0 build today's board, as GotoToday() does. Any other value leaves the dates of the
  /// board as they were (they are written to the standard output again), yet outside the whole-month
  /// arrangement sets the page direction all the same.
  void GotoSpecifiedDate(int year, int month, int day) {
    return _GotoSpecifiedDate(year, month, day);
  }

  late final _GotoSpecifiedDatePtr =
      _lookup<
        ffi.NativeFunction<ffi.Void Function(ffi.Int32, ffi.Int32, ffi.Int32)>
      >('GotoSpecifiedDate');
  late final _GotoSpecifiedDate = _GotoSpecifiedDatePtr
      .asFunction<void Function(int, int, int)>();

  /// Builds today's board, as a plain build without a page direction.
  void GotoToday() {
    return _GotoToday();
  }

  late final _GotoTodayPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function()>>('GotoToday');
  late final _GotoToday = _GotoTodayPtr.asFunction<void Function()>();

  /// Builds the board some pages away from today.
  ///
  /// @param offset in the whole-month arrangement, months from this month (negative: before it), on
  ///     today's day of the month or the month's last day if it is shorter. In every other
  ///     arrangement, pages of GetMaxRow() weeks from today. 7 * rows * offset days, and these
  ///     in seconds, are formed in 32-bit wrapping arithmetic: more than 24855 days away the target is
  ///     some other date.
  ///
  /// A target outside 1900 to 2099 leaves the dates of the board as they were. Writes "build-logic
  /// Y-M-D" (whole month: "Y-M-D", the day -1 outside 1900 to 2099) to the standard output, without a
  /// line end.
  void GotoTodayOffset(int offset) {
    return _GotoTodayOffset(offset);
  }

  late final _GotoTodayOffsetPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Int32)>>(
        'GotoTodayOffset',
      );
  late final _GotoTodayOffset = _GotoTodayOffsetPtr
      .asFunction<void Function(int)>();

  /// Fixes the time zone of lunar dates and solar terms and builds today's board.
  ///
  /// @param language ::ELanguage. 1 and 4 set UTC+8, 2 and 7 set UTC+9, whatever zone the machine runs
  ///     in. Any other value leaves the zone as it is; where none was set yet, the machine's own
  ///     offset of this moment is taken, in whole hours and truncated toward zero (UTC-3:30 gives -3).
  ///     GetToday() and every other call that builds a board do the same where no zone was set yet.
  ///
  /// May be called again; the board returns to today. Answers that the annotation functions gave
  /// before keep the zone they were computed with.
  void InitCalendarLogicDt(int language) {
    return _InitCalendarLogicDt(language);
  }

  late final _InitCalendarLogicDtPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Int32)>>(
        'InitCalendarLogicDt',
      );
  late final _InitCalendarLogicDt = _InitCalendarLogicDtPtr
      .asFunction<void Function(int)>();

  /// Whether a day of the week is a break day; false for a value outside 0 to 6.
  bool IsBreakDayOfWeek(int dayOfWeek) {
    return _IsBreakDayOfWeek(dayOfWeek);
  }

  late final _IsBreakDayOfWeekPtr =
      _lookup<ffi.NativeFunction<ffi.Bool Function(ffi.Int32)>>(
        'IsBreakDayOfWeek',
      );
  late final _IsBreakDayOfWeek = _IsBreakDayOfWeekPtr
      .asFunction<bool Function(int)>(isLeaf: true);

  /// Whether the last build put today on the board, hidden columns included. From 2100 on no board of
  /// today can be built, so that the last one stays, with the day that was today then.
  bool IsTodayInBoard() {
    return _IsTodayInBoard();
  }

  late final _IsTodayInBoardPtr =
      _lookup<ffi.NativeFunction<ffi.Bool Function()>>('IsTodayInBoard');
  late final _IsTodayInBoard = _IsTodayInBoardPtr
      .asFunction<bool Function()>(isLeaf: true);

  /// Releases a text that GetConfigKey() returned, for hosts without the C library's free() at hand.
  /// NULL is ignored; any other pointer must come from GetConfigKey() and be released once. Since 1.1.
  void ReleaseText(ffi.Pointer<ffi.Char> text) {
    return _ReleaseText(text);
  }

  late final _ReleaseTextPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Pointer<ffi.Char>)>>(
        'ReleaseText',
      );
  late final _ReleaseText = _ReleaseTextPtr
      .asFunction<void Function(ffi.Pointer<ffi.Char>)>();

  /// Marks a day of the week as break day or takes the mark away. By default Saturday and Sunday are
  /// marked.
  ///
  /// @param dayOfWeek ::ECalendarWeek; a value outside 0 to 6 changes nothing
  /// @param isBreak whether it is to be a break day
  void SetBreakDayOfWeek(int dayOfWeek, bool isBreak) {
    return _SetBreakDayOfWeek(dayOfWeek, isBreak);
  }

  late final _SetBreakDayOfWeekPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Int32, ffi.Bool)>>(
        'SetBreakDayOfWeek',
      );
  late final _SetBreakDayOfWeek = _SetBreakDayOfWeekPtr
      .asFunction<void Function(int, bool)>(isLeaf: true);

  /// Sets whether days are counted by the calendar alone. Switch it on before the first board, unless
  /// a host depends on the boards that are built without it.
  ///
  /// Off, the days of boards, pages, offsets, week numbers and festivals on a weekday are counted as
  /// 86400 seconds of the machine's local time. Wherever a zone set its standard time back, or calls
  /// winter time daylight saving, a board then shows a day twice and each later one under the wrong
  /// weekday: Moscow in October 2014, Almaty in February and March 2024, Dublin every winter. On, all
  /// of them are what they are off in a machine that runs in UTC on the same date; today's date alone
  /// comes from the machine's clock and zone. A board is also built in a fraction of the time.
  ///
  /// A change forgets the kept week numbers and festivals. The board stays until the next build.
  /// Lunar dates and solar terms do not depend on it, and GetConfigKey() does not tell it. Since 1.1.
  void SetCivilDays(bool on) {
    return _SetCivilDays(on);
  }

  late final _SetCivilDaysPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Bool)>>('SetCivilDays');
  late final _SetCivilDays = _SetCivilDaysPtr.asFunction<void Function(bool)>();

  /// Sets the arrangement. Not checked: a value outside 1 to 4 gives boards without rows.
  void SetDispMonth(int mode) {
    return _SetDispMonth(mode);
  }

  late final _SetDispMonthPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(EDispMonth)>>(
        'SetDispMonth',
      );
  late final _SetDispMonth = _SetDispMonthPtr
      .asFunction<void Function(int)>(isLeaf: true);

  /// Sets the hide-break-day flag, which no board reads: use SetShowBreakDayOfWeek() to hide break
  /// days.
  ///
  /// Of this and every other bool argument only the lowest bit of the byte counts, so that a bridge
  /// that hands over 2 has said false.
  void SetHideBreakDay(bool hide) {
    return _SetHideBreakDay(hide);
  }

  late final _SetHideBreakDayPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Bool)>>(
        'SetHideBreakDay',
      );
  late final _SetHideBreakDay = _SetHideBreakDayPtr
      .asFunction<void Function(bool)>(isLeaf: true);

  /// Sets the week rows. Not checked: with 0 or less arrangement 1 has no rows. At most 50 rows become
  /// visible. Useful are 1 to 50; memory and time grow with the value.
  void SetMaxRow(int rows) {
    return _SetMaxRow(rows);
  }

  late final _SetMaxRowPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Int32)>>('SetMaxRow');
  late final _SetMaxRow = _SetMaxRowPtr
      .asFunction<void Function(int)>(isLeaf: true);

  /// Sets the passed weeks. Not checked; useful are 0 to GetMaxRow() - 1.
  void SetPassedWeeks(int weeks) {
    return _SetPassedWeeks(weeks);
  }

  late final _SetPassedWeeksPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Int32)>>(
        'SetPassedWeeks',
      );
  late final _SetPassedWeeks = _SetPassedWeeksPtr
      .asFunction<void Function(int)>(isLeaf: true);

  /// Sets whether builds and GotoTodayOffset() write to the standard output; true by default. Switch
  /// it off unless the text is wanted, before the first board. No part of GetConfigKey(). Since 1.1.
  void SetPrintBoard(bool print) {
    return _SetPrintBoard(print);
  }

  late final _SetPrintBoardPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Bool)>>('SetPrintBoard');
  late final _SetPrintBoard = _SetPrintBoardPtr
      .asFunction<void Function(bool)>(isLeaf: true);

  /// Sets whether break-day columns, and rows left without content, are shown. Columns are hidden by
  /// their place: the start day of week heads the first one. A day strip begins on any weekday, so
  /// there the columns hidden are not those of the break days; do not hide break days in a strip.
  void SetShowBreakDayOfWeek(bool show) {
    return _SetShowBreakDayOfWeek(show);
  }

  late final _SetShowBreakDayOfWeekPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Bool)>>(
        'SetShowBreakDayOfWeek',
      );
  late final _SetShowBreakDayOfWeek = _SetShowBreakDayOfWeekPtr
      .asFunction<void Function(bool)>(isLeaf: true);

  /// Sets whether a month interval of seven cells is inserted before the first day of a month, and
  /// days that only fill the first row are left blank: days before the board's month and, after paging
  /// forward in arrangement 1, days before the board's date. True by default.
  void SetShowMonthInterval(bool show) {
    return _SetShowMonthInterval(show);
  }

  late final _SetShowMonthIntervalPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Bool)>>(
        'SetShowMonthInterval',
      );
  late final _SetShowMonthInterval = _SetShowMonthIntervalPtr
      .asFunction<void Function(bool)>(isLeaf: true);

  /// Sets the day of the week in the first column. Not checked: for a value outside 0 to 6 the dates
  /// are laid out from Monday, while headings and hidden break days count from the value as it is.
  void SetStartDayOfWeek(int day) {
    return _SetStartDayOfWeek(day);
  }

  late final _SetStartDayOfWeekPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ECalendarWeek)>>(
        'SetStartDayOfWeek',
      );
  late final _SetStartDayOfWeek = _SetStartDayOfWeekPtr
      .asFunction<void Function(int)>(isLeaf: true);

  /// Sets the week number that is shown as week 1. Not checked. Useful are 1 to 53; a value of -1 or
  /// less also gives a number to cells that have none.
  void SetStartWeekNumber(int week) {
    return _SetStartWeekNumber(week);
  }

  late final _SetStartWeekNumberPtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(ffi.Int32)>>(
        'SetStartWeekNumber',
      );
  late final _SetStartWeekNumber = _SetStartWeekNumberPtr
      .asFunction<void Function(int)>(isLeaf: true);

  /// Sets the rule for week numbers. Not checked: any value but 1 and 2 counts as 0.
  ///
  /// Without SetCivilDays() all rules but 1 count the seconds of local time since 1 January. From the
  /// day the clocks go forward until they go back, dates come out one day short: in Berlin, 1 April
  /// 2024, a Monday, is still in week 13. The first answer for a date is kept until
  /// ForgetAnnotations().
  void SetWeekNumberCalcType(int type) {
    return _SetWeekNumberCalcType(type);
  }

  late final _SetWeekNumberCalcTypePtr =
      _lookup<ffi.NativeFunction<ffi.Void Function(EWeekNumberCalc)>>(
        'SetWeekNumberCalcType',
      );
  late final _SetWeekNumberCalcType = _SetWeekNumberCalcTypePtr
      .asFunction<void Function(int)>(isLeaf: true);

  /// Returns a + b in 32-bit wrapping arithmetic: 2147483647 + 1 is -2147483648. A host uses it to see
  /// that its bridge works.
  int native_add(int a, int b) {
    return _native_add(a, b);
  }

  late final _native_addPtr =
      _lookup<ffi.NativeFunction<ffi.Int32 Function(ffi.Int32, ffi.Int32)>>(
        'native_add',
      );
  late final _native_add = _native_addPtr
      .asFunction<int Function(int, int)>(isLeaf: true);
}

/// The instant of a new moon or a solar term, as the calendar's clocks show it. All zeroes stands
/// for no answer. 40 bytes.
final class AlmanacInstant extends ffi.Struct {
  /// of the civil date, 1899 to 2100
  @ffi.Int32()
  external int year;

  /// 1 to 12
  @ffi.Int32()
  external int month;

  /// 1 to 31
  @ffi.Int32()
  external int day;

  /// ::ECalendarWeek
  @ffi.Int32()
  external int dayOfWeek;

  /// 0 to 23
  @ffi.Int32()
  external int hour;

  /// 0 to 59
  @ffi.Int32()
  external int minute;

  /// 0 to 59; the second within which it happens, not rounded
  @ffi.Int32()
  external int second;

  /// seconds that these clocks are ahead of universal time (UT1, which is
  /// within a second of UTC), -64800 to 64800
  @ffi.Int32()
  external int offset;

  /// seconds by which the time may be wrong, at least 4
  @ffi.Int32()
  external int uncertainty;

  /// 1 if the civil date is certain: midnight is farther away than the
  /// uncertainty; else 0
  @ffi.Int32()
  external int certain;
}

/// A date of the lunisolar calendar. All zeroes stands for no answer. 20 bytes.
final class CCalendarLunarDate extends ffi.Struct {
  /// the Gregorian year in which the lunar year began
  @ffi.Int32()
  external int year;

  /// lunar month, 1 to 12
  @ffi.Int32()
  external int month;

  /// day of the lunar month, 1 to 30 (see ConverterLunarWithDate())
  @ffi.Int32()
  external int day;

  /// always 0
  @ffi.Int32()
  external int reserved;

  /// 1 in a leap month, else 0; a leap month has the number of the one before
  @ffi.Int32()
  external int leap;
}

/// A Gregorian date. All zeroes stands for no date. 16 bytes.
final class CCalendarSolarDate extends ffi.Struct {
  /// full Gregorian year, for example 2024
  @ffi.Int32()
  external int year;

  /// 1 = January to 12 = December
  @ffi.Int32()
  external int month;

  /// day of the month, 1 to 31
  @ffi.Int32()
  external int day;

  /// ::ECalendarWeek, or 0 where it was not worked out
  @ffi.Int32()
  external int dayOfWeek;
}

/// Rules of AlmanacNextAnniversary(): a sum of the values below. Other bits are not read; leave them
/// 0.
typedef EAlmanacAnniversary = ffi.Int32;
typedef DartEAlmanacAnniversary = int;

/// A calendar of the almanac: whose civil days count. Beside the values below there is one for each
/// fixed difference from universal time, see AlmanacCalendarAtOffset(). For any other int every
/// function gives "no answer".
typedef EAlmanacCalendar = ffi.Int32;
typedef DartEAlmanacCalendar = int;

/// Day of the week, 0 = Sunday to 6 = Saturday.
typedef ECalendarWeek = ffi.Int32;
typedef DartECalendarWeek = int;

/// Arrangement of the board. A value outside 1 to 4 gives an empty board.
typedef EDispMonth = ffi.Int32;
typedef DartEDispMonth = int;

/// Code of a festival of the lunisolar calendar; 0 stands for none. Only the languages named have
/// it. A leap month has no festivals. 20011 is never returned.
typedef EFestivalLunar = ffi.Int32;
typedef DartEFestivalLunar = int;

/// Code of a festival of the Gregorian calendar; 0 stands for none. almara_names.h has names.
typedef EFestivalSolar = ffi.Int32;
typedef DartEFestivalSolar = int;

/// Language region: selects the time zone that InitCalendarLogicDt() fixes and the festivals.
/// Any other value, 0 included, selects no region: common festivals only. "The machine's zone" is
/// taken only where no zone was set before.
typedef ELanguage = ffi.Int32;
typedef DartELanguage = int;

/// One of the 24 solar terms, in the order of the calendar year: term i falls on the day on which
/// the Sun's apparent longitude reaches (285 + 15 * i) mod 360 degrees. -1 stands for no term.
typedef ESolarKyureki24 = ffi.Int32;
typedef DartESolarKyureki24 = int;

/// Rule for week numbers. Weeks begin on Monday in all of them.
typedef EWeekNumberCalc = ffi.Int32;
typedef DartEWeekNumberCalc = int;

/// One cell of the board, as GetContentItem() returns it. 32 bytes.
final class tagCalendarCell extends ffi.Struct {
  /// of the date shown; 0 marks a cell without a day
  @ffi.Int32()
  external int year;

  /// 1 to 12, or 0
  @ffi.Int32()
  external int month;

  /// 1 to 31, or 0
  @ffi.Int32()
  external int day;

  /// ::ECalendarWeek; 0 in cells of kind 1, 2 and 7
  @ffi.Int32()
  external int dayOfWeek;

  /// counted so that the start week reads 1; -1 where there is none
  @ffi.Int32()
  external int weekNumber;

  /// row on the whole board, from 0, hidden rows counted
  @ffi.Int32()
  external int row;

  /// column on the whole board, 0 to 6, hidden columns counted
  @ffi.Int32()
  external int column;

  /// ::ECalendarItem
  @ffi.Int32()
  external int type;
}

/// A span: consecutive visible rows that share one box in the week-number column. 12 bytes.
final class tagWeekNumberSpan extends ffi.Struct {
  /// week number to show, 0 when the span has none
  @ffi.Int32()
  external int weekNumber;

  /// a second week number met in the span, or 0
  @ffi.Int32()
  external int secondWeekNumber;

  /// visible rows of the span, at least 1
  @ffi.Int32()
  external int rows;
}

const int ALMARA_VERSION_MAJOR = 1;

const int ALMARA_VERSION_MINOR = 1;

const int ALMARA_VERSION_PATCH = 0;

const String ALMARA_VERSION_STRING = '1.1.0';

/// day 30: only where the month has 30 days, not on day 29
/// of a short month
const int eAlmanacAnniversaryDay30Only = 2;

/// once in every lunar year
const int eAlmanacAnniversaryEveryYear = 0;

/// a date in a leap month: only in years that have this
/// leap month, not in the plain month of the others
const int eAlmanacAnniversaryLeapMonthOnly = 1;

/// Beijing local mean time (116 degrees 25 minutes east, UTC+7:45:40) to
/// 1928-12-31, UTC+8 from then on
const int eAlmanacChina = 1;

/// UTC+9. Japan publishes the terms; months are numbered by nobody there,
/// and follow the rule of the others
const int eAlmanacJapan = 4;

/// as China to 1911-12-31, UTC+9 from then on
const int eAlmanacKorea = 2;

/// no calendar
const int eAlmanacNone = 0;

/// as China to 1967-12-31, UTC+7 from then on
const int eAlmanacVietnam = 3;

/// filler of a month interval (date 0, 0, 0), or a
/// kept-back day, which only fills the first row (real date,
/// day of week 0)
const int eCalendarItemBlank = 2;

/// break day, not today
const int eCalendarItemBreakDay = 5;

/// ordinary day
const int eCalendarItemDay = 3;

/// grid position beyond the last date; its date is 0, 0, 0
const int eCalendarItemEmpty = 1;

/// first cell of a month interval: year 0, the month that begins
/// after the interval, day 1
const int eCalendarItemMonthTitle = 7;

/// today, not a break day
const int eCalendarItemToday = 4;

/// today, on a break day
const int eCalendarItemTodayBreakDay = 6;

const int eCalendarWeekFriday = 5;

const int eCalendarWeekMonday = 1;

const int eCalendarWeekSaturday = 6;

const int eCalendarWeekSunday = 0;

const int eCalendarWeekThursday = 4;

const int eCalendarWeekTuesday = 2;

const int eCalendarWeekWednesday = 3;

/// one row of consecutive days, the chosen one in the middle
const int eDispMonthDayStrip = 4;

/// the month from its first week, at least the wanted rows; none
/// while a page direction is in force, see GotoPreviousPage()
const int eDispMonthRollingTail = 2;

/// a fixed number of weeks around the chosen date (default)
const int eDispMonthRollingWeeks = 1;

/// exactly the weeks that hold a day of the month
const int eDispMonthWholeMonth = 3;

/// month 4, day 8: Kor
const int eFestivalLunarBuddhasBirthday = 20010;

/// month 9, day 9: Chs, Cht, Vit
const int eFestivalLunarDoubleNinth = 20006;

/// month 7, day 7: Chs, Cht
const int eFestivalLunarDoubleSeventh = 20003;

/// month 5, day 5: Chs, Cht, Vit
const int eFestivalLunarDragonBoat = 20002;

/// month 7, day 15: Chs, Cht, Vit
const int eFestivalLunarGhostFestival = 20004;

/// month 3, day 10: Vit
const int eFestivalLunarHungKings = 20012;

/// month 12, day 8: Chs, Cht
const int eFestivalLunarLaba = 20007;

/// month 1, day 15: Chs, Cht, Vit
const int eFestivalLunarLanternFestival = 20001;

/// month 12, day 23: Chs
const int eFestivalLunarLittleNewYear = 20008;

/// month 8, day 15: Chs, Cht, Kor, Vit
const int eFestivalLunarMidAutumn = 20005;

/// month 1, day 1: Chs, Cht, Kor, Vit
const int eFestivalLunarNewYearsDay = 20000;

/// last day of month 12: Chs, Cht, Vit
const int eFestivalLunarNewYearsEve = 20009;

const int eFestivalLunarNone = 0;

/// 1 April
const int eFestivalSolarAprilFoolsDay = 1002;

/// Chs, Cht 12 March; Kor 5 April
const int eFestivalSolarArborDay = 1013;

/// Chs 1 August
const int eFestivalSolarArmyDay = 2003;

/// Chs, Rus, Deu, Vit 1 June; Deu also 20 September; Cht
/// 4 April; Usa first Sunday of June; Eng 14 July; Tha
/// second Saturday of January
const int eFestivalSolarChildrensDay = 1006;

/// 5 May
const int eFestivalSolarChildrensDayJpn = 5007;

/// 5 May
const int eFestivalSolarChildrensDayKor = 3001;

/// 25 December
const int eFestivalSolarChristmasDay = 1011;

/// 24 December
const int eFestivalSolarChristmasEve = 1010;

/// 25 December, before the common one
const int eFestivalSolarChristmasKor = 3006;

/// second Monday of January
const int eFestivalSolarComingOfAgeDay = 5001;

/// 3 May
const int eFestivalSolarConstitutionDayJpn = 5005;

/// Chs 15 March
const int eFestivalSolarConsumerRightsDay = 2000;

/// 3 November
const int eFestivalSolarCultureDay = 5011;

/// 22 April
const int eFestivalSolarEarthDay = 1004;

/// Easter Sunday; see CheckFestivalSolarWithLang()
const int eFestivalSolarEaster = 4003;

/// 23 December
const int eFestivalSolarEmperorsBirthday = 5013;

/// Chs third Sunday of June; Cht 8 August
const int eFestivalSolarFathersDay = 1016;

/// 11 February
const int eFestivalSolarFoundationDayJpn = 5002;

/// 1 January, before the common one
const int eFestivalSolarGanjitsu = 5000;

/// the Friday before Easter Sunday
const int eFestivalSolarGoodFriday = 4004;

/// 4 May
const int eFestivalSolarGreeneryDay = 5006;

/// 31 October
const int eFestivalSolarHalloween = 1008;

/// 9 October
const int eFestivalSolarHangulDay = 3005;

/// 7 April, World Health Day
const int eFestivalSolarHealthDay = 1003;

/// 3 March
const int eFestivalSolarHinamatsuri = 5003;

/// 19 May
const int eFestivalSolarHoChiMinhsBirthday = 6001;

/// 4 July
const int eFestivalSolarIndependenceDay = 4000;

/// 1 March
const int eFestivalSolarIndependenceMovementDay = 3000;

/// first Monday of September
const int eFestivalSolarLaborDayUsa = 4002;

/// 1 May
const int eFestivalSolarLabourDay = 1005;

/// 23 November, before the common one
const int eFestivalSolarLabourThanksgivingDay = 5012;

/// 15 August
const int eFestivalSolarLiberationDayKor = 3003;

/// third Monday of July
const int eFestivalSolarMarineDay = 5008;

/// third Monday of January
const int eFestivalSolarMartinLutherKingDay = 4001;

/// 6 June
const int eFestivalSolarMemorialDayKor = 3002;

/// Chs, Cht second Sunday of May
const int eFestivalSolarMothersDay = 1015;

/// Chs 1 October
const int eFestivalSolarNationalDayChs = 2004;

/// Cht 10 October
const int eFestivalSolarNationalDayCht = 2006;

/// 2 September
const int eFestivalSolarNationalDayVit = 6002;

/// 3 October
const int eFestivalSolarNationalFoundationDayKor = 3004;

/// 1 January
const int eFestivalSolarNewYearsDay = 1000;

/// 31 December
const int eFestivalSolarNewYearsEve = 1012;

/// 31 May, World No-Tobacco Day
const int eFestivalSolarNoTobaccoDay = 1007;

const int eFestivalSolarNone = 0;

/// Chs 1 July
const int eFestivalSolarPartyFoundationDay = 2002;

/// Cht 28 February
const int eFestivalSolarPeaceMemorialDay = 2005;

/// third Monday of September
const int eFestivalSolarRespectForTheAgedDay = 5009;

/// 30 April
const int eFestivalSolarReunificationDay = 6000;

/// 29 April
const int eFestivalSolarShowaDay = 5004;

/// second Monday of October
const int eFestivalSolarSportsDay = 5010;

/// Chs 10 September; Cht 28 September
const int eFestivalSolarTeachersDay = 1017;

/// fourth Thursday of November
const int eFestivalSolarThanksgiving = 1009;

/// Chs, Cht 14 February
const int eFestivalSolarValentinesDay = 1014;

/// 8 March
const int eFestivalSolarWomensDay = 1001;

/// Chs 4 May
const int eFestivalSolarYouthDay = 2001;

/// Chinese (simplified): UTC+8, lunar festivals
const int eLanguageChs = 1;

/// Chinese (traditional): UTC+8, lunar festivals
const int eLanguageCht = 4;

/// German: the machine's zone
const int eLanguageDeu = 6;

/// English: the machine's zone
const int eLanguageEng = 8;

/// Japanese: UTC+9
const int eLanguageJpn = 7;

/// Korean: UTC+9, lunar festivals
const int eLanguageKor = 2;

/// Russian: the machine's zone
const int eLanguageRus = 5;

/// Thai: the machine's zone
const int eLanguageTha = 10;

/// English (United States): the machine's zone
const int eLanguageUsa = 3;

/// Vietnamese: the machine's zone, lunar festivals
const int eLanguageVit = 9;

/// 180 degrees, about 23 September
const int eSekkiAutumnEquinox = 17;

/// 345 degrees, about 5 March
const int eSekkiAwakeningOfInsects = 4;

/// 15 degrees, about 5 April
const int eSekkiClearAndBright = 6;

/// 195 degrees, about 8 October
const int eSekkiColdDew = 18;

/// 150 degrees, about 23 August
const int eSekkiEndOfHeat = 15;

/// 210 degrees, about 23 October
const int eSekkiFrostsDescent = 19;

/// 60 degrees, about 21 May
const int eSekkiGrainBuds = 9;

/// 75 degrees, about 6 June
const int eSekkiGrainInEar = 10;

/// 30 degrees, about 20 April
const int eSekkiGrainRain = 7;

/// 300 degrees, about 20 January
const int eSekkiMajorCold = 1;

/// 120 degrees, about 23 July
const int eSekkiMajorHeat = 13;

/// 255 degrees, about 7 December
const int eSekkiMajorSnow = 22;

/// 285 degrees, about 5 January
const int eSekkiMinorCold = 0;

/// 105 degrees, about 7 July
const int eSekkiMinorHeat = 12;

/// 240 degrees, about 22 November
const int eSekkiMinorSnow = 21;

const int eSekkiNone = -1;

/// 330 degrees, about 19 February
const int eSekkiRainWater = 3;

/// 0 degrees, about 20 March
const int eSekkiSpringEquinox = 5;

/// 135 degrees, about 7 August
const int eSekkiStartOfAutumn = 14;

/// 315 degrees, about 4 February
const int eSekkiStartOfSpring = 2;

/// 45 degrees, about 5 May
const int eSekkiStartOfSummer = 8;

/// 225 degrees, about 7 November
const int eSekkiStartOfWinter = 20;

/// 90 degrees, about 21 June
const int eSekkiSummerSolstice = 11;

/// 165 degrees, about 7 September
const int eSekkiWhiteDew = 16;

/// 270 degrees, about 21 December
const int eSekkiWinterSolstice = 23;

/// the week that holds 1 January is week 1
const int eWeekNumberCalcFromJan1 = 0;

/// as 0, and counted on across the turn of the year from the
/// start week number on
const int eWeekNumberCalcFromStartWeek = 2;

/// ISO 8601: week 1 holds the year's first Thursday (default)
const int eWeekNumberCalcIso8601 = 1;
