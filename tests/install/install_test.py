#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""An installed tree: what each component holds, and that the C and C++ hosts build against it
by CMake and by pkg-config, also after the tree was moved, and do not build without it."""
import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

import cases
import interface

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ["ALMARA_BUILD"])
LIBDIR = os.environ["ALMARA_LIBDIR"]
CMAKE = os.environ["CMAKE"]
VERSION = interface.read("almara/almara.h").version
MAJOR = VERSION.split(".", maxsplit=1)[0]
HAS_PLUGIN = os.environ["ALMARA_HAS_PLUGIN"] == "1"
HAS_VIEWER = (BUILD / "almara-board").exists()


def run(*command, **environment):
    return subprocess.run(command, env={**os.environ, **environment}, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False)


def files_of(prefix):
    return {str(path.relative_to(prefix)) for path in prefix.rglob("*") if not path.is_dir()}


class InstalledTree(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.first = cls.install("first")
        shutil.copytree(cls.first, cls.folder / "copy", symlinks=True)
        # Gone from where it was installed to.
        cls.moved = (cls.folder / "copy").rename(cls.folder / "moved")

    @classmethod
    def install(cls, name, *options):
        prefix = cls.folder / name
        result = run(CMAKE, "--install", BUILD, "--prefix", prefix, *options)
        if result.returncode != 0:
            raise RuntimeError(result.stdout)
        return prefix

    def succeed(self, *command, **environment):
        result = run(*command, **environment)
        self.assertEqual(result.returncode, 0, result.stdout)
        return result.stdout

    def assert_is_board(self, program, **environment):
        lines = self.succeed(program, "2024-02-10", **environment).splitlines()
        self.assertEqual(lines[0].strip(), "February 2024")
        self.assertEqual(lines[3].split(), ["6", "5", "6", "7", "8", "9", "10.", "11."])

    def configure(self, language, prefix):
        build = tempfile.mkdtemp(dir=self.folder)
        result = run(CMAKE, "-S", ROOT / "hosts" / language, "-B", build,
                     f"-DCMAKE_MAKE_PROGRAM={os.environ['CMAKE_MAKE_PROGRAM']}",
                     # Not a library that happens to be installed on this machine.
                     "-DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF",
                     "-DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF",
                     f"-DCMAKE_PREFIX_PATH={prefix}")
        return Path(build), result

    def build_by_cmake(self, language, prefix):
        build, result = self.configure(language, prefix)
        self.assertEqual(result.returncode, 0, result.stdout)
        self.succeed(CMAKE, "--build", build)
        self.assert_is_board(build / "board")

    def pkg_config(self, prefix, *options):
        return run("pkg-config", *options, "almara",
                   PKG_CONFIG_LIBDIR=str(prefix / LIBDIR / "pkgconfig"))

    def build_by_pkg_config(self, language, prefix):
        flags = self.pkg_config(prefix, "--cflags", "--libs")
        self.assertEqual(flags.returncode, 0, flags.stdout)
        compiler = os.environ["CC"] if language == "c" else os.environ["CXX"]
        program = self.folder / f"{language}-board"
        self.succeed(compiler, ROOT / f"hosts/{language}/board.{language}", "-o", program,
                     *flags.stdout.split())
        self.assert_is_board(program, LD_LIBRARY_PATH=str(prefix / LIBDIR))

    def test_c_by_cmake(self):
        self.build_by_cmake("c", self.first)

    def test_cpp_by_cmake(self):
        self.build_by_cmake("cpp", self.first)

    def test_c_by_pkg_config(self):
        self.build_by_pkg_config("c", self.first)

    def test_cpp_by_pkg_config(self):
        self.build_by_pkg_config("cpp", self.first)

    def test_moved_c_by_cmake(self):
        self.build_by_cmake("c", self.moved)

    def test_moved_cpp_by_cmake(self):
        self.build_by_cmake("cpp", self.moved)

    def test_moved_c_by_pkg_config(self):
        self.build_by_pkg_config("c", self.moved)

    def test_moved_cpp_by_pkg_config(self):
        self.build_by_pkg_config("cpp", self.moved)

    def test_nothing_builds_without_it(self):
        for language in ("c", "cpp"):
            result = self.configure(language, self.folder / "nowhere")[1]
            self.assertNotEqual(result.returncode, 0)
            self.assertIn("almaraConfig.cmake", result.stdout)
        self.assertNotEqual(self.pkg_config(self.folder / "nowhere", "--cflags").returncode, 0)

    def test_versions(self):
        self.assertEqual(self.pkg_config(self.moved, "--modversion").stdout.strip(), VERSION)
        self.assertEqual(self.pkg_config(self.moved, f"--atleast-version={VERSION}").returncode, 0)
        self.assertEqual(os.readlink(self.moved / LIBDIR / "libalmara.so"),
                         f"libalmara.so.{MAJOR}")
        self.assertEqual(os.readlink(self.moved / LIBDIR / f"libalmara.so.{MAJOR}"),
                         f"libalmara.so.{VERSION}")
        for wanted, accepted in ((MAJOR, True), (VERSION, True), (str(int(MAJOR) + 1), False)):
            source = Path(tempfile.mkdtemp(dir=self.folder))
            (source / "CMakeLists.txt").write_text(
                "cmake_minimum_required(VERSION 3.16)\nproject(version LANGUAGES NONE)\n"
                f"find_package(almara {wanted} REQUIRED)\n")
            result = run(CMAKE, "-S", source, "-B", source, f"-DCMAKE_PREFIX_PATH={self.moved}")
            self.assertEqual(result.returncode == 0, accepted, result.stdout)

    def test_files_of_components(self):
        headers = {f"include/almara/{path.name}" for path in (ROOT / "include/almara").glob("*.h")
                   if HAS_PLUGIN or path.name != "almara_plugin.h"}
        expected = {
            "runtime": {f"{LIBDIR}/libalmara.so.{MAJOR}", f"{LIBDIR}/libalmara.so.{VERSION}"},
            "development": headers | {
                f"{LIBDIR}/libalmara.so", f"{LIBDIR}/pkgconfig/almara.pc",
                "share/man/man3/almara.3"},
            "viewer": {
                "bin/almara-board", "share/man/man1/almara-board.1",
                "share/bash-completion/completions/almara-board",
                "share/fish/vendor_completions.d/almara-board.fish",
                "share/zsh/site-functions/_almara-board"} if HAS_VIEWER else set()
        }
        for component, files in expected.items():
            found = files_of(self.install(component, "--component", component))
            package = {name for name in found if name.startswith(f"{LIBDIR}/cmake/almara/")}
            self.assertEqual(found - package, files)
            self.assertEqual(bool(package), component == "development")
        everything = set().union(*(files_of(self.folder / component) for component in expected))
        self.assertEqual(files_of(self.first), everything)

    def test_no_path_of_this_build_is_installed(self):
        for name in files_of(self.first):
            content = (self.first / name).read_bytes()
            for path in (BUILD, ROOT, self.first):
                self.assertNotIn(bytes(path), content, name)

    @unittest.skipUnless(HAS_VIEWER, "this build leaves the viewer out")
    def test_moved_viewer_runs(self):
        text = self.succeed(self.moved / "bin/almara-board", "--version")
        self.assertIn(VERSION, text)


if __name__ == "__main__":
    cases.main()
