// SPDX-License-Identifier: MIT
import 'codes.dart';

/// A Gregorian date without a time of day and without a zone.
final class CalendarDate implements Comparable<CalendarDate> {
  /// The date as given. Nothing is checked, see [exists].
  const CalendarDate(this.year, this.month, this.day);

  /// Year, month and day of [time] in the zone that it is expressed in, so that
  /// `CalendarDate.of(DateTime.now())` is today.
  CalendarDate.of(DateTime time) : this(time.year, time.month, time.day);

  /// The full Gregorian year, for example 2024.
  final int year;

  /// 1 = January to 12 = December.
  final int month;

  /// The day of the month, 1 to 31.
  final int day;

  /// Whether the month has this day: false for 30 February.
  bool get exists => CalendarDate.of(toUtc()) == this;

  /// The day of the week. A day that the month does not have counts on into the
  /// next month, as in [toUtc].
  Weekday get weekday => Weekday.fromCode(toUtc().weekday % 7);

  /// Midnight of this date in universal time, which no change of the clocks
  /// moves. A day that the month does not have counts on into the next month.
  ///
  /// Throws [ArgumentError] for years that [DateTime] does not reach, some
  /// 270,000 years away.
  DateTime toUtc() => DateTime.utc(year, month, day);

  /// The date that many days later, earlier if [days] is negative.
  CalendarDate addDays(int days) =>
      CalendarDate.of(DateTime.utc(year, month, day + days));

  @override
  int compareTo(CalendarDate other) {
    if (year != other.year) return year.compareTo(other.year);
    if (month != other.month) return month.compareTo(other.month);
    return day.compareTo(other.day);
  }

  @override
  bool operator ==(Object other) =>
      other is CalendarDate &&
      other.year == year &&
      other.month == month &&
      other.day == day;

  @override
  int get hashCode => Object.hash(year, month, day);

  /// As in ISO 8601: `2024-02-10`.
  @override
  String toString() =>
      '${'$year'.padLeft(4, '0')}-${'$month'.padLeft(2, '0')}-'
      '${'$day'.padLeft(2, '0')}';
}

/// A date of the lunisolar calendar.
final class LunarDate {
  /// The date as given. Nothing is checked.
  const LunarDate(this.year, this.month, this.day, {this.isLeapMonth = false});

  /// The Gregorian year in which the lunar year began.
  final int year;

  /// 1 to 12.
  final int month;

  /// 1 to 30.
  final int day;

  /// Whether the month is a leap month, which has the number of the month
  /// before it.
  final bool isLeapMonth;

  @override
  bool operator ==(Object other) =>
      other is LunarDate &&
      other.year == year &&
      other.month == month &&
      other.day == day &&
      other.isLeapMonth == isLeapMonth;

  @override
  int get hashCode => Object.hash(year, month, day, isLeapMonth);

  /// For example `2023-2-1`, and `2023-leap 2-1` in a leap month.
  @override
  String toString() => '$year-${isLeapMonth ? 'leap ' : ''}$month-$day';
}
