# SPDX-License-Identifier: MIT
"""What docs/testing.md explains, for the scripts that find something to explain."""

import pathlib
import re

PAGE = pathlib.Path(__file__).resolve().parent.parent.parent / "docs" / "testing.md"


def explained(heading):
    """The pairs of path and line of source in the table of a section: its first two columns."""
    page = PAGE.read_text()
    if f"## {heading}\n" not in page:
        return set()
    section = page.split(f"## {heading}\n")[1].split("\n## ")[0]
    rows = re.findall(r"^\| `([^`]+)` \| `(.+?)` \| ", section, re.MULTILINE)
    return {(path, line.replace("\\|", "|")) for path, line in rows}
