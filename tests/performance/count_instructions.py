#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Fails if a kind of work takes more instructions than it may.

    count_instructions.py WORK_UNITS

Counted by valgrind's callgrind in an empty environment, so that the numbers repeat from run to run and
do not depend on the machine's load.
"""

import re
import subprocess
import sys
import tempfile

# Kind of work, how often it is done, and the instructions that one may take: a quarter above what it
# took when the limit was set, because compilers and C libraries differ.
LIMITS = [
    ("board", 200, 48_000),
    ("page", 48, 570_000),
    ("kept", 200, 19_000),
]


def instructions(program, kind, times):
    """Instructions of a whole run of the program."""
    with tempfile.NamedTemporaryFile() as profile:
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile.name}", program, kind,
             str(times)],
            check=True, env={"PATH": "/usr/bin:/bin", "TZ": "UTC"}, stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE, text=True)
    return int(re.search(r"Collected : (\d+)", run.stderr).group(1))


def main():
    program = sys.argv[1]
    failed = False
    for kind, times, limit in LIMITS:
        used = instructions(program, kind, times) - instructions(program, kind, 0)
        each = used // times
        print(f"{kind}: {each} instructions each, at most {limit}")
        failed = failed or each > limit
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
