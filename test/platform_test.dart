// SPDX-License-Identifier: MIT
import 'package:almara/almara_platform.dart';
import 'package:flutter/services.dart';
import 'package:flutter_test/flutter_test.dart';

void main() {
  TestWidgetsFlutterBinding.ensureInitialized();

  test('asks for the version on the channel of the plugin', () async {
    final calls = <String>[];
    TestDefaultBinaryMessengerBinding.instance.defaultBinaryMessenger
        .setMockMethodCallHandler(const MethodChannel('almara'), (call) async {
          calls.add(call.method);
          return 'Linux #1 SMP';
        });
    expect(await AlmaraPlatform.version(), 'Linux #1 SMP');
    expect(calls, ['getPlatformVersion']);
  });
}
