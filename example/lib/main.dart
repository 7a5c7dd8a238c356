// SPDX-License-Identifier: MIT
import 'package:almara/almara.dart';
import 'package:flutter/gestures.dart';
import 'package:flutter/material.dart';
import 'package:flutter/services.dart';

void main() {
  runApp(
    CalendarApp(engine: AlmaraEngine.open(), names: CalendarNames.open()),
  );
}

/// What is known about a day, in the language of a region.
class DayTexts {
  DayTexts(DayNotes notes, CalendarNames names, Region language)
    : lunarDate = notes.lunarDate,
      solarTerm = names.solarTerm(notes.solarTerm, language),
      solarFestival = names.solarFestival(notes.solarFestival, language),
      lunarFestival = names.lunarFestival(notes.lunarFestival, language);

  final LunarDate? lunarDate;
  final String? solarTerm;
  final String? solarFestival;
  final String? lunarFestival;

  /// The festival or solar term of a day, else its day of the lunar month.
  String get brief =>
      lunarFestival ?? solarFestival ?? solarTerm ?? _briefLunarDate;

  String get _briefLunarDate {
    final lunar = lunarDate;
    if (lunar == null) {
      return '';
    }
    return lunar.day == 1 ? 'Moon ${lunar.month}' : '${lunar.day}';
  }
}

class CalendarApp extends StatelessWidget {
  const CalendarApp({super.key, required this.engine, required this.names});

  final AlmaraEngine engine;
  final CalendarNames names;

  @override
  Widget build(BuildContext context) {
    return MaterialApp(
      title: 'almara',
      theme: _themeOf(Brightness.light),
      darkTheme: _themeOf(Brightness.dark),
      home: MonthPage(engine: engine, names: names),
    );
  }

  ThemeData _themeOf(Brightness brightness) => ThemeData(
    colorScheme: ColorScheme.fromSeed(
      seedColor: Colors.indigo,
      brightness: brightness,
    ),
  );
}

/// A month that turns with the wheel, with PageUp and PageDown, and goes back
/// to today with Home.
class MonthPage extends StatefulWidget {
  const MonthPage({super.key, required this.engine, required this.names});

  final AlmaraEngine engine;
  final CalendarNames names;

  @override
  State<MonthPage> createState() => _MonthPageState();
}

class _MonthPageState extends State<MonthPage> {
  Region _region = Region.chs;
  late Board _board;
  Map<CalendarDate, DayTexts> _texts = const {};
  CalendarDate? _selected;

  @override
  void initState() {
    super.initState();
    // What was set before a hot restart still holds, so set all that matters.
    widget.engine
      ..printsBoards = false
      ..countsCivilDays = true
      ..arrangement = Arrangement.wholeMonth
      ..showsMonthIntervals = false;
    _take(widget.engine.start(_region));
    _selected = widget.engine.today;
  }

  /// Keeps a board and the texts of its days, asked in their order.
  void _take(Board board) {
    _board = board;
    _texts = {for (final day in board.days) day: _textsOf(day)};
  }

  DayTexts _textsOf(CalendarDate date) =>
      DayTexts(widget.engine.annotate(date), widget.names, _region);

  void _show(Board board) => setState(() => _take(board));

  void _start(Region region) {
    _region = region;
    _show(widget.engine.start(region));
  }

  void _goToToday() {
    _selected = widget.engine.today;
    _show(widget.engine.goToToday());
  }

  void _previous() => _show(widget.engine.previousPage());

  void _next() => _show(widget.engine.nextPage());

  void _onSignal(PointerSignalEvent event) {
    if (event is PointerScrollEvent && event.scrollDelta.dy != 0) {
      GestureBinding.instance.pointerSignalResolver.register(
        event,
        (_) => event.scrollDelta.dy > 0 ? _next() : _previous(),
      );
    }
  }

  @override
  Widget build(BuildContext context) {
    return CallbackShortcuts(
      bindings: {
        const SingleActivator(LogicalKeyboardKey.pageUp): _previous,
        const SingleActivator(LogicalKeyboardKey.pageDown): _next,
        const SingleActivator(LogicalKeyboardKey.home): _goToToday,
      },
      child: Focus(
        autofocus: true,
        child: Scaffold(
          appBar: AppBar(title: Text(_title(context)), actions: _actions()),
          body: Listener(
            behavior: HitTestBehavior.opaque,
            onPointerSignal: _onSignal,
            child: Row(
              crossAxisAlignment: CrossAxisAlignment.stretch,
              children: [
                Expanded(child: _boardView()),
                SizedBox(width: 280, child: _details()),
              ],
            ),
          ),
        ),
      ),
    );
  }

  String _title(BuildContext context) {
    final date = _board.date;
    return date == null
        ? ''
        : MaterialLocalizations.of(context).formatMonthYear(date.toUtc());
  }

  List<Widget> _actions() => [
    IconButton(
      tooltip: 'Previous month',
      onPressed: _previous,
      icon: const Icon(Icons.chevron_left),
    ),
    TextButton(onPressed: _goToToday, child: const Text('Today')),
    IconButton(
      tooltip: 'Next month',
      onPressed: _next,
      icon: const Icon(Icons.chevron_right),
    ),
    RegionMenu(names: widget.names, region: _region, onSelected: _start),
  ];

  Widget _boardView() => BoardView(
    board: _board,
    texts: _texts,
    selected: _selected,
    onSelected: (date) => setState(() => _selected = date),
  );

