// SPDX-License-Identifier: MIT
/// The method channel of the plugin. Apart from `almara.dart`, which needs no
/// Flutter and so can be tested with `dart test`.
library;

import 'package:flutter/services.dart';

/// What the plugin object answers over the method channel `almara`.
abstract final class AlmaraPlatform {
  static const MethodChannel _channel = MethodChannel('almara');

  /// `Linux ` and the version text of the running kernel.
  ///
  /// Throws [MissingPluginException] where the plugin is not registered: on
  /// other platforms, and under `flutter test`.
  static Future<String?> version() =>
      _channel.invokeMethod<String>('getPlatformVersion');
}
