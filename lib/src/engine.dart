// SPDX-License-Identifier: MIT
import 'dart:ffi';

import 'package:ffi/ffi.dart';

import 'almara_bindings.dart';
import 'board.dart';
import 'codes.dart';
import 'dates.dart';
import 'records.dart';

/// What the engine knows about one date.
final class DayNotes {
  /// Notes as given.
  const DayNotes({
    this.lunarDate,
    this.solarTerm,
    this.solarFestival,
    this.lunarFestival,
  });

  /// The date of the lunisolar calendar. Null where there is no answer, which
  /// happens only about a million years away.
  final LunarDate? lunarDate;

  /// The solar term that falls on the date, from 1800 to 2099. Null if none
  /// does.
  final SolarTerm? solarTerm;

  /// The festival of the Gregorian calendar, the region's own before a common
  /// one. Null if there is none.
  final SolarFestival? solarFestival;

  /// The festival of the lunisolar calendar. Null if there is none; only
  /// [Region.chs], [Region.kor], [Region.cht] and [Region.vit] have any.
  final LunarFestival? lunarFestival;
}

/// The calendar engine of the process.
///
/// Open it, set the options that are to differ from the defaults, [start] it,
/// and show the [Board] that each navigation returns.
class AlmaraEngine {
  /// Opens the library in the application's bundle, or the file [path]: outside
  /// a bundle, as in tests, the stand-alone `libalmara.so.1`.
  ///
  /// The library is loaded once in a process, with one engine in it. Every
  /// object that is opened drives that engine, and options outlive the object
  /// and a hot restart.
  ///
  /// Throws [ArgumentError] where the library cannot be loaded: on every
  /// platform but Linux.
  AlmaraEngine.open([String path = 'libalmara_plugin.so'])
    : _c = AlmaraBindings(DynamicLibrary.open(path));

  final AlmaraBindings _c;
  Region? _region;

  /// The version of the library, for example `1.1.0`.
  String get libraryVersion =>
      _c.GetLibraryVersion().cast<Utf8>().toDartString();

  // Building and navigating.

  /// The region that this object was started with. Null before [start].
  Region? get region => _region;

  /// Fixes the region, whose time zone and festivals [annotate] then uses, and
  /// returns today's board.
  ///
  /// [Region.chs] and [Region.cht] reckon in UTC+8, [Region.kor] and
  /// [Region.jpn] in UTC+9, all others in the machine's zone, in whole hours.
  /// [Region.unknown] stands for no region: common festivals only.
  ///
  /// May be called again with another region. Answers that were kept for
  /// [annotate] are forgotten, those of the application before a hot restart as
  /// well.
  Board start(Region region) {
    _c.ForgetAnnotations();
    _c.InitCalendarLogicDt(region.code);
    _region = region;
    return board;
  }

  /// The board that the engine has now, read in one go. Empty before [start].
  Board get board => readBoard(_c);

  /// Today's board under the options now in force. If today is the board's date
  /// already, it keeps the direction that it was paged in.
  Board rebuild() {
    _c.Build();
    return board;
  }

  /// Today's board.
  Board goToToday() {
    _c.GotoToday();
    return board;
  }

  /// The page before this one: the month before in the month arrangements, else
  /// the days or weeks that end before the first day shown. At the start of
  /// 1900 the board stays.
  Board previousPage() {
    _c.GotoPreviousPage();
    return board;
  }

  /// The page after this one: the month after in the month arrangements, else
  /// the days or weeks that begin after the last day shown. At the end of 2099
  /// the board stays.
  Board nextPage() {
    _c.GotoNextPage();
    return board;
  }

  /// The board of [date]. Outside [Arrangement.wholeMonth] a date that is not
  /// on the board is gone to as if paged to: it comes first or last, and
  /// [Arrangement.rollingTail] has no rows until [goToToday].
  ///
  /// Throws [RangeError] for years outside 1900 to 2099, months outside 1 to 12
  /// and days outside 1 to 31. A day that its month does not have counts on
  /// into the next month.
  Board goTo(CalendarDate date) {
    RangeError.checkValueInInterval(date.year, 1900, 2099, 'year');
    RangeError.checkValueInInterval(date.month, 1, 12, 'month');
    RangeError.checkValueInInterval(date.day, 1, 31, 'day');
    _c.GotoSpecifiedDate(date.year, date.month, date.day);
    return board;
  }

