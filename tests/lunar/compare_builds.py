#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds that the astronomy does not depend on compiler, optimisation level or processor.

Usage: compare_builds.py SOURCE_DIRECTORY SCRATCH_DIRECTORY

Compiles annotation_dump with every compiler at hand, unoptimised and optimised, and compares what
the programs print: days and bits of doubles must be equal in all of them. Run once more with the C
library's arithmetic for processors without fused multiply-add, where a cosine may come out one bit
off, the days must still be equal.
"""

import os
import pathlib
import shutil
import subprocess
import sys

BUILDS = {
    "g++-O0": ["g++", "-O0"],
    "g++-O3-native": ["g++", "-O3", "-march=native"],
    "clang++-O2": ["clang++", "-O2"],
}
FLAGS = ["-std=c++17", "-ffp-contract=off", "-Isrc", "-Iinclude", "-Itests"]
ZONES = ["8"]


def compile_dump(source: pathlib.Path, command, program: pathlib.Path) -> None:
    files = sorted((source / "src/lunar").glob("*.cpp")) + sorted((source / "src/date").glob("*.cpp"))
    files.append(source / "tests/lunar/annotation_dump.cpp")
    subprocess.run([*command, *FLAGS, *map(str, files), "-o", str(program)], cwd=source, check=True)


def output(program: pathlib.Path, **environment) -> list:
    done = subprocess.run([str(program), *ZONES], env={**os.environ, **environment}, check=True,
                          stdout=subprocess.PIPE, text=True)
    return done.stdout.splitlines()


def days(lines: list) -> list:
    return [line for line in lines if not line.startswith("bits")]


def main() -> int:
    source, scratch = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    scratch.mkdir(parents=True, exist_ok=True)
    builds = {name: command for name, command in BUILDS.items() if shutil.which(command[0])}
    outputs = {}
    for name, command in builds.items():
        compile_dump(source, command, scratch / name)
        outputs[name] = output(scratch / name)
    first = next(iter(outputs))
    if len(outputs) < 2 or not days(outputs[first]):
        print("nothing to compare")
        return 1

    failures = [f"{name} differs from {first}" for name, lines in outputs.items()
                if lines != outputs[first]]
    plain = output(scratch / first, GLIBC_TUNABLES="glibc.cpu.hwcaps=-FMA,-FMA4,-AVX2")
    if days(plain) != days(outputs[first]):
        failures.append("the days differ without fused multiply-add")
    print("\n".join(outputs[first] + (failures or [f"equal: {', '.join(outputs)}"])))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
