#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What the documents show runs, and what they name is there.

A snippet runs as it stands. A comment at the end of a line that prints, "# 2024 1 1" or
"// 2024 1 1", is what that line has to print.
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import cases

ROOT = Path(__file__).resolve().parents[2]
DOCUMENTS = {path: path.read_text(encoding="utf-8")
             for path in [*ROOT.glob("*.md"), *ROOT.glob("docs/*.md")]}
VIEWER = os.environ.get("ALMARA_BOARD")


def snippets(language):
    for path, text in DOCUMENTS.items():
        for code in re.findall(rf"^```{language}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE):
            yield path.name, code


def output_of(*command, folder=None):
    """What a command prints, also as errors; it has to succeed."""
    result = subprocess.run(command, cwd=folder, check=False, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True)
    if result.returncode != 0:
        raise AssertionError(result.stdout)
    return result.stdout


class Snippets(unittest.TestCase):
    def assert_snippets_run(self, language, run):
        ran = 0
        for document, code in snippets(language):
            with self.subTest(document=document, code=code):
                printed = run(code).splitlines()
                for expected in re.findall(r"^(?:print|console\.log)\(.*\);? +(?:#|//) (.*)$",
                                           code, re.MULTILINE):
                    self.assertIn(expected, printed)
                ran += 1
        self.assertGreater(ran, 0)


class Documents(Snippets):
    def test_c(self):
        library = os.environ["ALMARA_LIBRARY_FOLDER"]

        def run(code):
            with tempfile.TemporaryDirectory() as folder:
                Path(folder, "program.c").write_text(code, encoding="utf-8")
                output_of(os.environ["CC"], "-std=c99", "-Wall", "-Wextra", "-Werror",
                          "program.c", "-o", "program", f"-I{ROOT / 'include'}", f"-L{library}",
                          "-lalmara", folder=folder)
                return output_of("./program", folder=folder)

        self.assert_snippets_run("c", run)

    def test_python(self):
        self.assert_snippets_run("python", lambda code: output_of(sys.executable, "-B", "-c", code))

    def test_cmake(self):
        """A project's CMake lines are those of a host that tests/install builds."""
        host = (ROOT / "hosts/c/CMakeLists.txt").read_text(encoding="utf-8").splitlines()
        for document, code in snippets("cmake"):
            self.assertEqual([line for line in code.splitlines() if line not in host], [], document)

    def test_links_lead_to_files(self):
        links = [(path, target) for path, text in DOCUMENTS.items()
                 for target in re.findall(r"\]\(([^)#:]+)(?:#[^)]*)?\)", text)]
        self.assertGreater(len(links), 5)
        for path, target in links:
            self.assertTrue((path.parent / target).exists(), f"{target} in {path.name}")

    def test_the_chinese_readme_repeats_the_english_one(self):
        """Its code without the comments, its numbers and its dates are all in README.md."""
        english, chinese = (DOCUMENTS[ROOT / name] for name in ("README.md", "README.zh.md"))

        def code(text):
            blocks = re.findall(r"^```\w+\n(.*?)^```$", text, re.DOTALL | re.MULTILINE)
            lines = "".join(blocks).splitlines()
            return {re.sub(r"\s+(#|//) .*", "", line) for line in lines}

        def figures(text):
            return set(re.findall(r"\d+(?:-\d+)*", text))

        self.assertGreater(len(code(chinese)), 10)
        self.assertEqual(code(chinese) - code(english), set())
        self.assertGreater(len(figures(chinese)), 20)
        self.assertEqual(figures(chinese) - figures(english), set())

    def test_scripts_that_are_named_are_there(self):
        for path, text in DOCUMENTS.items():
            for script in re.findall(r"\bscripts/[\w-]+", text):
                self.assertTrue((ROOT / script).exists(), f"{script} in {path.name}")

    @unittest.skipUnless(VIEWER, "this build leaves the viewer out")
    def test_manual_has_every_option_of_the_viewer(self):
        described = set()
        manual = (ROOT / "docs/man/almara-board.1").read_text(encoding="utf-8")
        for line in re.findall(r"^\.It Fl (.*)$", manual, re.MULTILINE):
            names = re.split(" Ar| Oo", line)[0].replace("Fl", "").replace(",", "").split()
            described.update("-" + name for name in names)
        offered = set()
        for line in re.findall(r"^  (-\S+)", output_of(VIEWER, "--help"), re.MULTILINE):
            offered.update(line.split(","))
        self.assertEqual(described, offered)


class NodeSnippets(Snippets):
    def test_node(self):
        self.assert_snippets_run("js", lambda code: output_of(os.environ["NODE"], "-e", code,
                                                              folder=os.environ["NODE_HOST"]))


if __name__ == "__main__":
    cases.main()
