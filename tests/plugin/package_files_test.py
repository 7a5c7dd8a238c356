#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the files of the Flutter package agree with each other and with what tools expect."""
import re
import subprocess
import unittest

import library_file

ROOT = library_file.ROOT


def read(name):
    return (ROOT / name).read_text()


def value_of(key, text):
    return re.search(rf"^{key}: (\S+)$", text, flags=re.M)[1]


def newer_than_cmake_3_10(command):
    """Whether the help of a CMake command says that it came after CMake 3.10."""
    manual = subprocess.run(["cmake", "--help-command", command], check=True, capture_output=True,
                            text=True).stdout
    added = re.search(r"\A\S+\n-+\n\n\.\. versionadded:: 3\.(\d+)", manual)
    return added is not None and int(added[1]) > 10


class Pubspec(unittest.TestCase):

    def setUp(self):
        self.pubspec = read("pubspec.yaml")

    def test_is_a_plugin_for_linux_with_an_object_and_functions(self):
        self.assertIn("\nflutter:\n  plugin:\n    platforms:\n      linux:\n"
                      "        pluginClass: AlmaraPlugin\n        ffiPlugin: true\n", self.pubspec)

    def test_generated_registrant_finds_header_function_and_target(self):
        name = value_of("name", self.pubspec)
        plugin_class = value_of(" +pluginClass", self.pubspec)
        # AlmaraPlugin is registered by almara_plugin_register_with_registrar.
        file = re.sub(r"(?<!^)(?=[A-Z])", "_", plugin_class).lower()
        self.assertTrue((ROOT / "include" / name / f"{file}.h").is_file())
        self.assertIn(f"{file}_register_with_registrar",
                      library_file.FUNCTIONS)
        build = read("linux/CMakeLists.txt")
        self.assertIn(f"add_library({name}_plugin SHARED", build)
        self.assertRegex(build, rf"set\({name}_bundled_libraries .*PARENT_SCOPE\)")


class Ffigen(unittest.TestCase):

    def test_it_reads_the_headers_of_the_interface(self):
        text = read("ffigen.yaml")
        entries = re.findall(r"^ +- include/(\S+)$", text, flags=re.M)
        directives = re.findall(r"^ +- '\*\*(\S+)'$", text, flags=re.M)
        self.assertEqual(sorted(directives), sorted(library_file.interface.ENGINE_HEADERS))
        self.assertTrue(entries)
        self.assertLessEqual(set(entries), set(directives))


class AgeOfCMake(unittest.TestCase):
    """Applications' builds may run CMake 3.10."""

    FILES = ("linux/CMakeLists.txt", "src/sources.cmake")

    def test_no_newer_one_is_asked_for(self):
        self.assertIn("cmake_minimum_required(VERSION 3.10)", read(self.FILES[0]))

    def test_no_newer_command_is_used(self):
        self.assertTrue(newer_than_cmake_3_10("target_link_options"))
        for file in self.FILES:
            text = re.sub(r"#.*", "", read(file))
            commands = set(re.findall(r"^\s*(\w+)\s*\(", text, flags=re.M))
            self.assertIn("set", commands)
            # Functions of the application and of a module that is as old as need be.
            commands -= {"apply_standard_settings", "pkg_check_modules"}
            self.assertEqual([name for name in commands if newer_than_cmake_3_10(name)], [], file)
            self.assertNotIn("list(TRANSFORM", text)
            self.assertNotRegex(text, r"\bIMPORTED_TARGET GLOBAL\b|\bSHELL:|add_library\(.*OBJECT")


if __name__ == "__main__":
    unittest.main()
