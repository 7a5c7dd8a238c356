// SPDX-License-Identifier: MIT
import 'dart:io';

import 'package:almara/almara.dart';
import 'package:almara_example/main.dart';
import 'package:flutter/gestures.dart';
import 'package:flutter/material.dart';
import 'package:flutter/services.dart';
import 'package:flutter_test/flutter_test.dart';

void main() {
  // There is no bundle under `flutter test`; this names libalmara.so.1.
  final path = Platform.environment['ALMARA_LIBRARY'];

  String titleOf(int monthsFromNow) {
    final now = DateTime.now();
    return const DefaultMaterialLocalizations().formatMonthYear(
      DateTime.utc(now.year, now.month + monthsFromNow),
    );
  }

  testWidgets('turns pages by key and by wheel', (tester) async {
    tester.view.physicalSize = const Size(1280, 720);
    tester.view.devicePixelRatio = 1;
    addTearDown(tester.view.reset);
    await tester.pumpWidget(CalendarApp(engine: AlmaraEngine.open(path!)));
    await tester.pump();
    expect(find.text(titleOf(0)), findsOneWidget);

    await tester.sendKeyEvent(LogicalKeyboardKey.pageDown);
    await tester.pump();
    expect(find.text(titleOf(1)), findsOneWidget);

    final mouse = TestPointer(1, PointerDeviceKind.mouse);
    mouse.hover(tester.getCenter(find.byType(BoardView)));
    await tester.sendEventToBinding(mouse.scroll(const Offset(0, -40)));
    await tester.pump();
    expect(find.text(titleOf(0)), findsOneWidget);
  }, skip: path == null);
}
