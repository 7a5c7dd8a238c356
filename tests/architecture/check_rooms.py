#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds that the rooms under src/ include each other in one direction only.

Usage: check_rooms.py SOURCE_DIRECTORY

Every #include of a file under src/ must lead into the same room or into one that the table names.
"""

import pathlib
import re
import sys

MAY_INCLUDE = {
    "date": set(),
    "board": {"date"},
    "lunar": {"date"},
    "festival": {"date"},
    "logic": {"date", "board", "lunar", "festival"},
    "almanac": {"date", "festival"},
    "api": {"date", "board", "lunar", "festival", "logic", "almanac"},
    "plugin": set(),
}

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]', re.MULTILINE)


def room_of(included: str, quoted: bool, includer: pathlib.Path, src: pathlib.Path):
    """The room that an include leads into, None for a header from elsewhere."""
    if quoted and (includer.parent / included).is_file():
        target = (includer.parent / included).resolve()
    else:
        target = (src / included).resolve()
    if not target.is_file() or src not in target.parents:
        return None
    return target.relative_to(src).parts[0]


def violations(src: pathlib.Path):
    """Yields a line for each that is not allowed."""
    for path in sorted(p for p in src.rglob("*") if p.suffix in (".h", ".cpp", ".c", ".cc")):
        room = path.relative_to(src).parts[0]
        if room not in MAY_INCLUDE:
            yield f"{path}: {room} is a new room; say in {__file__} what it may include"
            continue
        for match in INCLUDE.finditer(path.read_text(encoding="utf-8")):
            target = room_of(match[2], match[1] == '"', path, src)
            if target is not None and target != room and target not in MAY_INCLUDE[room]:
                yield f"{path}: {room} must not include {match[2]}"


def main() -> int:
    src = (pathlib.Path(sys.argv[1]) / "src").resolve()
    if not (src / "api").is_dir():
        print(f"no rooms under {src}")
        return 1
    found = list(violations(src))
    print("\n".join(found) or "the rooms include each other in one direction only")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
