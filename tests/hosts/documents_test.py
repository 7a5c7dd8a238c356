#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What the documents tell a user to paste is what the tests run, and the manual pages are complete.

In docs/embedding.md a comment in front of a snippet says where it comes from: a file that holds it
word for word, or "command", for what is run here or in tests/install.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/abi"))
from interface import Interface  # noqa: E402

EMBEDDING = (ROOT / "docs/embedding.md").read_text()
README = (ROOT / "README.md").read_text()
VIEWER = os.environ.get("ALMARA_BOARD")
NODE, KOFFI = os.environ.get("NODE"), os.environ.get("KOFFI")


def manual(name):
    return (ROOT / "docs/man" / name).read_text()


def output_of(*command, folder=None):
    return subprocess.run(command, cwd=folder, check=True, stdout=subprocess.PIPE, text=True).stdout


def snippets():
    """(origin, language, text) of each snippet; the origin is empty where no comment names it."""
    pattern = r"(?:<!-- (.*?) -->\n)?^```(\w+)\n(.*?)^```$"
    return re.findall(pattern, EMBEDDING, re.DOTALL | re.MULTILINE)


def snippet(origin):
    return next(text for place, _, text in snippets() if place == origin)


class EmbeddingTest(unittest.TestCase):
    def test_snippets_are_in_their_files(self):
        files = [(origin, text) for origin, _, text in snippets() if origin.startswith("hosts/")]
        self.assertGreaterEqual(len(files), 2)
        for origin, text in files:
            self.assertIn(text, (ROOT / origin).read_text())

    def test_every_snippet_has_an_origin(self):
        for origin, _, text in snippets():
            self.assertTrue(origin, text)
        commands = {origin for origin, _, _ in snippets() if origin.startswith("command")}
        self.assertEqual(commands, {f"command: {what}" for what in
                                    ("install", "pkg-config", "python", "node")})

    def test_python(self):
        with tempfile.TemporaryDirectory() as folder:
            shutil.copy(ROOT / "hosts/python/almara.py", folder)
            Path(folder, "program.py").write_text(snippet("command: python"))
            text = output_of(sys.executable, "-B", "program.py", folder=folder)
        self.assertRegex(text, r"(?m)^2024 1 1 1-5-7-1-")

    @unittest.skipUnless(NODE, "needs node and npm")
    def test_node(self):
        text = output_of(NODE, "-e", snippet("command: node"), folder=KOFFI)
        self.assertRegex(text, r"(?m)^2024 1 1 1-5-7-1-")

    def test_links(self):
        for target in re.findall(r"\]\(([^)#:]+)\)", EMBEDDING):
            self.assertTrue((ROOT / "docs" / target).exists(), target)


class ReadmeTest(unittest.TestCase):
    """The first snippet of each language."""

    def snippet(self, language):
        return re.search(rf"^```{language}\n(.*?)^```$", README, re.DOTALL | re.MULTILINE)[1]

    def test_c(self):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "month.c").write_text(self.snippet("c"))
            library = Path(os.environ["ALMARA_LIBRARY_FOLDER"])
            output_of(os.environ["CC"], "month.c", "-o", "month", f"-I{ROOT / 'include'}",
                      f"-L{library}", "-lalmara", folder=folder)
            text = output_of("sh", "-c", "./month 2>&1 >/dev/null", folder=folder)
        self.assertEqual([len(line) for line in text.splitlines()], [28] * 5)

    def test_cmake(self):
        example = (ROOT / "hosts/c/CMakeLists.txt").read_text().splitlines()
        for line in self.snippet("cmake").splitlines():
            self.assertIn(line, example)

    def test_python(self):
        program = self.snippet("python") + "print(lunar.year, lunar.month, lunar.day)\n"
        self.assertRegex(output_of(sys.executable, "-B", "-c", program), r"(?m)^2024 1 1$")

    @unittest.skipUnless(NODE, "needs node and npm")
    def test_node(self):
        program = self.snippet("js") + "console.log(lunar.year, lunar.month, lunar.day);\n"
        self.assertRegex(output_of(NODE, "-e", program, folder=KOFFI), r"(?m)^2024 1 1$")


class ManualTest(unittest.TestCase):
    def test_every_function_is_in_the_synopsis(self):
        declared = []
        synopsis = manual("almara.3").partition(".Sh SYNOPSIS")[2].partition(".Sh DESCRIPTION")[0]
        for result, name, arguments in re.findall(r"^\.Ft (.*)\n\.Fn (\w+) (.*)$", synopsis,
                                                  re.MULTILINE):
            parameters = ", ".join(re.findall(r'"([^"]*)"', arguments)) or arguments
            declared.append(f"{result} {name}({parameters})")
        self.assertEqual(declared, list(Interface().functions.values()))

    def test_the_example_is_the_one_that_is_built(self):
        example = re.search(r"^\.Bd -literal -offset indent\n(.*?)^\.Ed$", manual("almara.3"),
                            re.DOTALL | re.MULTILINE)[1].replace("\\e", "\\")
        source = (ROOT / "hosts/c/month.c").read_text()
        self.assertEqual(example, source[source.index("#include"):])

    @unittest.skipUnless(VIEWER, "this build leaves the viewer out")
    def test_every_option_of_the_viewer(self):
        described = set()
        for line in re.findall(r"^\.It Fl (.*)$", manual("almara-board.1"), re.MULTILINE):
            names = line.partition(" Ar")[0].replace("Fl", "").replace(",", "").split()
            described.update("-" + name for name in names)
        offered = set()
        for line in re.findall(r"^  (-\S+)", output_of(VIEWER, "--help"), re.MULTILINE):
            offered.update(line.split(","))
        self.assertEqual(described, offered)


if __name__ == "__main__":
    unittest.main()
