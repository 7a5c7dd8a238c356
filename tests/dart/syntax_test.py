#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check_dart.js on the Dart files of the package, and on a copy with mistakes in it.

    syntax_test.py <folder>     where npm puts the parser

Ends with 77, which counts as skipped, where npm cannot fetch it.
"""
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HERE = Path(__file__).parent
PARTS = ("lib", "test", "example", "docs", "pubspec.yaml", "README.md")
SKIPPED = 77

# File, what stands there, what is put in its place, and what must be said about it.
MISTAKES = (
    ("lib/almara.dart", "export 'src/dates.dart';", "export 'src/dates.dart'", "syntax:"),
    ("lib/almara.dart", "src/dates.dart", "src/date.dart", "no such import: src/date.dart"),
    ("lib/almara_platform.dart", "package:flutter/", "package:flutter_test/",
     "no such import: package:flutter_test/services.dart"),
    ("lib/src/board.dart", "engine.GetContentRows()", "engine.GetRows()",
     "AlmaraBindings has no GetRows"),
    ("lib/src/board.dart", "GetContentItem(row, column)", "GetContentItem(row)",
     "AlmaraBindings.GetContentItem does not take 1 arguments"),
    ("lib/src/board.dart", "cell.weekNumber == -1", "cell.week == -1",
     "tagCalendarCell has no week"),
    ("lib/src/dates.dart", "get exists =>", "get exists => true; bool get exists =>",
     "CalendarDate declares exists twice"),
    ("lib/src/codes.dart", "(eCalendarWeekMonday)", "(eCalendarWeekMoonday)",
     "no constant eCalendarWeekMoonday"),
    ("example/lib/main.dart", "engine.nextPage()", "engine.nextPage(1)",
     "AlmaraEngine.nextPage does not take 1 arguments"),
    ("example/lib/main.dart", "..showsMonthIntervals", "..monthIntervals",
     "AlmaraEngine has no monthIntervals"),
    ("example/lib/main.dart", "Arrangement.wholeMonth", "Arrangement.wholeYear",
     "Arrangement has no wholeYear"),
    ("example/lib/main.dart", "onSelected: _start", "onChosen: _start",
     "RegionMenu.new takes no argument onChosen"),
    ("test/engine_test.dart", "CalendarDate(1899, 12, 31)", "CalendarDate(1899, 12)",
     "CalendarDate.new does not take 2 arguments"),
    ("README.md", "engine.annotate(", "engine.notesOf(", "AlmaraEngine has no notesOf"),
    ("test/engine_test.dart", "isLeapMonth: true", "leap: true",
     "LunarDate.new takes no argument leap"),
)


def install(folder):
    """Whether the parser is there, fetched if need be."""
    folder.mkdir(parents=True, exist_ok=True)
    lock, installed = HERE / "package-lock.json", folder / "installed.json"
    if not installed.exists() or installed.read_bytes() != lock.read_bytes():
        shutil.copy(HERE / "package.json", folder)
        shutil.copy(lock, folder)
        npm = subprocess.run(["npm", "ci", "--ignore-scripts", "--no-audit", "--no-fund",
                              "--prefer-offline", "--fetch-retries=1",
                              "--fetch-retry-mintimeout=1000"],
                             cwd=folder, check=False, timeout=300)
        if npm.returncode:
            return False
        shutil.copy(lock, installed)
    shutil.copy(HERE / "check_dart.js", folder)
    return True


def check(root):
    result = subprocess.run(["node", PARSER / "check_dart.js", root], check=False,
                            capture_output=True, text=True)
    return result.returncode, result.stdout + result.stderr


class SyntaxTest(unittest.TestCase):
    def test_the_package(self):
        status, output = check(ROOT)
        self.assertEqual(status, 0, output)
        self.assertRegex(output, r"^\d\d files, [2-9]\d\d uses of members, 0 problems$")

    def test_each_mistake_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            for part in PARTS:
                copy = shutil.copytree if (ROOT / part).is_dir() else shutil.copy
                copy(ROOT / part, Path(folder, part))
            for name, right, wrong, _ in MISTAKES:
                text = Path(folder, name).read_text()
                self.assertIn(right, text)
                Path(folder, name).write_text(text.replace(right, wrong, 1))
            status, output = check(folder)
        self.assertEqual(status, 1)
        for *_, message in MISTAKES:
            with self.subTest(message):
                self.assertIn(message, output)
        self.assertEqual(output.count("\n"), len(MISTAKES) + 1, output)


if __name__ == "__main__":
    PARSER = Path(sys.argv.pop())
    if not install(PARSER):
        print("skipped: dart.syntax (npm cannot fetch the parser)")
        sys.exit(SKIPPED)
    unittest.main()
