// SPDX-License-Identifier: MIT
import 'dart:ffi';

import 'almara_bindings.dart';
import 'dates.dart';

// Values of the C interface as values of this package, and back. All zeroes
// stand for none there, null does here.

CalendarDate? dateOrNull(int year, int month, int day) =>
    year == 0 ? null : CalendarDate(year, month, day);

CalendarDate? solarDateOf(CCalendarSolarDate date) =>
    dateOrNull(date.year, date.month, date.day);

LunarDate? lunarDateOf(CCalendarLunarDate date) => date.month == 0
    ? null
    : LunarDate(date.year, date.month, date.day, isLeapMonth: date.leap == 1);

CCalendarSolarDate solarRecordOf(AlmaraBindings bindings, CalendarDate date) =>
    bindings.CreateSolarDate(
      int32(date.year, 'year'),
      int32(date.month, 'month'),
      int32(date.day, 'day'),
      0,
    );

CCalendarLunarDate lunarRecordOf(LunarDate date) =>
    Struct.create<CCalendarLunarDate>()
      ..year = int32(date.year, 'year')
      ..month = int32(date.month, 'month')
      ..day = int32(date.day, 'day')
      ..leap = date.isLeapMonth ? 1 : 0;

/// The value, which the bridge would cut off if it did not fit in 32 bits.
int int32(int value, String name) =>
    RangeError.checkValueInInterval(value, -0x80000000, 0x7fffffff, name);
