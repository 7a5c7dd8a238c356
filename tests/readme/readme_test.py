# SPDX-License-Identifier: MIT
"""What the documents show is what happens: transcript, embedding example, links.

Usage: readme_test.py SOURCE_DIRECTORY LIBRARY ALMARA_BOARD LIBFAKETIME CC [FLAG...]
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(sys.argv[1])
LIBRARY = pathlib.Path(sys.argv[2])
BOARD, FAKETIME, *CC = sys.argv[3:]
README = (SOURCE / "README.md").read_text(encoding="utf-8")
ENVIRONMENT = {
    "PATH": "/usr/bin:/bin",
    "LC_ALL": "C.UTF-8",
    "TZ": "UTC",
    "LD_PRELOAD": FAKETIME,
    "FAKETIME": "2025-05-14 10:00:00",
    "ASAN_OPTIONS": "verify_asan_link_order=0",
}


def block(language):
    """The text of the only code block of that language."""
    (text,) = re.findall(rf"^```{language}\n(.*?)^```$", README, re.MULTILINE | re.DOTALL)
    return text


def run(*command):
    return subprocess.run(
        command, env=ENVIRONMENT, capture_output=True, check=True, encoding="utf-8"
    )


class Readme(unittest.TestCase):
    def test_the_transcript_is_what_the_viewer_prints(self):
        command, shown = block("console").split("\n", 1)
        self.assertEqual(command, "$ scripts/board")
        self.assertEqual(run(BOARD).stdout, shown)

    def test_the_example_compiles_and_shows_the_days_of_the_board(self):
        with tempfile.TemporaryDirectory() as folder:
            source, program = pathlib.Path(folder, "month.c"), pathlib.Path(folder, "month")
            source.write_text(block("c"), encoding="utf-8")
            include = f"-I{SOURCE / 'include'}"
            subprocess.run(
                [*CC, "-std=c99", "-Wall", "-Wextra", "-Werror", source, "-o", program, include,
                 f"-L{LIBRARY.parent}", "-lalmara", f"-Wl,-rpath,{LIBRARY.parent}"],
                check=True,
            )
            shown = run(program).stderr
        board = json.loads(run(BOARD, "--json", "--no-month-interval").stdout)
        expected = [[cell["day"] for cell in row] for row in board["cells"]]
        self.assertEqual([[int(day) for day in line.split()] for line in shown.splitlines()],
                         expected)
        self.assertEqual(len(expected), 5)


class Links(unittest.TestCase):
    def test_every_relative_link_leads_to_a_file(self):
        links = 0
        for document in [*SOURCE.glob("*.md"), *SOURCE.glob("docs/*.md")]:
            for target in re.findall(r"\]\(([^)#]+)\)", document.read_text(encoding="utf-8")):
                if not re.match(r"\w+:", target):
                    links += 1
                    with self.subTest(document=document.name, target=target):
                        self.assertTrue((document.parent / target).exists())
        self.assertGreater(links, 5)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