  /// The board [pages] pages after today's, before it if negative: months in
  /// [Arrangement.wholeMonth], else pages of [maxRows] weeks. Where that leads
  /// out of 1900 to 2099 the board stays.
  ///
  /// Throws [RangeError] for more than 2400 months, or weeks of more than
  /// 24,855 days, which the engine could not count.
  Board goToTodayOffset(int pages) {
    final most = arrangement == Arrangement.wholeMonth
        ? 2400
        : 24855 ~/ (7 * maxRows);
    RangeError.checkValueInInterval(pages, -most, most, 'pages');
    _c.GotoTodayOffset(pages);
    return board;
  }

  /// Today's date in the machine's zone. Null if the clock cannot be read.
  CalendarDate? get today => solarDateOf(_c.GetToday());

  // Annotating dates.

  /// What the engine knows about [date], in the region of [start].
  ///
  /// Meant for 1900 to 2099. A date outside these years, or one that does not
  /// exist, gets the fallbacks stated in `include/almara/almara.h`.
  ///
  /// Answers are kept until [start].
  ///
  /// Throws [StateError] before [start], when the zone is not known, and
  /// [RangeError] for a field that does not fit in 32 bits.
  DayNotes annotate(CalendarDate date) {
    final region = _region;
    if (region == null) {
      throw StateError('start() fixes the region that dates are annotated for');
    }
    final solar = solarRecordOf(_c, date);
    return DayNotes(
      lunarDate: lunarDateOf(_c.ConverterLunarWithDate(solar)),
      solarTerm: SolarTerm.fromCode(_c.Check24SekkiWithDate(solar)),
      solarFestival: _isEaster(region, date)
          ? SolarFestival.easter
          : SolarFestival.fromCode(
              _c.CheckFestivalSolarWithLang(region.code, solar),
            ),
      lunarFestival: LunarFestival.fromCode(
        _c.CheckFestivalLunarWithLang(region.code, solar),
      ),
    );
  }

  /// Whether [date] is Easter Sunday, which the engine itself finds only if the
  /// last date that it worked out was of the same year. It always finds Good
  /// Friday.
  bool _isEaster(Region region, CalendarDate date) {
    if (region != Region.usa ||
        date.year < 1900 ||
        date.year > 2099 ||
        date.month < 3 ||
        date.month > 4 ||
        date.day < 1 ||
        date.day > 31 ||
        date.weekday != Weekday.sunday) {
      return false;
    }
    final friday = solarRecordOf(_c, date.addDays(-2));
    return _c.CheckFestivalSolarWithLang(region.code, friday) ==
        SolarFestival.goodFriday.code;
  }

  // Options. Setting one changes no board: call [rebuild] or navigate.

  /// The arrangement of the board; [Arrangement.rollingWeeks] by default.
  ///
  /// Setting [Arrangement.unknown] throws [ArgumentError].
  Arrangement get arrangement => Arrangement.fromCode(_c.GetDispMonth());
  set arrangement(Arrangement value) {
    _c.SetDispMonth(_known(value, value.code));
  }

  /// Week rows of [Arrangement.rollingWeeks] and, at least, of
  /// [Arrangement.rollingTail], 1 to 50; 5 by default.
  ///
  /// Setting another number throws [RangeError].
  int get maxRows => _c.GetMaxRow();
  set maxRows(int value) {
    _c.SetMaxRow(RangeError.checkValueInInterval(value, 1, 50, 'maxRows'));
  }

  /// Whole weeks shown before the week of the date in
  /// [Arrangement.rollingWeeks], 0 to [maxRows] - 1; 1 by default.
  ///
  /// Setting a number outside 0 to 49 throws [RangeError].
  int get passedWeeks => _c.GetPassedWeeks();
  set passedWeeks(int value) {
    _c.SetPassedWeeks(
      RangeError.checkValueInInterval(value, 0, 49, 'passedWeeks'),
    );
  }

