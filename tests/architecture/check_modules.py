#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds that the modules under src/ use each other as the table of ARCHITECTURE.md permits.

Usage: check_modules.py SOURCE_DIRECTORY OBJECT...

Every #include of a file under src/ must lead into the same module or one that its row names under
"May use", and so must every symbol that the object files of a module leave undefined and those of
another define. A permission that nothing uses is a mistake too.
"""

import pathlib
import re
import subprocess
import sys

ROW = re.compile(r"^\| `(\w+)/` \|.*\| (.+) \|$", re.MULTILINE)
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*"([^"]+)"', re.MULTILINE)
DEFINED = "TDBRSGC"  # types of nm; inline functions (V, W) belong to every module that uses them


def includes(src: pathlib.Path):
    """Yields (module, other module, what) for each include."""
    for path in sorted(p for p in src.rglob("*") if p.suffix in (".h", ".cpp")):
        module = path.relative_to(src).parts[0]
        for included in INCLUDE.findall(path.read_text(encoding="utf-8")):
            target = path.parent / included
            target = (target if target.is_file() else src / included).resolve()
            if target.is_file() and src in target.parents:
                yield module, target.relative_to(src).parts[0], f"{path.name} includes {included}"


def calls(objects: list):
    """Yields (module, other module, what) for each symbol that one module takes from another."""
    owners, wanted = {}, []
    for path in map(pathlib.Path, objects):
        module = path.parent.name
        listed = subprocess.run(["nm", "-P", "-g", path], check=True, capture_output=True,
                                text=True)
        for name, kind in (line.split()[:2] for line in listed.stdout.splitlines()):
            if kind in DEFINED:
                owners[name] = module
            elif kind == "U":
                wanted.append((module, name, path.name))
    for module, name, file in wanted:
        if name in owners:
            yield module, owners[name], f"{file} uses {name}"


def permissions(text: str):
    """The modules that each module may use, by its row of the table; other words of it count as
    none."""
    rows = dict(ROW.findall(text))
    return {module: rows.keys() & set(re.findall(r"\w+", allowed))
            for module, allowed in rows.items()}


def main() -> int:
    root = pathlib.Path(sys.argv[1])
    permitted = permissions((root / "ARCHITECTURE.md").read_text(encoding="utf-8"))
    used, mistakes = set(), []
    for module, other, what in [*includes((root / "src").resolve()), *calls(sys.argv[2:])]:
        if module == other:
            continue
        used.add((module, other))
        if other not in permitted.get(module, set()):
            mistakes.append(f"{module} may not use {other}: {what}")
    for module, others in permitted.items():
        mistakes += [f"{module} may use {other}, but does not"
                     for other in sorted(others) if (module, other) not in used]
    print("\n".join(mistakes) or f"{len(used)} permissions, each of them used and no other")
    return 1 if mistakes else 0


if __name__ == "__main__":
    sys.exit(main())
