#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds that the rooms under src/ include and call each other along the arrows of ARCHITECTURE.md.

Usage: check_rooms.py SOURCE_DIRECTORY OBJECT...

Every #include of a file under src/ must lead into the same room or along an arrow, and so must every
symbol that the object files of a room leave undefined and those of another define. An arrow that
nothing uses is a mistake too.
"""

import pathlib
import re
import subprocess
import sys

ARROWS = {
    "date": set(),
    "board": {"date"},
    "lunar": {"date"},
    "festival": {"date"},
    "logic": {"date", "board", "lunar", "festival"},
    "almanac": {"date", "festival"},
    "names": set(),
    # board: the options are a base of the engine
    "api": {"date", "board", "logic", "almanac", "names"},
    "plugin": set(),
}

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*"([^"]+)"', re.MULTILINE)
DEFINED = "TDBRSGC"  # types of nm; inline functions (V, W) belong to every room that uses them


def includes(src: pathlib.Path):
    """Yields (room, other room, what) for each include."""
    for path in sorted(p for p in src.rglob("*") if p.suffix in (".h", ".cpp")):
        room = path.relative_to(src).parts[0]
        for included in INCLUDE.findall(path.read_text(encoding="utf-8")):
            target = path.parent / included
            target = (target if target.is_file() else src / included).resolve()
            if target.is_file() and src in target.parents:
                yield room, target.relative_to(src).parts[0], f"{path.name} includes {included}"


def calls(objects: list):
    """Yields (room, other room, what) for each symbol that one room takes from another."""
    owners, wanted = {}, []
    for path in map(pathlib.Path, objects):
        room = path.parent.name
        listed = subprocess.run(["nm", "-P", "-g", path], check=True, capture_output=True, text=True)
        for name, kind in (line.split()[:2] for line in listed.stdout.splitlines()):
            if kind in DEFINED:
                owners[name] = room
            elif kind == "U":
                wanted.append((room, name, path.name))
    for room, name, file in wanted:
        if name in owners:
            yield room, owners[name], f"{file} uses {name}"


def main() -> int:
    src = (pathlib.Path(sys.argv[1]) / "src").resolve()
    used, mistakes = set(), []
    for room, other, what in [*includes(src), *calls(sys.argv[2:])]:
        if room == other:
            continue
        used.add((room, other))
        if other not in ARROWS.get(room, set()):
            mistakes.append(f"no arrow leads from {room} to {other}: {what}")
    for room, others in ARROWS.items():
        mistakes += [f"nothing uses the arrow from {room} to {other}"
                     for other in sorted(others) if (room, other) not in used]
    print("\n".join(mistakes) or f"{len(used)} arrows, each of them used and no other")
    return 1 if mistakes else 0


if __name__ == "__main__":
    sys.exit(main())
