#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Builds the stand-alone library, in a project that takes it in, with the plugin object in it."""
import argparse
import os
import subprocess
import sys
import unittest

import library_file
import nested_build
from library_file import FUNCTIONS

arguments = argparse.ArgumentParser(description=__doc__)
arguments.add_argument("work", help="folder to build in; emptied first")
arguments.add_argument("--compiler", required=True)
arguments.add_argument("--launcher", default="", help="of the compiler, such as ccache")
arguments.add_argument("--build-type", default="Release")
arguments.add_argument("--embedding", default="",
                       help="folder of the embedding; without it the project has the target flutter")
ARGUMENTS = arguments.parse_args()


class LibraryWithPlugin(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        work = nested_build.fresh_folder(ARGUMENTS.work)
        definitions = [f"HOST_ALMARA_DIR={library_file.ROOT}", "ALMARA_DEVELOPER_WARNINGS=ON"]
        if ARGUMENTS.embedding:
            definitions.append(f"ALMARA_FLUTTER_DIR={ARGUMENTS.embedding}")
        cls.said = nested_build.build(library_file.ROOT / "tests" / "plugin" / "host_project", work,
                                      ARGUMENTS, "host", *definitions)
        cls.host = work / "host"
        cls.library = work / "almara" / "libalmara.so.1"

    def test_nothing_warns(self):
        self.assertNotRegex(self.said, "(?i)warning|deprecat")

    def test_library_keeps_its_name_and_version(self):
        self.assertEqual(library_file.dynamic_entries(self.library, "SONAME"), ["libalmara.so.1"])
        version = library_file.interface.read("almara/almara.h").version
        self.assertEqual(self.library.resolve().name, f"libalmara.so.{version}")

    def test_exports_are_the_functions_of_both_headers(self):
        self.assertEqual(library_file.exported_symbols(self.library), FUNCTIONS)

    def test_program_resolves_every_function_and_calls_the_method(self):
        run = subprocess.run([self.host, "libalmara.so.1", *sorted(FUNCTIONS)], env={"TZ": "UTC"},
                             capture_output=True, text=True)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertEqual(run.stdout.splitlines()[-4:],
                         [f"library: {self.library}", f"resolved: {len(FUNCTIONS)}", "rows: 5",
                          f"version: Linux {library_file.kernel_version()}"])

    @unittest.skipIf(ARGUMENTS.embedding == "", "needs the folder of an embedding")
    def test_missing_development_files_of_gtk_are_named(self):
        work = nested_build.fresh_folder(ARGUMENTS.work + "_without_gtk")
        headers = work / "embedding" / "flutter_linux"
        headers.mkdir(parents=True)
        for name in ("flutter_linux.h", "fl_view.h"):
            (headers / name).touch()
        (work / "embedding" / "libflutter_linux_gtk.so").touch()
        run = subprocess.run(
            ["cmake", "-S", str(library_file.ROOT), "-B", str(work / "build"),
             "-DBUILD_TESTING=OFF", "-DALMARA_BUILD_VIEWER=OFF",
             f"-DALMARA_FLUTTER_DIR={work / 'embedding'}"],
            env={**os.environ, "PKG_CONFIG_LIBDIR": "/nonexistent"}, capture_output=True, text=True)
        self.assertNotEqual(run.returncode, 0)
        self.assertRegex(run.stderr, r"need the development files of\s+GTK 3")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
