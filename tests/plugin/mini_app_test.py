#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Builds the miniature application in debug, profile and release, and runs its bundles elsewhere."""
import argparse
import json
import shlex
import shutil
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
ARGUMENTS = arguments.parse_args()
BUILD_TYPES = ("Debug", "Profile", "Release")
TESTS = library_file.ROOT / "tests" / "plugin"
# All that an application has anyway.
NEEDED = {"libflutter_linux_gtk.so", "libgobject-2.0.so.0", "libglib-2.0.so.0", "libstdc++.so.6",
          "libm.so.6", "libgcc_s.so.1", "libc.so.6"}


def copy_of_package(folder):
    """The package as the package cache has it: without repository, and read-only."""
    for name in ("include", "linux", "src"):
        shutil.copytree(library_file.ROOT / name, folder / name)
    subprocess.run(["chmod", "-R", "a-w", folder], check=True)
    return folder


def files_of(folder):
    """Every file with its time, which shows what was written."""
    return {path: path.stat().st_mtime_ns for path in folder.rglob("*")}


class MiniApp(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        # A blank in a folder's name must not matter.
        work = nested_build.fresh_folder(ARGUMENTS.work) / "mini app"
        source = work / "linux"
        shutil.copytree(TESTS / "mini_app", source)
        package = copy_of_package(work / "package cache")
        packages = source / "flutter" / "ephemeral" / ".plugin_symlinks"
        packages.mkdir(parents=True)
        (packages / "almara").symlink_to(package)
        before = files_of(package)
        cls.said, cls.commands, cls.bundles = "", [], {}
        for build_type in BUILD_TYPES:
            ARGUMENTS.build_type = build_type
            for _ in ("first", "second"):
                cls.said += nested_build.build(source, work / build_type, ARGUMENTS, "install",
                                               f"MINI_APP_EMBEDDING_DIR={TESTS / 'embedding'}")
            cls.commands += json.loads((work / build_type / "compile_commands.json").read_text())
            cls.bundles[build_type] = work.parent / "moved" / build_type
            shutil.move(work / build_type / "bundle", cls.bundles[build_type])
        cls.package_is_untouched = files_of(package) == before
        # The bundles have to do without the folder that they were built in.
        subprocess.run(["chmod", "-R", "u+w", package], check=True)
        shutil.rmtree(work)

    def each_bundle(self):
        for bundle in self.bundles.values():
            yield bundle, bundle / "lib" / "libalmara_plugin.so"

    def test_nothing_warns(self):
        self.assertNotRegex(self.said, "(?i)warning|deprecat")

    def test_package_is_left_alone(self):
        self.assertTrue(self.package_is_untouched)

    def test_bundle_holds_the_program_and_one_file_of_each_library(self):
        for bundle, library in self.each_bundle():
            files = {str(path.relative_to(bundle)) for path in bundle.rglob("*") if path.is_file()}
            self.assertEqual(files, {"mini_app", "lib/libalmara_plugin.so",
                                     "lib/libflutter_linux_gtk.so"})
            self.assertFalse(library.is_symlink())

    def test_bundle_names_no_folder_of_the_build(self):
        for bundle, library in self.each_bundle():
            self.assertEqual(library_file.dynamic_entries(library, "SONAME"),
                             ["libalmara_plugin.so"])
            self.assertEqual(library_file.dynamic_entries(library, "RUNPATH"), ["$ORIGIN"])
            self.assertEqual(library_file.dynamic_entries(bundle / "mini_app", "RUNPATH"),
                             ["$ORIGIN/lib"])

    def test_exports_are_the_functions_of_the_headers(self):
        self.assertLessEqual({"Build", "almara_plugin_register_with_registrar"},
                             FUNCTIONS)
        for _, library in self.each_bundle():
            self.assertEqual(library_file.exported_symbols(library), FUNCTIONS)

    def test_library_needs_no_library_that_it_does_not_call(self):
        for bundle, library in self.each_bundle():
            # The target flutter links it, so a program that does not say otherwise needs it.
            self.assertIn("libgio-2.0.so.0",
                          library_file.dynamic_entries(bundle / "mini_app", "NEEDED"))
            self.assertLessEqual(set(library_file.dynamic_entries(library, "NEEDED")), NEEDED)

    def test_embedding_is_asked_for_ten_functions(self):
        for _, library in self.each_bundle():
            imported = library_file.imported_symbols(library)
            self.assertEqual({name for name in imported if name.startswith("fl_")},
                             library_file.EMBEDDING_FUNCTIONS)

    def test_sources_are_compiled_at_the_engines_own_level_and_without_contraction(self):
        commands = [shlex.split(entry["command"]) for entry in self.commands
                    if "/.plugin_symlinks/almara/" in entry["file"]]
        self.assertGreater(len(commands), 10 * len(BUILD_TYPES))
        for command in commands:
            standards = [word for word in command if word.startswith("-std=")]
            self.assertEqual(standards[-1], "-std=c++17")
            contraction = [word for word in command if word.startswith("-ffp-contract")]
            self.assertEqual(contraction[-1:], ["-ffp-contract=off"])
            self.assertLessEqual({"-fPIC", "-Wall", "-Werror"}, set(command))

    def test_bundle_starts_resolves_every_function_and_calls_the_method(self):
        for bundle, library in self.each_bundle():
            run = subprocess.run([bundle / "mini_app", "libalmara_plugin.so", *sorted(FUNCTIONS)],
                                 cwd="/", env={"TZ": "UTC"}, capture_output=True, text=True)
            self.assertEqual((run.returncode, run.stderr), (0, ""))
            self.assertEqual(run.stdout.splitlines()[-4:],
                             [f"library: {library}", f"resolved: {len(FUNCTIONS)}", "rows: 5",
                              f"version: Linux {library_file.kernel_version()}"])

    def test_a_function_that_is_not_there_is_noticed(self):
        for name in ("NoSuchFunction", "g_object_new"):
            run = subprocess.run([self.bundles["Release"] / "mini_app", "libalmara_plugin.so", name],
                                 capture_output=True, text=True)
            self.assertEqual(run.returncode, 1, name)
            self.assertIn(name, run.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
