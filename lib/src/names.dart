// SPDX-License-Identifier: MIT
import 'dart:ffi';

import 'package:ffi/ffi.dart';

import 'almara_bindings.dart';
import 'codes.dart';

/// The names of solar terms, festivals and regions.
///
/// There are tables in English, Chinese (simplified and traditional), Korean,
/// Japanese, Vietnamese, German, Russian and Thai, each with all of them. A
/// [Region] chooses one; [Region.usa], [Region.eng] and [Region.unknown] choose
/// English.
///
/// It does not depend on an engine and may be used from any isolate. Each
/// function answers null for null and for the `unknown` of an enumeration, so
/// that the fields of `DayNotes` may be handed over as they are.
class CalendarNames {
  /// Opens the library in the application's bundle, or the file [path]: outside
  /// a bundle, as in tests, the stand-alone `libalmara.so.1`.
  ///
  /// Throws [ArgumentError] where the library cannot be loaded: on every
  /// platform but Linux.
  CalendarNames.open([String path = 'libalmara_plugin.so'])
    : _c = AlmaraBindings(DynamicLibrary.open(path));

  final AlmaraBindings _c;

  /// The name of [term].
  String? solarTerm(SolarTerm? term, Region language) => term == null
      ? null
      : _textOf(_c.AlmaraSolarTermName(term.code, language.code));

  /// The name of [term] in at most nine cells of a terminal, of which a Chinese
  /// character takes two, to stand under a day.
  String? solarTermBrief(SolarTerm? term, Region language) => term == null
      ? null
      : _textOf(_c.AlmaraSolarTermBriefName(term.code, language.code));

  /// The name of [festival].
  String? solarFestival(SolarFestival? festival, Region language) =>
      _festival(festival?.code, language);

  /// The name of [festival] in at most nine cells.
  String? solarFestivalBrief(SolarFestival? festival, Region language) =>
      _festivalBrief(festival?.code, language);

  /// The name of [festival].
  String? lunarFestival(LunarFestival? festival, Region language) =>
      _festival(festival?.code, language);

  /// The name of [festival] in at most nine cells.
  String? lunarFestivalBrief(LunarFestival? festival, Region language) =>
      _festivalBrief(festival?.code, language);

  /// The name of [region], for a menu: that of its language. With [region] as
  /// [language] it is what its speakers call it.
  String? region(Region region, Region language) =>
      _textOf(_c.AlmaraRegionName(region.code, language.code));

  String? _festival(int? code, Region language) => code == null
      ? null
      : _textOf(_c.AlmaraFestivalName(code, language.code));

  String? _festivalBrief(int? code, Region language) => code == null
      ? null
      : _textOf(_c.AlmaraFestivalBriefName(code, language.code));

  static String? _textOf(Pointer<Char> text) =>
      text == nullptr ? null : text.cast<Utf8>().toDartString();
}
