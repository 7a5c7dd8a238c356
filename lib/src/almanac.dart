// SPDX-License-Identifier: MIT
import 'dart:ffi';

import 'almara_bindings.dart';
import 'codes.dart';
import 'dates.dart';
import 'records.dart';

/// A calendar of the [Almanac]: whose civil days count.
///
/// [Almanac.calendarAtOffset] gives others, reckoned at a fixed difference from
/// universal time.
final class AlmanacCalendar {
  const AlmanacCalendar._(this.code);

  /// Beijing local mean time to 1928-12-31, UTC+8 from then on.
  static const china = AlmanacCalendar._(eAlmanacChina);

  /// As [china] to 1911-12-31, UTC+9 from then on.
  static const korea = AlmanacCalendar._(eAlmanacKorea);

  /// As [china] to 1967-12-31, UTC+7 from then on.
  static const vietnam = AlmanacCalendar._(eAlmanacVietnam);

  /// UTC+9. Japan publishes solar terms, not months, which follow the rule of
  /// the others here.
  static const japan = AlmanacCalendar._(eAlmanacJapan);

  /// The code in the C interface.
  final int code;

  @override
  bool operator ==(Object other) =>
      other is AlmanacCalendar && other.code == code;

  @override
  int get hashCode => code.hashCode;
}

/// The time of a new moon or a solar term, as the calendar's clocks show it.
final class AlmanacTime {
  AlmanacTime._(AlmanacInstant instant)
    : date = CalendarDate(instant.year, instant.month, instant.day),
      isDateCertain = instant.certain == 1,
      offset = Duration(seconds: instant.offset),
      uncertainty = Duration(seconds: instant.uncertainty),
      utc = DateTime.utc(
        instant.year,
        instant.month,
        instant.day,
        instant.hour,
        instant.minute,
        instant.second - instant.offset,
      );

  /// The civil date, 1899 to 2100.
  final CalendarDate date;

  /// Whether [date] is certain: midnight is farther away than [uncertainty].
  final bool isDateCertain;

  /// How far the calendar's clocks are ahead of universal time, at most 18
  /// hours either way.
  final Duration offset;

  /// By how much the time may be wrong, at least 4 seconds.
  final Duration uncertainty;

  /// The moment in universal time, to the second.
  final DateTime utc;

  /// The moment as the calendar's clocks show it, in the fields of a [DateTime]
  /// that says it is UTC, so that no change of the machine's clocks moves it.
  DateTime get clock => utc.add(offset);
}

/// The lunisolar calendar as it is published, from 1900 to 2099, in both
/// directions, with the times of the new moons and solar terms behind it.
///
/// It does not depend on an engine and may be used from any isolate. Where its
/// dates differ from those of `AlmaraEngine.annotate`, the almanac has the
/// published ones. Each function answers null, or 0 for a number, where there
/// is no answer, and throws [RangeError] only for numbers that do not fit in 32
/// bits.
class Almanac {
  /// Opens the library in the application's bundle, or the file [path]: outside
  /// a bundle, as in tests, the stand-alone `libalmara.so.1`.
  ///
  /// Throws [ArgumentError] where the library cannot be loaded: on every
  /// platform but Linux.
  Almanac.open([String path = 'libalmara_plugin.so'])
    : _c = AlmaraBindings(DynamicLibrary.open(path));

  final AlmaraBindings _c;

  /// The calendar reckoned at one difference from universal time in all years.
  /// Null for more than 18 hours either way. Seconds of [offset] do not count.
  AlmanacCalendar? calendarAtOffset(Duration offset) {
    final code = _c.AlmanacCalendarAtOffset(int32(offset.inMinutes, 'offset'));
    return code == eAlmanacNone ? null : AlmanacCalendar._(code);
  }

  /// The calendar of a region's own country: that of [Region.kor],
  /// [Region.jpn] or [Region.vit], and China's for every other region.
  AlmanacCalendar calendarOf(Region region) =>
      AlmanacCalendar._(_c.AlmanacCalendarOfLanguage(region.code));

  /// The lunar date of [date], 1900-01-01 to 2099-12-31.
  LunarDate? lunarDate(AlmanacCalendar calendar, CalendarDate date) =>
      lunarDateOf(_c.AlmanacLunarDate(calendar.code, solarRecordOf(_c, date)));

  /// The Gregorian date of [date]: [lunarDate] turned around. Null where there
  /// is no such day: day 30 of a short month, a leap month that the year lacks,
  /// a day outside 1900-01-01 to 2099-12-31.
  CalendarDate? solarDate(AlmanacCalendar calendar, LunarDate date) =>
      solarDateOf(_c.AlmanacSolarDate(calendar.code, lunarRecordOf(date)));

