#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The Dart bindings, read back as Dart, against the headers: the same signatures, and the sizes,
offsets and values that a C compiler gives.

    bindings_test.py [<file>]     a file that ffigen has made instead of the committed one
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts/lib"))
import interface  # noqa: E402

FILE = Path(sys.argv.pop()) if len(sys.argv) > 1 else ROOT / "lib/src/almara_bindings.dart"
HEADERS = interface.read(*interface.ENGINE_HEADERS)

# C type: in a native signature, in Dart.
TYPES = {"void": ("ffi.Void", "void"), "bool": ("ffi.Bool", "bool"),
         "int32_t": ("ffi.Int32", "int"), "int64_t": ("ffi.Int64", "int"),
         "double": ("ffi.Double", "double"),
         "char*": ("ffi.Pointer<ffi.Char>",) * 2, "const char*": ("ffi.Pointer<ffi.Char>",) * 2,
         **{name: (name, name) for name in HEADERS.records}}
SIZES = {"ffi.Bool": 1, "ffi.Int32": 4, "ffi.Int64": 8, "ffi.Double": 8}


def resolved(c_type):
    typedef = HEADERS.typedefs.get(c_type)
    return resolved(typedef.type) if typedef else c_type


def expected_signature(function, side):
    parameters = ", ".join(TYPES[resolved(each.type)][side] for each in function.parameters)
    return f"{TYPES[resolved(function.result)][side]} Function({parameters})"


class Dart:
    """What a file of bindings declares, with one blank between words and typedefs resolved."""

    def __init__(self, text):
        text = re.sub(r"^\s*///.*\n", "", text, flags=re.MULTILINE)
        self.text = re.sub(r",? (?=[)>])|(?<=[(<]) ", "", re.sub(r"\s+", " ", text))
        self.typedefs = dict(re.findall(r"typedef (\w+) = ([\w.]+);", self.text))

    def native(self, text):
        return re.sub(r"\b\w+\b", lambda match: self.typedefs.get(match[0], match[0]), text)

    def native_functions(self):
        found = re.findall(r"late final _(\w+)Ptr = _lookup<ffi\.NativeFunction<(.*?\))>>"
                           r"\('(\w+)'\);", self.text)
        assert all(field == symbol for field, _, symbol in found)
        return {symbol: self.native(signature) for symbol, signature, _ in found}

    def dart_functions(self):
        """Of those whose call passes on to the pointer of the same name."""
        found = {}
        for result, name, parameters, arguments in re.findall(
                r"([\w.<>]+) (\w+)\(([^()]*)\) \{ return _\2\(([^()]*)\); \}", self.text):
            types = [each.rpartition(" ")[0] for each in parameters.split(", ") if each]
            names = [each.rpartition(" ")[2] for each in parameters.split(", ") if each]
            assert ", ".join(names) == arguments, name
            found[name] = f"{result} Function({', '.join(types)})"
        return found

    def called_as(self):
        return dict(re.findall(r"late final _(\w+) = _\1Ptr ?\.asFunction<(.*?\))>\(", self.text))

    def leaves(self):
        return set(re.findall(r"_(\w+)Ptr ?\.asFunction<[^;]*>\(isLeaf: true\)", self.text))

    def records(self):
        """name -> fields as (name, native type, Dart type)."""
        found = {}
        for name, body in re.findall(r"final class (\w+) extends ffi\.Struct \{(.*?)\}", self.text):
            found[name] = [(field, self.native(native), dart) for native, dart, field in re.findall(
                r"@([\w.]+)\(\) external (\w+) (\w+);", body)]
            assert body.count("external") == len(found[name])
        return found

    def constants(self):
        return {name: value for name, value in re.findall(
            r"const (?:int|String) (\w+) = ('[^']*'|-?\d+);", self.text)}


def layout(fields):
    """Size and offsets of a record by the rules of the platform."""
    offsets, place = [], 0
    for _, native, _ in fields:
        place += -place % SIZES[native]
        offsets.append(place)
        place += SIZES[native]
    return place + -place % max(SIZES[native] for _, native, _ in fields), offsets


def compiled():
    """Lines that a C program prints: the layout of each record and the value of each constant."""
    lines = [f'printf("{name} %zu{" %zu" * len(record.fields)}\\n", sizeof({name})'
             + "".join(f", offsetof({name}, {field.name})" for field in record.fields) + ");"
             for name, record in HEADERS.records.items()]
    lines += [f'printf("{name} %d\\n", (int){name});' for name in HEADERS.constants]
    includes = "".join(f"#include <{name}>\n" for name in
                       ("stddef.h", "stdio.h", *interface.ENGINE_HEADERS))
    with tempfile.TemporaryDirectory() as folder:
        source = Path(folder, "probe.c")
        source.write_text(f"{includes}int main(void) {{\n" + "\n".join(lines) + "\n}\n")
        program = Path(folder, "probe")
        subprocess.run([os.environ.get("CC", "cc"), f"-I{ROOT / 'include'}", source, "-o", program],
                       check=True)
        return subprocess.run([program], check=True, capture_output=True,
                              text=True).stdout.splitlines()


class BindingsTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.dart = Dart(FILE.read_text())

    def test_signatures(self):
        functions = HEADERS.functions.values()
        native = {each.name: expected_signature(each, 0) for each in functions}
        dart = {each.name: expected_signature(each, 1) for each in functions}
        self.assertEqual(self.dart.native_functions(), native)
        self.assertEqual(self.dart.dart_functions(), dart)
        self.assertEqual(self.dart.called_as(), dart)

    def test_leaf_calls_are_short(self):
        leaves = self.dart.leaves()
        self.assertIn("GetContentItem", leaves)
        slow = {name for name, each in HEADERS.functions.items()
                if each.section in ("Building and navigating", "Annotating dates")}
        self.assertGreater(len(slow), 10)
        self.assertEqual(leaves & (slow | {"GetToday", "GetConfigKey", "SetCivilDays"}), set())

    def test_layout_and_values(self):
        records, constants = self.dart.records(), self.dart.constants()
        lines = [" ".join(map(str, (name, layout(fields)[0], *layout(fields)[1])))
                 for name, fields in records.items()]
        lines += [f"{name} {constants[name]}" for name in HEADERS.constants]
        self.assertEqual(sorted(lines), sorted(compiled()))
        for name, record in HEADERS.records.items():
            self.assertEqual(records[name], [(field.name, *TYPES[resolved(field.type)])
                                             for field in record.fields], name)

    def test_macros(self):
        constants = self.dart.constants()
        macros = {name: value.replace('"', "'") for name, value in HEADERS.macros.items()
                  if name.startswith("ALMARA_VERSION")}
        self.assertEqual(len(macros), 4)
        self.assertLessEqual(macros.items(), constants.items())


if __name__ == "__main__":
    unittest.main()
