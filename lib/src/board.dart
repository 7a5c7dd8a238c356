// SPDX-License-Identifier: MIT
import 'almara_bindings.dart';
import 'codes.dart';
import 'dates.dart';
import 'records.dart';

/// What the engine shows for a date: rows of cells, headings, and the column of
/// week numbers. A value: it does not change when the engine goes on.
final class Board {
  /// A board as given, for the tests of an application; the engine makes those
  /// that it shows.
  const Board({
    this.date,
    this.showsToday = false,
    this.headings = const [],
    this.rows = const [],
    this.weeks = const [],
  });

  /// The date that the board was built for, as it was asked for. Null before
  /// the first build.
  final CalendarDate? date;

  /// Whether today is on the board, in a hidden column included.
  final bool showsToday;

  /// The day of the week over each column, 0 to 7 of them. Unmodifiable.
  final List<Weekday> headings;

  /// The visible rows from the top, 0 to 50 of them, each with one cell for
  /// each of [headings]. Unmodifiable.
  final List<List<BoardCell>> rows;

  /// The column of week numbers from the top. The heights add up to the number
  /// of [rows]. Unmodifiable.
  final List<WeekSpan> weeks;

  /// The dates of the days shown, kept-back days left out, in order.
  Iterable<CalendarDate> get days => rows
      .expand((row) => row)
      .where((each) => each.kind.isDay)
      .map((each) => each.date)
      .nonNulls;

  /// The first day shown; null on a board without days.
  CalendarDate? get firstDay => days.firstOrNull;

  /// The last day shown; null on a board without days.
  CalendarDate? get lastDay => days.lastOrNull;
}

/// One cell of a [Board].
final class BoardCell {
  /// A cell as given.
  const BoardCell({
    required this.kind,
    this.date,
    this.titleMonth,
    this.weekday,
    this.weekNumber,
    required this.row,
    required this.column,
  });

  /// What the cell shows.
  final CellKind kind;

  /// The date shown. Null for [CellKind.empty], [CellKind.monthTitle] and the
  /// fillers of a month interval; a kept-back day ([CellKind.blank]) has one.
  final CalendarDate? date;

  /// The month that begins after a month interval, 1 to 12, where [kind] is
  /// [CellKind.monthTitle]; else null.
  final int? titleMonth;

  /// The day of the week of [date]. Null where [kind] is no day.
  final Weekday? weekday;

  /// The week number, counted so that the start week reads 1. Null where there
  /// is none.
  final int? weekNumber;

  /// The row on the whole board, from 0, hidden rows counted.
  final int row;

  /// The column on the whole board, 0 to 6, hidden columns counted.
  final int column;
}

/// A span: visible rows that share one box in the column of week numbers.
final class WeekSpan {
  /// A span as given.
  const WeekSpan({this.weekNumber, this.secondWeekNumber, required this.rows});

  /// The week number to show. Null where the rows have none.
  final int? weekNumber;

  /// A second week number met in the rows. Null where there is none.
  final int? secondWeekNumber;

  /// How many visible rows the box covers, at least 1.
  final int rows;
}

/// What the [CellKind]s have in common.
extension CellKindGroups on CellKind {
  /// Whether the cell shows a day of the board, today and break days included.
  bool get isDay => this == CellKind.day || isToday || isBreakDay;

  /// Whether the cell shows today.
  bool get isToday => this == CellKind.today || this == CellKind.todayBreakDay;

  /// Whether the cell shows a break day, today included.
  bool get isBreakDay =>
      this == CellKind.breakDay || this == CellKind.todayBreakDay;
}

/// Reads the whole board that [engine] has now.
Board readBoard(AlmaraBindings engine) {
  final columns = engine.GetContentColumns();
  final rows = engine.GetContentRows();
  final spans = engine.GetWeekNumberCount();
  return Board(
    date: solarDateOf(engine.GetContentDate()),
    showsToday: engine.IsTodayInBoard(),
    headings: List<Weekday>.unmodifiable([
      for (var column = 0; column < columns; column++)
        Weekday.fromCode(engine.GetCalendarWeekByColumns(column)),
    ]),
    rows: List<List<BoardCell>>.unmodifiable([
      for (var row = 0; row < rows; row++)
        List<BoardCell>.unmodifiable([
          for (var column = 0; column < columns; column++)
            _cellOf(engine.GetContentItem(row, column)),
        ]),
    ]),
    weeks: List<WeekSpan>.unmodifiable([
      for (var index = 0; index < spans; index++)
        _spanOf(engine.GetWeekNumberItemWithIndex(index)),
    ]),
  );
}

BoardCell _cellOf(tagCalendarCell cell) {
  final kind = CellKind.fromCode(cell.type);
  return BoardCell(
    kind: kind,
    date: dateOrNull(cell.year, cell.month, cell.day),
    titleMonth: kind == CellKind.monthTitle ? cell.month : null,
    weekday: kind.isDay ? Weekday.fromCode(cell.dayOfWeek) : null,
    weekNumber: cell.weekNumber == -1 ? null : cell.weekNumber,
    row: cell.row,
    column: cell.column,
  );
}

WeekSpan _spanOf(tagWeekNumberSpan span) => WeekSpan(
  weekNumber: _numberOrNull(span.weekNumber),
  secondWeekNumber: _numberOrNull(span.secondWeekNumber),
  rows: span.rows,
);

int? _numberOrNull(int number) => number == 0 ? null : number;