  /// Lunar new year's day of a [year] from 1900 to 2099.
  CalendarDate? firstDayOfYear(AlmanacCalendar calendar, int year) =>
      solarDateOf(_c.AlmanacFirstDayOfYear(calendar.code, _year(year)));

  /// Days of a lunar [year] from 1900 to 2099: 353 to 355, or 383 to 385 with a
  /// leap month.
  int daysOfYear(AlmanacCalendar calendar, int year) =>
      _c.AlmanacDaysOfYear(calendar.code, _year(year));

  /// Months of a lunar [year] from 1900 to 2099: 12, or 13 with a leap month.
  int monthsOfYear(AlmanacCalendar calendar, int year) =>
      _c.AlmanacMonthsOfYear(calendar.code, _year(year));

  /// The month, 1 to 12, that a lunar [year] from 1900 to 2099 has twice, the
  /// second time as a leap month. 0 for a year without one.
  int leapMonth(AlmanacCalendar calendar, int year) =>
      _c.AlmanacLeapMonth(calendar.code, _year(year));

  /// Days of a lunar month, 29 or 30; 0 for a month that there is not.
  int daysOfMonth(
    AlmanacCalendar calendar,
    int year,
    int month, {
    bool isLeapMonth = false,
  }) => _c.AlmanacDaysOfMonth(
    calendar.code,
    _year(year),
    int32(month, 'month'),
    isLeapMonth ? 1 : 0,
  );

  /// The first anniversary of the month and day of [date], whose year does not
  /// count, on or after [from], 1900-01-01 to 2099-12-31. Null if none follows
  /// to the end of 2099.
  ///
  /// A date in a leap month falls in the plain month where the year lacks that
  /// leap month, unless [leapMonthOnly]. Day 30 falls on day 29 of a short
  /// month, unless [day30Only].
  CalendarDate? nextAnniversary(
    AlmanacCalendar calendar,
    LunarDate date, {
    required CalendarDate from,
    bool leapMonthOnly = false,
    bool day30Only = false,
  }) => solarDateOf(
    _c.AlmanacNextAnniversary(
      calendar.code,
      lunarRecordOf(date),
      solarRecordOf(_c, from),
      (leapMonthOnly ? eAlmanacAnniversaryLeapMonthOnly : 0) |
          (day30Only ? eAlmanacAnniversaryDay30Only : 0),
    ),
  );

  /// The time of a solar [term] in a Gregorian [year] from 1900 to 2099. Null
  /// outside these years and for [SolarTerm.unknown].
  AlmanacTime? termTime(AlmanacCalendar calendar, int year, SolarTerm term) =>
      _timeOf(_c.AlmanacTermInstant(calendar.code, _year(year), term.code));

  /// The time of a new moon of a Gregorian [year] from 1900 to 2099; [index] is
  /// 0 for the first one, to 11 or 12 for the last. Null where there is none.
  AlmanacTime? newMoonOfYear(AlmanacCalendar calendar, int year, int index) =>
      _timeOf(
        _c.AlmanacNewMoonOfYear(
          calendar.code,
          _year(year),
          int32(index, 'index'),
        ),
      );

  /// The time of the new moon that begins a lunar month. Null for a month that
  /// there is not. If its date is not certain, no day of the month is.
  AlmanacTime? newMoonOfMonth(
    AlmanacCalendar calendar,
    int year,
    int month, {
    bool isLeapMonth = false,
  }) => _timeOf(
    _c.AlmanacNewMoonOfMonth(
      calendar.code,
      _year(year),
      int32(month, 'month'),
      isLeapMonth ? 1 : 0,
    ),
  );

  /// The solar term that falls on [date], 1900-01-01 to 2099-12-31. Null if
  /// none does.
  SolarTerm? termOf(AlmanacCalendar calendar, CalendarDate date) =>
      SolarTerm.fromCode(
        _c.AlmanacTermOfDate(calendar.code, solarRecordOf(_c, date)),
      );

  /// The lunar festival of [region] on [date], 1900-01-01 to 2099-12-31. Null
  /// if there is none.
  LunarFestival? lunarFestival(
    AlmanacCalendar calendar,
    Region region,
    CalendarDate date,
  ) => LunarFestival.fromCode(
    _c.AlmanacLunarFestival(
      calendar.code,
      region.code,
      solarRecordOf(_c, date),
    ),
  );

  static int _year(int year) => int32(year, 'year');

  static AlmanacTime? _timeOf(AlmanacInstant instant) =>
      instant.year == 0 ? null : AlmanacTime._(instant);
}
