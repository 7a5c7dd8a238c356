# SPDX-License-Identifier: MIT
"""The raw Dart bindings, lib/src/almara_bindings.dart: the public headers in the form that the
ffigen of pubspec.yaml gives them, so that a user of the package needs neither ffigen nor libclang.

ffigen.yaml says which calls are leaf calls, for ffigen and for this program.
"""
import re
from pathlib import Path

CONFIGURATION = Path(__file__).resolve().parents[2] / "ffigen.yaml"
WIDTH = 80
PRELUDE = """\
// SPDX-License-Identifier: MIT
// AUTO GENERATED FILE, DO NOT EDIT.
//
// Made from include/almara/ by scripts/interface --write.
// ignore_for_file: type=lint, unused_import, unused_element
import 'dart:ffi' as ffi;

/// The exported functions of the almara calendar engine.
class AlmaraBindings {
  /// Holds the symbol lookup function.
  final ffi.Pointer<T> Function<T extends ffi.NativeType>(String symbolName)
  _lookup;

  /// The symbols are looked up in [dynamicLibrary].
  AlmaraBindings(ffi.DynamicLibrary dynamicLibrary)
    : _lookup = dynamicLibrary.lookup;

  /// The symbols are looked up with [lookup].
  AlmaraBindings.fromLookup(
    ffi.Pointer<T> Function<T extends ffi.NativeType>(String symbolName) lookup,
  ) : _lookup = lookup;
"""

# C type: its name in a native signature, and in Dart.
SCALARS = {"void": ("ffi.Void", "void"), "bool": ("ffi.Bool", "bool"),
           "char": ("ffi.Char", "int"), "double": ("ffi.Double", "double"),
           **{f"{sign}int{bits}_t": (f"ffi.{kind}{bits}", "int")
              for sign, kind in (("", "Int"), ("u", "Uint")) for bits in (8, 16, 32, 64)}}


class Types:
    """Translates C types and remembers the typedefs met in signatures and records."""

    def __init__(self, headers):
        self.headers = headers
        self.typedefs = set()

    def native(self, c_type):
        c_type = c_type.removeprefix("const ")
        if c_type.endswith("*"):
            return f"ffi.Pointer<{self.native(c_type[:-1])}>"
        if c_type in SCALARS:
            return SCALARS[c_type][0]
        if c_type in self.headers.typedefs:
            self.typedefs.add(c_type)
        elif c_type not in self.headers.records:
            raise ValueError(f"no Dart type for {c_type}")
        return c_type

    def dart(self, c_type):
        c_type = c_type.removeprefix("const ")
        if c_type in self.headers.typedefs:
            return self.dart(self.headers.typedefs[c_type].type)
        return SCALARS[c_type][1] if c_type in SCALARS else self.native(c_type)


def documented(comment, indent=""):
    return "".join(f"{indent}/// {line}".rstrip() + "\n" for line in comment.splitlines())


def listed(before, items, after, indent):
    """A list on one line where it fits, else one item a line."""
    line = f"{indent}{before}{', '.join(items)}{after}"
    if len(line) <= WIDTH or not items:
        return line + "\n"
    inner = "".join(f"{indent}  {item},\n" for item in items)
    return f"{indent}{before}\n{inner}{indent}{after}\n"


def signature_lines(signature, indent):
    result, _, parameters = signature.partition("(")
    return listed(f"{result}(", parameters[:-1].split(", "), ")", indent)


def pointer_lookup(name, signature):
    line = f"  late final _{name}Ptr ="
    native = f"_lookup<ffi.NativeFunction<{signature}>>("
    if len(f"{line} {native}'{name}');") <= WIDTH:
        return f"{line} {native}'{name}');\n"
    if len(f"      {native}'{name}');") <= WIDTH:
        return f"{line}\n      {native}'{name}');\n"
    if len(f"      {native}") <= WIDTH:
        return f"{line}\n      {native}\n        '{name}',\n      );\n"
    inner = f"        ffi.NativeFunction<{signature}>\n"
    if len(inner) > WIDTH + 1:
        inner = f"        ffi.NativeFunction<\n{signature_lines(signature, ' ' * 10)}        >\n"
    return f"{line}\n      _lookup<\n{inner}      >('{name}');\n"


