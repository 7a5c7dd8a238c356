// SPDX-License-Identifier: MIT
@TestOn('linux')
library;

import 'dart:io';

import 'package:almara/almara.dart';
import 'package:test/test.dart';

void main() {
  // The stand-alone library; a bundle exists in an application only.
  final path = Platform.environment['ALMARA_LIBRARY'];
  final skip = path == null
      ? 'ALMARA_LIBRARY does not name libalmara.so.1'
      : false;

  group('engine', () {
    late AlmaraEngine engine;

    // The options belong to the process: each test says what it needs.
    setUp(() {
      engine = AlmaraEngine.open(path!)
        ..printsBoards = false
        ..arrangement = Arrangement.wholeMonth
        ..startDayOfWeek = Weekday.monday
        ..showsMonthIntervals = false
        ..showsBreakDays = true
        ..breakDays = {Weekday.saturday, Weekday.sunday};
    });

    test('reads a month', () {
      engine.start(Region.chs);
      final board = engine.goTo(const CalendarDate(2024, 2, 10));
      expect(board.date, const CalendarDate(2024, 2, 10));
      expect(board.headings, hasLength(7));
      expect(board.headings.first, Weekday.monday);
      expect(board.rows, hasLength(5));
      expect(board.rows.map((row) => row.length), everyElement(7));
      expect(board.firstDay, const CalendarDate(2024, 1, 29));
      expect(board.lastDay, const CalendarDate(2024, 3, 3));
      expect(board.weeks.map((week) => week.weekNumber), [5, 6, 7, 8, 9]);
      expect(board.weeks.map((week) => week.rows), everyElement(1));
      final cell = board.rows[1][5];
      expect(cell.date, board.date);
      expect(cell.kind, CellKind.breakDay);
      expect(cell.weekday, Weekday.saturday);
      expect(cell.weekNumber, 6);
      expect(() => board.rows.clear(), throwsUnsupportedError);
      expect(() => board.rows.first.clear(), throwsUnsupportedError);
    });

    test('reads month intervals', () {
      engine
        ..arrangement = Arrangement.rollingWeeks
        ..showsMonthIntervals = true
        ..start(Region.chs);
      final board = engine.goTo(const CalendarDate(2024, 2, 1));
      final titles = board.rows
          .expand((row) => row)
          .where((cell) => cell.kind == CellKind.monthTitle);
      expect(titles, isNotEmpty);
      expect(titles.first.date, isNull);
      expect(titles.first.weekday, isNull);
      expect(titles.first.titleMonth, isNotNull);
      expect(
        board.weeks.fold(0, (sum, week) => sum + week.rows),
        board.rows.length,
      );
    });

    test('turns pages', () {
      engine.start(Region.usa);
      engine.goTo(const CalendarDate(2024, 12, 31));
      expect(engine.nextPage().date, const CalendarDate(2025, 1, 1));
      expect(engine.previousPage().date, const CalendarDate(2024, 12, 1));
      expect(engine.goToToday().date, engine.today);
      expect(engine.goToTodayOffset(0).date, engine.today);
      expect(engine.rebuild().showsToday, isTrue);
    });

    test('annotates a date', () {
      engine.start(Region.chs);
      final notes = engine.annotate(const CalendarDate(2024, 2, 10));
      expect(notes.lunarDate, const LunarDate(2024, 1, 1));
      expect(notes.lunarFestival, LunarFestival.newYearsDay);
      expect(notes.solarFestival, isNull);
      expect(notes.solarTerm, isNull);
      expect(
        engine.annotate(const CalendarDate(2023, 3, 22)).lunarDate,
        const LunarDate(2023, 2, 1, isLeapMonth: true),
      );
      expect(
        engine.annotate(const CalendarDate(2024, 6, 21)).solarTerm,
        SolarTerm.summerSolstice,
      );
      expect(
        engine.annotate(const CalendarDate(2024, 10, 1)).solarFestival,
        SolarFestival.nationalDayChs,
      );
    });

    test('follows a change of region', () {
      // The new moon of that month falls on different days in the two zones.
      const date = CalendarDate(2051, 11, 3);
      engine.start(Region.chs);
      expect(engine.annotate(date).lunarDate, const LunarDate(2051, 10, 1));
      engine.start(Region.kor);
      expect(engine.annotate(date).lunarDate, const LunarDate(2051, 9, 30));
    });

    test('finds Easter Sunday in any order', () {
      engine.start(Region.usa);
      for (final date in const [
        CalendarDate(2024, 3, 31),
        CalendarDate(2025, 4, 20),
      ]) {
        expect(engine.annotate(date).solarFestival, SolarFestival.easter);
      }
      expect(
        engine.annotate(const CalendarDate(2024, 3, 29)).solarFestival,
        SolarFestival.goodFriday,
      );
      expect(
        engine.annotate(const CalendarDate(2024, 3, 24)).solarFestival,
        isNull,
      );
      expect(
        engine.annotate(const CalendarDate(2024, 0x7fffffff, 1)).solarFestival,
        isNull,
      );
    });

    test('tells the version of the library', () {
      expect(engine.libraryVersion, matches(RegExp(r'^\d+\.\d+\.\d+$')));
    });

    test('options read back what was set', () {
      expect(engine.printsBoards, isFalse);
      engine
        ..maxRows = 6
        ..passedWeeks = 2
        ..startWeekNumber = 3
        ..weekNumberRule = WeekNumberRule.fromJan1
        ..startDayOfWeek = Weekday.sunday
        ..showsMonthIntervals = true
        ..showsBreakDays = false
        ..countsCivilDays = true
        ..breakDays = {Weekday.friday};
      expect(engine.configKey, '3-6-7-2-0-3-0-0-1-(0-0-0-0-1-0-0)-0');
      expect(engine.maxRows, 6);
      expect(engine.passedWeeks, 2);
      expect(engine.startWeekNumber, 3);
      expect(engine.weekNumberRule, WeekNumberRule.fromJan1);
      expect(engine.startDayOfWeek, Weekday.sunday);
      expect(engine.showsMonthIntervals, isTrue);
      expect(engine.showsBreakDays, isFalse);
      expect(engine.countsCivilDays, isTrue);
      expect(engine.breakDays, {Weekday.friday});
      engine
        ..maxRows = 5
        ..passedWeeks = 1
        ..startWeekNumber = 1
        ..weekNumberRule = WeekNumberRule.iso8601
        ..countsCivilDays = false
        ..showsMonthIntervals = false;
      expect(engine.showsMonthIntervals, isFalse);
    });

    test('rejects what the engine would not understand', () {
      expect(
        () => engine.annotate(const CalendarDate(2024, 1, 1)),
        throwsStateError,
      );
      engine.start(Region.chs);
      expect(
        () => engine.annotate(const CalendarDate(0x80000000, 1, 1)),
        throwsRangeError,
      );
      for (final date in const [
        CalendarDate(1899, 12, 31),
        CalendarDate(2100, 1, 1),
        CalendarDate(2024, 13, 1),
        CalendarDate(2024, 1, 32),
      ]) {
        expect(() => engine.goTo(date), throwsRangeError);
      }
      expect(() => engine.maxRows = 51, throwsRangeError);
      expect(() => engine.goToTodayOffset(2401), throwsRangeError);
      expect(
        () => engine.arrangement = Arrangement.unknown,
        throwsArgumentError,
      );
    });
  }, skip: skip);

  group('almanac', () {
    late Almanac almanac;
    setUp(() => almanac = Almanac.open(path!));

    test('has the published dates, in both directions', () {
      const date = CalendarDate(2033, 12, 22);
      const lunar = LunarDate(2033, 11, 1, isLeapMonth: true);
      expect(almanac.lunarDate(AlmanacCalendar.china, date), lunar);
      expect(almanac.solarDate(AlmanacCalendar.china, lunar), date);
      expect(
        almanac.lunarDate(
          AlmanacCalendar.china,
          const CalendarDate(2023, 2, 30),
        ),
        isNull,
      );
      expect(almanac.leapMonth(AlmanacCalendar.china, 2033), 11);
      expect(almanac.leapMonth(AlmanacCalendar.china, 2024), 0);
      expect(almanac.monthsOfYear(AlmanacCalendar.china, 2033), 13);
      expect(
        almanac.firstDayOfYear(AlmanacCalendar.china, 2024),
        const CalendarDate(2024, 2, 10),
      );
    });

    test('finds anniversaries', () {
      expect(
        almanac.nextAnniversary(
          AlmanacCalendar.korea,
          const LunarDate(0, 8, 15),
          from: const CalendarDate(2026, 1, 1),
        ),
        const CalendarDate(2026, 9, 25),
      );
    });

    test('times the terms', () {
      final time = almanac.termTime(
        AlmanacCalendar.china,
        2084,
        SolarTerm.springEquinox,
      );
      expect(time?.date, const CalendarDate(2084, 3, 20));
      expect(time?.clock, DateTime.utc(2084, 3, 20, 0, 0, 29));
      expect(time?.utc, DateTime.utc(2084, 3, 19, 16, 0, 29));
      expect(time?.uncertainty, const Duration(seconds: 80));
      expect(time?.isDateCertain, isFalse);
    });

    test('has calendars for regions and for offsets', () {
      expect(almanac.calendarOf(Region.kor), AlmanacCalendar.korea);
      expect(almanac.calendarOf(Region.usa), AlmanacCalendar.china);
      expect(almanac.calendarAtOffset(const Duration(hours: 19)), isNull);
      final calendar = almanac.calendarAtOffset(const Duration(hours: 8));
      expect(
        almanac.termOf(calendar!, const CalendarDate(2024, 6, 21)),
        SolarTerm.summerSolstice,
      );
    });
  }, skip: skip);

  group('names', () {
    late CalendarNames names;
    setUp(() => names = CalendarNames.open(path!));

    test('come in the language of a region', () {
      const term = SolarTerm.winterSolstice;
      expect(names.solarTerm(term, Region.chs), '冬至');
      expect(names.solarTerm(term, Region.deu), 'Wintersonnenwende');
      expect(names.solarTermBrief(term, Region.deu), 'Sonnenw.');
      const christmas = SolarFestival.christmasDay;
      expect(names.solarFestival(christmas, Region.usa), 'Christmas Day');
      expect(names.solarFestivalBrief(christmas, Region.usa), 'Christmas');
      const autumn = LunarFestival.midAutumn;
      expect(names.lunarFestival(autumn, Region.kor), '추석');
      expect(names.lunarFestivalBrief(autumn, Region.vit), 'Trung thu');
      expect(names.region(Region.deu, Region.deu), 'Deutsch');
    });

    test('are there for every value', () {
      for (final region in Region.values) {
        for (final value in SolarTerm.values) {
          expect(
            names.solarTerm(value, region) == null,
            value == SolarTerm.unknown,
          );
        }
        for (final value in SolarFestival.values) {
          expect(
            names.solarFestival(value, region) == null,
            value == SolarFestival.unknown,
          );
        }
        for (final value in LunarFestival.values) {
          expect(
            names.lunarFestival(value, region) == null,
            value == LunarFestival.unknown,
          );
        }
      }
      expect(names.solarTerm(null, Region.chs), isNull);
      expect(names.region(Region.unknown, Region.chs), isNull);
    });
  }, skip: skip);

  test('a board lists the days shown', () {
    const kept = CalendarDate(2024, 1, 31);
    const first = CalendarDate(2024, 2, 1);
    const last = CalendarDate(2024, 2, 2);
    const board = Board(
      rows: [
        [
          BoardCell(
            kind: CellKind.monthTitle,
            titleMonth: 2,
            row: 0,
            column: 0,
          ),
          BoardCell(kind: CellKind.blank, date: kept, row: 0, column: 1),
          BoardCell(kind: CellKind.breakDay, date: first, row: 0, column: 2),
        ],
        [BoardCell(kind: CellKind.today, date: last, row: 1, column: 0)],
      ],
      weeks: [WeekSpan(weekNumber: 5, rows: 2)],
    );
    expect(board.days, [first, last]);
    expect(board.firstDay, first);
    expect(board.lastDay, last);
    expect(const Board().firstDay, isNull);
    expect(const Board().days, isEmpty);
  });

  test('codes that nobody knows read as unknown', () {
    expect(Weekday.fromCode(7), Weekday.unknown);
    expect(SolarTerm.fromCode(-1), isNull);
    expect(SolarTerm.fromCode(24), SolarTerm.unknown);
    expect(SolarFestival.fromCode(0), isNull);
    expect(SolarFestival.fromCode(1011), SolarFestival.christmasDay);
    expect(LunarFestival.fromCode(20011), LunarFestival.unknown);
  });

  test('dates are values', () {
    const date = CalendarDate(2024, 2, 29);
    expect(date, CalendarDate.of(DateTime.utc(2024, 2, 29, 23, 59)));
    expect(date.hashCode, const CalendarDate(2024, 2, 29).hashCode);
    expect(date.exists, isTrue);
    expect(const CalendarDate(2023, 2, 29).exists, isFalse);
    expect(date.weekday, Weekday.thursday);
    expect(const CalendarDate(2024, 3, 3).weekday, Weekday.sunday);
    expect(date.addDays(1), const CalendarDate(2024, 3, 1));
    expect(date.compareTo(const CalendarDate(2024, 3, 1)), isNegative);
    expect(date.toUtc().isUtc, isTrue);
    expect('$date', '2024-02-29');
    const lunar = LunarDate(2023, 2, 1, isLeapMonth: true);
    expect('$lunar', '2023-leap 2-1');
  });
}
