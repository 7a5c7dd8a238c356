#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws what a program prints on a terminal. terminal.py light|dark FILE.svg COMMAND...

The colours and styles are those that the command prints; each character stands in its own cell, so
that wide ones keep their columns whatever the font.
"""
import re
import subprocess
import sys
import unicodedata
from html import escape
from pathlib import Path

CELL, ROW, MARGIN = 8.4, 18, 14
THEMES = {"light": ("#24292f", "#ffffff", "#6e7781"), "dark": ("#d7dae0", "#1b1f24", "#8b949e")}
STEPS = (0, 95, 135, 175, 215, 255)  # of each colour in the 256-colour cube


def colour_of(code):
    """A colour of the 256-colour cube, which is what almara-board prints."""
    red, rest = divmod(code - 16, 36)
    return "#%02x%02x%02x" % (STEPS[red], STEPS[rest // 6], STEPS[rest % 6])


def styled(line):
    """Yields (style, text): style is the set of SGR numbers in force, with "38;5;n" as one."""
    style = set()
    for sgr, text in re.findall(r"\x1b\[([\d;]*)m|([^\x1b]+)", line):
        if text:
            yield style, text
            continue
        parts = re.findall(r"38;5;\d+|\d+", sgr) or ["0"]
        for part in parts:
            style = set() if part == "0" else style | {part}


def draw(text, theme):
    ink, paper, faint = THEMES[theme]
    shapes, columns = [], 0
    lines = text.rstrip("\n").split("\n")
    for row, line in enumerate(lines):
        column, y = 0, MARGIN + ROW * row
        for style, part in styled(line):
            indexed = next((each for each in style if each.startswith("38;5;")), None)
            colour = colour_of(int(indexed[5:])) if indexed else faint if "2" in style else ink
            weight = ' font-weight="bold"' if "1" in style else ""
            for character in part:
                width = 2 if unicodedata.east_asian_width(character) in "WF" else 1
                x = MARGIN + CELL * column
                if "7" in style:
                    shapes.append(f'<rect x="{x:g}" y="{y}" width="{CELL * width:g}" height="{ROW}" fill="{colour}"/>')
                if character != " ":
                    shapes.append(f'<text x="{x:g}" y="{y + 13}" fill="{paper if "7" in style else colour}"{weight}>'
                                  f"{escape(character)}</text>")
                column += width
        columns = max(columns, column)
    width, height = 2 * MARGIN + CELL * columns, 2 * MARGIN + ROW * len(lines)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width:g}" height="{height}" font-size="14" '
            f'font-family="DejaVu Sans Mono, Noto Sans Mono CJK SC, monospace">\n'
            f'<rect width="100%" height="100%" rx="6" fill="{paper}"/>\n' + "\n".join(shapes) + "\n</svg>\n")


def main():
    if len(sys.argv) < 4 or sys.argv[1] not in THEMES:
        sys.exit(__doc__)
    printed = subprocess.run(sys.argv[3:], check=True, capture_output=True, text=True).stdout
    Path(sys.argv[2]).write_text(draw(printed, sys.argv[1]), encoding="utf-8")


if __name__ == "__main__":
    main()
