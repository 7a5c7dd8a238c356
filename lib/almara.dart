// SPDX-License-Identifier: MIT
/// A month board, lunisolar dates, solar terms and festivals for desktop
/// calendars.
///
/// ```dart
/// final engine = AlmaraEngine.open()
///   ..printsBoards = false
///   ..countsCivilDays = true
///   ..arrangement = Arrangement.wholeMonth
///   ..showsMonthIntervals = false;
/// var board = engine.start(Region.chs);
/// board = engine.goTo(const CalendarDate(2024, 2, 10));
/// final notes = engine.annotate(board.date!);
/// print(notes.lunarDate); // 2024-1-1
/// ```
///
/// The library of a process holds one engine. Drive it from one isolate, the
/// one that draws: every call is short, and nothing but the building of boards
/// is locked. `Almanac` and `CalendarNames` may be used from any isolate.
///
/// Comments of the enumerations come from the C headers in `include/almara/`
/// and name C functions.
library;

export 'src/almanac.dart';
export 'src/board.dart' show Board, BoardCell, CellKindGroups, WeekSpan;
export 'src/codes.dart';
export 'src/dates.dart';
export 'src/engine.dart';
export 'src/names.dart';
