#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds that no answer depends on compiler, optimisation level or processor.

Usage: compare_builds.py SOURCE_DIRECTORY SCRATCH_DIRECTORY [BUILD...]

Compiles answers_dump for each build named (those that CTest runs, if none is), and compares what
the programs print and the boards that they dump. All must be equal, but for the bits of the doubles
where a build is for another processor, or where the C library is told to do without fused
multiply-adds: there a cosine may come out one bit off, and only answers must be equal.
"""

import concurrent.futures
import hashlib
import itertools
import os
import pathlib
import subprocess
import sys
import time

BUILDS = {
    "gcc-O0": ["g++", "-O0"],
    "gcc-O2": ["g++", "-O2"],
    "gcc-O3": ["g++", "-O3", "-march=native"],
    "clang-O2": ["clang++", "-O2"],
    "clang-O3": ["clang++", "-O3"],
    "arm64-gcc-O0": ["aarch64-linux-gnu-g++", "-O0", "-static"],
    "arm64-gcc-O2": ["aarch64-linux-gnu-g++", "-O2", "-static"],
}
IN_CTEST = ["gcc-O0", "gcc-O3", "clang-O2"]
EMULATOR = {"arm64": ["qemu-aarch64"]}
FLAGS = ["-std=c++17", "-ffp-contract=off", "-pthread",
         "-Isrc", "-Iinclude", "-Itests", "-Ifuzzers", "-Itests/lunar"]
SOURCES = ["tests/determinism/answers_dump.cpp", "tests/support/clock.cpp"]
NO_FUSED = {"GLIBC_TUNABLES": "glibc.cpu.hwcaps=-FMA,-FMA4,-AVX2"}


def processor(build):
    return "arm64" if build.startswith("arm64") else "this"


def compile_dump(source: pathlib.Path, scratch: pathlib.Path, build: str) -> None:
    found = sorted(path for path in (source / "src").glob("*/*.cpp") if path.parent.name != "plugin")
    files = [*map(str, found), *SOURCES]
    subprocess.run([*BUILDS[build], *FLAGS, *files, "-o", str(scratch / build)], cwd=source,
                   check=True)


def output(scratch: pathlib.Path, build: str, **environment) -> list:
    """The lines that a build prints, and one for the boards that it dumps."""
    boards = scratch / f"{build}.boards"
    started = time.monotonic()
    done = subprocess.run(
        [*EMULATOR.get(processor(build), []), str(scratch / build), str(boards)],
        env={**os.environ, **environment}, check=True, stdout=subprocess.PIPE, text=True)
    dump = boards.read_bytes()
    boards.unlink()
    print(f"{build}: {len(done.stdout.splitlines())} checksums, {len(dump)} bytes of boards, "
          f"{time.monotonic() - started:.0f} s", flush=True)
    return [*done.stdout.splitlines(), f"dump of the boards {hashlib.sha256(dump).hexdigest()[:16]}"]


def answers(lines: list) -> list:
    return [line for line in lines if not line.startswith("bits")]


def differences(name: str, lines: list, first: str, wanted: list) -> list:
    return [f"{name} differs from {first}: {line} instead of {other}"
            for line, other in itertools.zip_longest(lines, wanted, fillvalue="no line")
            if line != other]


def compare(scratch: pathlib.Path, builds: list) -> list:
    first = builds[0]
    wanted = output(scratch, first)
    print("\n".join(wanted), flush=True)
    failures = []
    for build in builds[1:]:
        lines = output(scratch, build)
        if processor(build) == processor(first):
            failures += differences(build, lines, first, wanted)
        else:
            failures += differences(build, answers(lines), first, answers(wanted))
            other = len(differences(build, lines, first, wanted))
            print(f"{build}: {other} checksums of doubles are other than those of {first}")
    plain = output(scratch, first, **NO_FUSED)
    failures += differences(f"{first} without fused multiply-adds", answers(plain), first,
                            answers(wanted))
    return failures


def main() -> int:
    source, scratch = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    builds = sys.argv[3:] or IN_CTEST
    scratch.mkdir(parents=True, exist_ok=True)
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        list(pool.map(lambda build: compile_dump(source, scratch, build), builds))
    failures = compare(scratch, builds)
    print("\n".join(failures) if failures else f"equal: {', '.join(builds)}")
    return 1 if failures or len(builds) < 2 else 0


if __name__ == "__main__":
    sys.exit(main())
