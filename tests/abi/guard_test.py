#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The guard of the binary interface catches what it is there to catch: each case changes a copy of
the header and builds a library with the functions that it declares."""
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from interface import INCLUDE, Interface

GUARD = Path(__file__).resolve().with_name("guard.py")


class GuardTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.include = self.folder / "include"
        shutil.copytree(INCLUDE, self.include)
        self.build_library()
        self.assert_guard("record", succeeds=True)

    def build_library(self, soname="libalmara.so.1", without=()):
        functions = Interface(self.include).functions
        source = self.folder / "library.c"
        source.write_text("#include <almara/almara.h>\n" + "".join(
            f"{prototype} {{ __builtin_trap(); }}\n"
            for name, prototype in functions.items() if name not in without))
        subprocess.run(["gcc", "-w", "-fPIC", "-shared", f"-I{self.include}",
                        f"-Wl,-soname,{soname}", source, "-o", self.folder / "library.so"],
                       check=True)

    def change(self, old, new, header="almara.h"):
        path = self.include / "almara" / header
        text = path.read_text()
        self.assertEqual(text.count(old), 1)
        path.write_text(text.replace(old, new))

    def assert_guard(self, task, succeeds, message=""):
        result = subprocess.run(
            [sys.executable, GUARD, task, self.folder / "library.so", "--include", self.include,
             "--baselines", self.folder / "baseline"],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        self.assertEqual(result.returncode == 0, succeeds, result.stdout)
        self.assertIn(message, result.stdout)

    def assert_incompatible(self, message):
        self.build_library()
        self.assert_guard("check", succeeds=False, message=message)
        self.assert_guard("record", succeeds=False, message="incompatible with earlier")

    def test_unchanged(self):
        self.assert_guard("check", succeeds=True)

    def test_function_missing_in_the_library(self):
        self.build_library(without=["GetToday"])
        self.assert_guard("check", succeeds=False, message="does not export GetToday")

    def test_function_gone(self):
        self.change("ALMARA_EXPORT int32_t GetMaxRow(void);", "")
        self.assert_incompatible("pointer_to_GetMaxRow")

    def test_argument_added(self):
        self.change("GotoTodayOffset(int32_t offset)", "GotoTodayOffset(int32_t offset, bool days)")
        self.assert_incompatible("pointer_to_GotoTodayOffset")

    def test_argument_type_changed(self):
        self.change("SetHideBreakDay(bool hide)", "SetHideBreakDay(int32_t hide)")
        self.assert_incompatible("pointer_to_SetHideBreakDay")

    def test_result_type_changed(self):
        self.change("bool IsTodayInBoard(void)", "int64_t IsTodayInBoard(void)")
        self.assert_incompatible("pointer_to_IsTodayInBoard")

    def test_fields_swapped(self):
        self.change("int32_t row; ", "int32_t swapped; ", "almara_types.h")
        self.change("int32_t column; ", "int32_t row; ", "almara_types.h")
        self.change("int32_t swapped; ", "int32_t column; ", "almara_types.h")
        self.assert_incompatible("tagCalendarCell")

    def test_field_appended(self):
        self.change("} tagWeekNumberSpan;", "int32_t more; } tagWeekNumberSpan;", "almara_types.h")
        self.assert_incompatible("tagWeekNumberSpan")

    def test_constant_changed(self):
        self.change("eLanguageVit = 9", "eLanguageVit = 11", "almara_types.h")
        self.assert_incompatible("eLanguageVit was 9 and is 11")

    def test_constant_gone(self):
        self.change("eSekkiNone = -1,", "", "almara_types.h")
        self.assert_incompatible("eSekkiNone was -1 and is gone")

    def test_additions_are_recorded_once(self):
        self.change("ALMARA_EXPORT void Build(void);",
                    "ALMARA_EXPORT void Build(void);\nALMARA_EXPORT void Rebuild(void);")
        self.change("eSekkiNone = -1,", "eSekkiNone = -1, eSekkiUnknown = -2,", "almara_types.h")
        self.change('VERSION_STRING "', 'VERSION_STRING "7.')
        self.build_library()
        self.assert_guard("check", succeeds=False, message="pointer_to_Rebuild")
        self.assert_guard("check", succeeds=False, message="eSekkiUnknown is new")
        self.assert_guard("record", succeeds=True)
        self.assert_guard("check", succeeds=True)
        symbols = (self.folder / "baseline/libalmara1.symbols").read_text()
        version = Interface().version
        self.assertIn(f" Rebuild@Base 7.{version}\n", symbols)
        self.assertIn(f" Build@Base {version}\n", symbols)

    def test_new_soname_allows_any_change(self):
        self.change("bool IsTodayInBoard(void)", "int64_t IsTodayInBoard(void)")
        self.build_library(soname="libalmara.so.2")
        self.assert_guard("check", succeeds=False, message="no baseline for libalmara.so.2")
        self.assert_guard("record", succeeds=True)
        self.assert_guard("check", succeeds=True)


if __name__ == "__main__":
    unittest.main()