def callable_field(name, signature, leaf):
    line, argument = f"  late final _{name} = _{name}Ptr", "isLeaf: true" if leaf else ""
    call = f".asFunction<{signature}>("
    if len(f"{line}{call}{argument});") <= WIDTH:
        return f"{line}{call}{argument});\n"
    if len(f"      {call}{argument});") <= WIDTH:
        return f"{line}\n      {call}{argument});\n"
    if len(f"      {call}") <= WIDTH:
        return f"{line}\n      {call}\n        {argument},\n      );\n"
    return (f"{line}\n      .asFunction<\n{signature_lines(signature, ' ' * 8)}"
            f"      >({argument});\n")


def function_text(function, types, leaf):
    name, parameters = function.name, function.parameters
    result = types.dart(function.result)
    taken = [f"{types.dart(each.type)} {each.name}" for each in parameters]
    native = (f"{types.native(function.result)} "
              f"Function({', '.join(types.native(each.type) for each in parameters)})")
    dart = f"{result} Function({', '.join(types.dart(each.type) for each in parameters)})"
    return ("\n" + documented(function.comment, "  ")
            + listed(f"{result} {name}(", taken, ") {", "  ")
            + listed(f"return _{name}(", [each.name for each in parameters], ");", "    ")
            + "  }\n\n" + pointer_lookup(name, native) + callable_field(name, dart, leaf))


def record_text(record, types):
    fields = []
    for each in record.fields:
        if each.length:
            raise ValueError(f"{record.name}: arrays are not translated")
        native = types.native(each.type)
        plain = native.startswith("ffi.Pointer") or each.type in types.headers.records
        fields.append(documented(each.comment, "  ") + ("" if plain else f"  @{native}()\n")
                      + f"  external {types.dart(each.type)} {each.name};\n")
    base = "Struct" if fields else "Opaque"
    return (f"\n{documented(record.comment)}final class {record.name} extends ffi.{base} {{\n"
            + "\n".join(fields) + "}\n")


def typedef_text(typedef, types):
    return (f"\n{documented(typedef.comment)}typedef {typedef.name} = "
            f"{types.native(typedef.type)};\n"
            f"typedef Dart{typedef.name} = {types.dart(typedef.type)};\n")


def constant_texts(headers):
    texts = {each.name: f"\n{documented(each.comment)}const int {each.name} = {each.value};\n"
             for each in headers.constants.values()}
    for name, value in headers.macros.items():
        if re.fullmatch(r"-?\d+", value):
            texts[name] = f"\nconst int {name} = {value};\n"
        elif re.fullmatch(r'"[^"$\\]*"', value):
            texts[name] = f"\nconst String {name} = '{value[1:-1]}';\n"
    return [texts[name] for name in sorted(texts)]


def sorted_values(declarations):
    return [declarations[name] for name in sorted(declarations)]


def leaf_patterns():
    """What ffigen.yaml includes in the leaf calls, and what it excludes from them."""
    leaf = CONFIGURATION.read_text().partition("  leaf:\n")[2]
    return [re.findall(r"^ {6}- (\S+)$", part, re.MULTILINE) for part in leaf.split("exclude:")]


def is_named(name, patterns):
    return any(re.fullmatch(pattern, name) for pattern in patterns)


def text_of(headers):
    """The whole file."""
    leaves, others = leaf_patterns()
    types = Types(headers)
    functions = [function_text(each, types, is_named(each.name, leaves)
                               and not is_named(each.name, others))
                 for each in sorted_values(headers.functions)]
    declarations = {name: record_text(each, types) for name, each in headers.records.items()}
    declarations.update({name: typedef_text(headers.typedefs[name], types)
                         for name in types.typedefs})
    return "".join([PRELUDE, *functions, "}\n",
                    *sorted_values(declarations), *constant_texts(headers)])
