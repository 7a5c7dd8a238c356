#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Builds the miniature application in a fresh folder and runs its bundle from another place."""
import argparse
import json
import shlex
import shutil
import subprocess
import sys
import unittest

import library_file
import nested_build

arguments = argparse.ArgumentParser(description=__doc__)
arguments.add_argument("work", help="folder to build in; emptied first")
arguments.add_argument("--compiler", required=True)
arguments.add_argument("--launcher", default="", help="of the compiler, such as ccache")
arguments.add_argument("--build-type", default="Release")
arguments.add_argument("--own-settings", action="store_true",
                       help="the application states its compiler settings for everything in it "
                       "instead of defining apply_standard_settings")
ARGUMENTS = arguments.parse_args()
TESTS = library_file.ROOT / "tests" / "plugin"
FUNCTIONS = (library_file.declared_functions("almara.h") |
             library_file.declared_functions("almara_plugin.h"))


class MiniApp(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        # A blank in a folder's name must not matter.
        work = nested_build.fresh_folder(ARGUMENTS.work) / "mini app"
        source = work / "linux"
        shutil.copytree(TESTS / "mini_app", source)
        packages = source / "flutter" / "ephemeral" / ".plugin_symlinks"
        packages.mkdir(parents=True)
        (packages / "almara").symlink_to(library_file.ROOT)
        cls.said = nested_build.build(
            source, work / "build", ARGUMENTS, "install",
            f"MINI_APP_EMBEDDING_DIR={TESTS / 'embedding'}",
            f"MINI_APP_STANDARD_SETTINGS={'OFF' if ARGUMENTS.own_settings else 'ON'}")
        cls.commands = json.loads((work / "build" / "compile_commands.json").read_text())
        # The bundle has to do without the folder that it was built in.
        cls.bundle = nested_build.fresh_folder(ARGUMENTS.work + " bundle") / "mini_app"
        shutil.move(work / "build" / "bundle", cls.bundle)
        shutil.rmtree(work)
        cls.library = cls.bundle / "lib" / "libalmara_plugin.so"

    def test_nothing_warns(self):
        self.assertNotRegex(self.said, "(?i)warning|deprecat")

    def test_bundle_holds_the_program_and_one_file_of_each_library(self):
        files = {str(path.relative_to(self.bundle)) for path in self.bundle.rglob("*")
                 if path.is_file()}
        self.assertEqual(files, {"mini_app", "lib/libalmara_plugin.so",
                                 "lib/libflutter_linux_gtk.so"})
        self.assertFalse(self.library.is_symlink())

    def test_bundle_names_no_folder_of_the_build(self):
        self.assertEqual(library_file.dynamic_entries(self.library, "SONAME"),
                         ["libalmara_plugin.so"])
        self.assertEqual(library_file.dynamic_entries(self.library, "RUNPATH"), ["$ORIGIN"])
        self.assertEqual(library_file.dynamic_entries(self.bundle / "mini_app", "RUNPATH"),
                         ["$ORIGIN/lib"])

    def test_exports_are_the_functions_of_the_headers(self):
        self.assertIn("GetContentItem", FUNCTIONS)
        self.assertIn("almara_plugin_register_with_registrar", FUNCTIONS)
        self.assertEqual(library_file.exported_symbols(self.library), FUNCTIONS)

    def test_embedding_is_asked_for_ten_functions_and_gtk_for_none(self):
        imported = library_file.imported_symbols(self.library)
        self.assertEqual({name for name in imported if name.startswith("fl_")},
                         library_file.EMBEDDING_FUNCTIONS)
        self.assertFalse({name for name in imported if name.startswith(("gtk_", "gdk_"))})
        needed = library_file.dynamic_entries(self.library, "NEEDED")
        self.assertFalse([name for name in needed if "gtk-3" in name or "gdk" in name])

    def test_sources_are_compiled_at_the_engines_own_level_and_without_contraction(self):
        commands = [shlex.split(entry["command"]) for entry in self.commands
                    if "/.plugin_symlinks/almara/" in entry["file"]]
        self.assertGreater(len(commands), 10)
        for command in commands:
            standards = [word for word in command if word.startswith("-std=")]
            self.assertEqual(standards[-1], "-std=c++17")
            contraction = [word for word in command if word.startswith("-ffp-contract")]
            self.assertEqual(contraction[-1:], ["-ffp-contract=off"])
            self.assertIn("-fPIC", command)
            self.assertIn("-Wall", command)
            self.assertIn("-Werror", command)

    def test_bundle_starts_resolves_every_function_and_calls_the_method(self):
        run = subprocess.run([self.bundle / "mini_app", "libalmara_plugin.so", *sorted(FUNCTIONS)], cwd="/",
                             env={"TZ": "UTC"}, capture_output=True, text=True)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertEqual(run.stdout.splitlines()[-5:],
                         [f"library: {self.library}", f"resolved: {len(FUNCTIONS)}", "rows: 5",
                          f"version: Linux {library_file.kernel_version()}", "channels left: 0"])

    def test_a_function_that_is_not_there_is_noticed(self):
        for name in ("NoSuchFunction", "almara_plugin_init", "g_object_new"):
            run = subprocess.run([self.bundle / "mini_app", "libalmara_plugin.so", name],
                                 capture_output=True, text=True)
            self.assertEqual(run.returncode, 1, name)
            self.assertIn(name, run.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