  Widget _details() {
    final date = _selected;
    return date == null
        ? const SizedBox()
        : DayDetails(date: date, texts: _textsOf(date));
  }
}

class RegionMenu extends StatelessWidget {
  const RegionMenu({
    super.key,
    required this.names,
    required this.region,
    required this.onSelected,
  });

  final CalendarNames names;
  final Region region;
  final ValueChanged<Region> onSelected;

  @override
  Widget build(BuildContext context) {
    return MenuAnchor(
      menuChildren: [
        for (final choice in Region.values)
          if (choice != Region.unknown)
            MenuItemButton(
              onPressed: () => onSelected(choice),
              child: Text(_nameOf(choice)),
            ),
      ],
      builder: (context, controller, child) => TextButton.icon(
        onPressed: () {
          if (controller.isOpen) {
            controller.close();
          } else {
            controller.open();
          }
        },
        icon: const Icon(Icons.public),
        label: Text(_nameOf(region)),
      ),
    );
  }

  /// What its speakers call it.
  String _nameOf(Region region) => names.region(region, region) ?? '';
}

/// Headings, the column of week numbers, and the cells.
class BoardView extends StatelessWidget {
  const BoardView({
    super.key,
    required this.board,
    required this.texts,
    required this.selected,
    required this.onSelected,
  });

  static const double weekWidth = 48;

  final Board board;
  final Map<CalendarDate, DayTexts> texts;
  final CalendarDate? selected;
  final ValueChanged<CalendarDate> onSelected;

  @override
  Widget build(BuildContext context) {
    return Column(
      children: [
        Row(
          children: [
            const SizedBox(width: weekWidth, height: 32),
            for (final day in board.headings)
              Expanded(
                child: Text(
                  _headingOf(day),
                  textAlign: TextAlign.center,
                  overflow: TextOverflow.ellipsis,
                ),
              ),
          ],
        ),
        Expanded(
          child: Row(
            crossAxisAlignment: CrossAxisAlignment.stretch,
            children: [
              SizedBox(width: weekWidth, child: _weeks()),
              Expanded(child: _cells()),
            ],
          ),
        ),
      ],
    );
  }

  Widget _weeks() => Column(
    children: [
      for (final week in board.weeks)
        Expanded(
          flex: week.rows,
          child: Center(child: Text('${week.weekNumber ?? ''}')),
        ),
    ],
  );

  Widget _cells() => Column(
    children: [
      for (final row in board.rows)
        Expanded(
          child: Row(
            crossAxisAlignment: CrossAxisAlignment.stretch,
            children: [for (final cell in row) Expanded(child: _cell(cell))],
          ),
        ),
    ],
  );

  Widget _cell(BoardCell cell) {
    final date = cell.date;
    if (date == null || !cell.kind.isDay) {
      return const SizedBox();
    }
    return DayCell(
      date: date,
      kind: cell.kind,
      note: texts[date]?.brief ?? '',
      inMonth: date.month == board.date?.month,
      selected: date == selected,
      onTap: () => onSelected(date),
    );
  }

  String _headingOf(Weekday day) =>
      day.name[0].toUpperCase() + day.name.substring(1);
}

class DayCell extends StatelessWidget {
  const DayCell({
    super.key,
    required this.date,
    required this.kind,
    required this.note,
    required this.inMonth,
    required this.selected,
    required this.onTap,
  });

  final CalendarDate date;
  final CellKind kind;
  final String note;
  final bool inMonth;
  final bool selected;
  final VoidCallback onTap;

  @override
  Widget build(BuildContext context) {
    final colors = Theme.of(context).colorScheme;
    final color = kind.isBreakDay ? colors.error : colors.onSurface;
    return Semantics(
      button: true,
      selected: selected,
      label: '$date, $note',
      excludeSemantics: true,
      onTap: onTap,
      child: Opacity(
        opacity: inMonth ? 1 : 0.4,
        child: Card.outlined(
          color: kind.isToday ? colors.primaryContainer : null,
          shape: selected
              ? RoundedRectangleBorder(
                  side: BorderSide(color: colors.primary, width: 2),
                )
              : null,
          child: InkWell(
            onTap: onTap,
            child: Padding(
              padding: const EdgeInsets.all(6),
              child: Column(
                crossAxisAlignment: CrossAxisAlignment.start,
                children: [
                  Text('${date.day}', style: TextStyle(color: color)),
                  Flexible(
                    child: Text(
                      note,
                      style: Theme.of(context).textTheme.bodySmall,
                      overflow: TextOverflow.ellipsis,
                    ),
                  ),
                ],
              ),
            ),
          ),
        ),
      ),
    );
  }
}

/// Everything about one day.
class DayDetails extends StatelessWidget {
  const DayDetails({super.key, required this.date, required this.texts});

  final CalendarDate date;
  final DayTexts texts;

  @override
  Widget build(BuildContext context) {
    final full = MaterialLocalizations.of(context).formatFullDate(date.toUtc());
    return ListView(
      padding: const EdgeInsets.all(16),
      children: [
        Text(full, style: Theme.of(context).textTheme.titleMedium),
        _line('Lunar date', texts.lunarDate?.toString()),
        _line('Solar term', texts.solarTerm),
        _line('Festival', texts.solarFestival),
        _line('Lunar festival', texts.lunarFestival),
      ],
    );
  }

  Widget _line(String title, String? text) => text == null
      ? const SizedBox()
      : ListTile(
          contentPadding: EdgeInsets.zero,
          title: Text(text),
          subtitle: Text(title),
        );
}
