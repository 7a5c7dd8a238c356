# SPDX-License-Identifier: MIT
"""The constants of the public headers as Dart enumerations, lib/src/codes.dart, each with `unknown`
for a code that a newer library may give.
"""
import re
import textwrap

from dart_bindings import documented

# Typedef: name of the enumeration, what the names of its constants begin with. Other typedefs have
# values beside their constants.
ENUMERATIONS = {
    "ECalendarWeek": ("Weekday", "eCalendarWeek"),
    "ECalendarItem": ("CellKind", "eCalendarItem"),
    "EDispMonth": ("Arrangement", "eDispMonth"),
    "EWeekNumberCalc": ("WeekNumberRule", "eWeekNumberCalc"),
    "ELanguage": ("Region", "eLanguage"),
    "ESolarKyureki24": ("SolarTerm", "eSekki"),
    "EFestivalSolar": ("SolarFestival", "eFestivalSolar"),
    "EFestivalLunar": ("LunarFestival", "eFestivalLunar"),
}
PRELUDE = """\
// SPDX-License-Identifier: MIT
// AUTO GENERATED FILE, DO NOT EDIT.
//
// Made from include/almara/ by scripts/interface --write.
import 'almara_bindings.dart';
"""
ENUMERATION = """
{comment}///
/// A newer library may give codes that are not listed here; they read as
/// [{name}.unknown].
enum {name} {{
{values}
  /// A code that this version of the package does not know.
  unknown(-1);

  const {name}(this.code);

  /// The code in the C interface; -1 for [unknown].
  final int code;

{from_code}}}
"""
FROM_CODE = """\
  /// The value of a [code] of the C interface, [unknown] if there is none.
  static {name} fromCode(int code) => values.firstWhere(
    (each) => each.code == code,
    orElse: () => unknown,
  );
"""
FROM_CODE_OR_NONE = """\
  /// The value of a [code] of the C interface, [unknown] if there is none. Null
  /// for {none}, which stands for no value.
  static {name}? fromCode(int code) => code == {none_name}
      ? null
      : values.firstWhere((each) => each.code == code, orElse: () => unknown);
"""


def wrapped(text, indent=""):
    paragraphs = (" ".join(each.split()) for each in text.split("\n\n"))
    return documented("\n\n".join(textwrap.fill(each, 76 - len(indent)) for each in paragraphs),
                      indent)


def sentence(text):
    return text[:1].upper() + text[1:] + ("" if text.endswith(".") else ".")


def value_text(constant, prefix):
    name = constant.name.removeprefix(prefix)
    comment = f"Code {constant.value}: {' '.join(constant.comment.split())}".rstrip(": ")
    return wrapped(sentence(comment), "  ") + f"  {name[0].lower()}{name[1:]}({constant.name}),\n"


def enumeration_text(typedef, constants):
    name, prefix = ENUMERATIONS[typedef.name]
    none = next((each for each in constants if each.name == f"{prefix}None"), None)
    from_code = FROM_CODE.format(name=name)
    if none:
        from_code = FROM_CODE_OR_NONE.format(name=name, none=none.value, none_name=none.name)
    values = "\n".join(value_text(each, prefix) for each in constants if each is not none)
    # In Dart the functions of the C interface have other names, and null stands for no value.
    comment = re.sub(r"[;.] -?\d+ stands for (none|no term)", "", typedef.comment)
    return ENUMERATION.format(comment=wrapped(comment), name=name, values=values,
                              from_code=from_code)


def text_of(headers):
    """The whole file."""
    return PRELUDE + "".join(enumeration_text(headers.typedefs[each], headers.constants_of(each))
                             for each in ENUMERATIONS)
