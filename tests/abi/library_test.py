#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What the built library exports, needs and does when it is loaded.

usage: library_test.py LIBRARY SONAME BUILD_TYPE WITH_PLUGIN
WITH_PLUGIN is 1 if the library was built with the plugin object.
"""
import _ctypes
import ctypes
import re
import subprocess
import sys
import unittest

import cases
import interface

LIBRARY, SONAME, BUILD_TYPE = sys.argv[1:4]
WITH_PLUGIN = sys.argv[4] == "1"

# What Debian 12, Ubuntu 22.04, RHEL 9 and everything younger has: glibc 2.34 and the libraries of
# GCC 11.
CEILINGS = {"GLIBC": "2.34", "GLIBCXX": "3.4.29", "CXXABI": "1.3.13", "GCC": "11.0"}


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def dynamic_entries(tag):
    return re.findall(rf"\({tag}\)[^\[]*\[(.*?)\]", output_of("readelf", "-dW", LIBRARY))


def numbers(version):
    return [int(part) for part in version.split(".")]


class LibraryTest(unittest.TestCase):
    def test_exports_are_the_functions_of_the_headers(self):
        headers = interface.ENGINE_HEADERS + (interface.PLUGIN_HEADERS if WITH_PLUGIN else ())
        symbols = [line.split() for line in
                   output_of("nm", "-D", "--defined-only", LIBRARY).splitlines()]
        exported = {name.split("@")[0] for _, kind, name in symbols if kind == "T"}
        self.assertEqual(exported, set(interface.read(*headers).functions))
        self.assertEqual(len(symbols), len(exported), "something other than functions is exported")

    def test_nothing_but_the_engine_is_made_at_the_load(self):
        constructors = {name for name in output_of("nm", LIBRARY).split()
                        if name.startswith("_GLOBAL__sub_I_") and not name.endswith(".cold")}
        self.assertEqual(constructors, {"_GLOBAL__sub_I_engine.cpp"})

    @unittest.skipIf(WITH_PLUGIN, "the plugin needs GLib and the embedding")
    def test_closing_the_library_leaves_the_engine(self):
        library = ctypes.CDLL(LIBRARY)
        library.SetMaxRow(11)
        _ctypes.dlclose(library._handle)
        self.assertEqual(ctypes.CDLL(LIBRARY).GetMaxRow(), 11)

    def test_soname(self):
        self.assertEqual(dynamic_entries("SONAME"), [SONAME])

    @unittest.skipIf(WITH_PLUGIN, "the plugin needs GLib and the embedding")
    def test_only_the_runtimes_of_c_and_cpp_are_needed(self):
        needed = dynamic_entries("NEEDED")
        self.assertIn("libc.so.6", needed)
        runtimes = r"lib(c|m|stdc\+\+|gcc_s)\.so\.\d+|ld-linux-.*"
        self.assertEqual([name for name in needed if not re.fullmatch(runtimes, name)], [])

    @unittest.skipUnless(BUILD_TYPE == "Release", "assertions need more than what is shipped")
    def test_older_systems_have_what_is_needed(self):
        needed = re.findall(r"\b([A-Z]+)_([0-9.]+)\b", output_of("readelf", "-VW", LIBRARY))
        self.assertIn("GLIBC", [name for name, _ in needed])
        for name, version in needed:
            self.assertLessEqual(numbers(version), numbers(CEILINGS.get(name, "0")), name)


if __name__ == "__main__":
    cases.main(sys.argv[:1])