  /// The day of the week in the first column; [Weekday.monday] by default.
  ///
  /// Setting [Weekday.unknown] throws [ArgumentError].
  Weekday get startDayOfWeek => Weekday.fromCode(_c.GetStartDayOfWeek());
  set startDayOfWeek(Weekday value) {
    _c.SetStartDayOfWeek(_known(value, value.code));
  }

  /// The week number that is shown as week 1, 1 to 53; 1 by default.
  ///
  /// Setting another number throws [RangeError].
  int get startWeekNumber => _c.GetStartWeekNumber();
  set startWeekNumber(int value) {
    _c.SetStartWeekNumber(
      RangeError.checkValueInInterval(value, 1, 53, 'startWeekNumber'),
    );
  }

  /// The rule for week numbers; [WeekNumberRule.iso8601] by default. The others
  /// need [countsCivilDays]: without it they number dates in summer time as if
  /// these were a day earlier.
  ///
  /// Setting [WeekNumberRule.unknown] throws [ArgumentError].
  WeekNumberRule get weekNumberRule =>
      WeekNumberRule.fromCode(_c.GetWeekNumberCalcType());
  set weekNumberRule(WeekNumberRule value) {
    _c.SetWeekNumberCalcType(_known(value, value.code));
  }

  /// Whether days are counted by the calendar alone; false by default. Set it
  /// to true before [start].
  ///
  /// If false, boards show wrong days where the machine's zone set its standard
  /// time back or calls winter time daylight saving, as in Dublin. A change
  /// makes the engine forget week numbers and festivals, and no board. It is no
  /// part of [configKey].
  bool get countsCivilDays => _c.GetCivilDays();
  set countsCivilDays(bool value) {
    _c.SetCivilDays(value);
  }

  /// Whether a band of seven cells comes before the first day of a month, and
  /// the days that only fill the first row are kept back; true by default.
  bool get showsMonthIntervals =>
      // The getter of the C interface reads another flag.
      RegExp(r'-([01])-\(').firstMatch(configKey)?.group(1) == '1';
  set showsMonthIntervals(bool value) {
    _c.SetShowMonthInterval(value);
  }

  /// Whether the columns of [breakDays], and rows left without content, are
  /// shown; true by default. In [Arrangement.dayStrip] leave it true: columns
  /// are hidden by their place, and a strip begins on any day of the week.
  bool get showsBreakDays => _c.GetShowBreakDayOfWeek();
  set showsBreakDays(bool value) {
    _c.SetShowBreakDayOfWeek(value);
  }

  /// The days of rest; Saturday and Sunday by default. Changing the set that
  /// was read changes nothing.
  ///
  /// [Weekday.unknown] in it has no effect.
  Set<Weekday> get breakDays => {
    for (final day in Weekday.values)
      if (_c.IsBreakDayOfWeek(day.code)) day,
  };
  set breakDays(Set<Weekday> value) {
    for (final day in Weekday.values) {
      _c.SetBreakDayOfWeek(day.code, value.contains(day));
    }
  }

  /// Whether each board that is built, and each target of [goToTodayOffset], is
  /// written to the standard output as text, too; true by default. No part of
  /// [configKey].
  bool get printsBoards => _c.GetPrintBoard();
  set printsBoards(bool value) {
    _c.SetPrintBoard(value);
  }

  /// A text that holds every option but [countsCivilDays] and [printsBoards]:
  /// two equal keys mean equal options.
  ///
  /// Throws [OutOfMemoryError] if there is no memory for it.
  String get configKey {
    final text = _c.GetConfigKey();
    if (text == nullptr) {
      throw const OutOfMemoryError();
    }
    try {
      return text.cast<Utf8>().toDartString();
    } finally {
      _c.ReleaseText(text);
    }
  }

  static int _known(Enum value, int code) => code == -1
      ? throw ArgumentError.value(value, null, 'not a value of the library')
      : code;
}
