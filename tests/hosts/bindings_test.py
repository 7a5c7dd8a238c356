#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The bindings that the hosts bring along declare what the header declares, all of it."""
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/abi"))
from interface import Interface  # noqa: E402

HEADER = Interface()
TWO_SCREENS = 130


def text_of(example):
    return (ROOT / "hosts" / example).read_text()


class BindingsTest(unittest.TestCase):
    def test_functions(self):
        for example in ("python/almara.py", "node/almara.js"):
            declared = re.findall(r"^(\S+ \w+\([\w ,*]+\));$", text_of(example), re.MULTILINE)
            self.assertEqual(declared, list(HEADER.functions.values()), example)

    def test_records(self):
        patterns = {"python/almara.py": r'^\w+ = _record\(\s*"(\w+)", "([\w ]+)"\)',
                    "node/almara.js": r"^  (\w+): '([\w ]+)',"}
        for example, pattern in patterns.items():
            declared = re.findall(pattern, text_of(example), re.MULTILINE)
            self.assertEqual({name: fields.split() for name, fields in declared}, HEADER.records,
                             example)

    def test_constants(self):
        """The numbers that the Python and Node.js hosts use for constants."""
        expected = {"WHOLE_MONTH": "eDispMonthWholeMonth", "CHINESE": "eLanguageChs"}
        for line in re.findall(r"^(?:const )?(\w+) = (\d+);?$",
                               text_of("python/board.py") + text_of("node/board.js"), re.MULTILINE):
            name = re.sub(r"(?=[A-Z])", "_", line[0]).upper() if line[0][0].islower() else line[0]
            self.assertEqual(int(line[1]), HEADER.constants[expected[name]], name)

    def test_each_file_fits_on_two_screens(self):
        for path in (ROOT / "hosts").rglob("*"):
            if path.suffix in (".c", ".cpp", ".py", ".js") and "node_modules" not in path.parts:
                self.assertLessEqual(len(path.read_text().splitlines()), TWO_SCREENS, path.name)

    def test_lock_file_names_no_registry(self):
        self.assertNotIn('"resolved"', text_of("node/package-lock.json"))


if __name__ == "__main__":
    unittest.main()
