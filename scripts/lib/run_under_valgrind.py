#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the test programs of a CTest listing under valgrind.

Usage: ctest --show-only=json-v1 ... | run_under_valgrind.py JOBS

CTest knows each case of a test program as a test of its own. Here a program of internal tests runs
once for each environment that it is registered with, with all its cases. Plain tests drive the one
engine of the library, so each case needs a process of its own. Tests that are scripts are left out.
"""

import concurrent.futures
import json
import os
import subprocess
import sys
import time

VALGRIND = [
    "valgrind",
    "--quiet",
    "--error-exitcode=99",
    "--leak-check=full",
    "--errors-for-leak-kinds=definite,possible",
    # A program's own operator new, which the fault tests have, stays in force.
    "--soname-synonyms=somalloc=nouserintercepts",
]


def is_program(path):
    with open(path, "rb") as file:
        return file.read(4) == b"\x7fELF"


def programs(listing):
    """The programs of the listing as (command, environment), each once, and what is left out."""
    runs = {}
    left_out = []
    for test in listing["tests"]:
        command = test["command"]
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        if not is_program(command[0]) or not command[0].startswith(os.getcwd()):
            left_out.append(test["name"])
            continue
        arguments = tuple(
            argument
            for argument in command
            if "plain" in properties["LABELS"] or not argument.startswith("--gtest_")
        )
        environment = tuple(properties.get("ENVIRONMENT", []))
        runs[arguments, environment] = properties.get("WORKING_DIRECTORY")
    return [(*key, directory) for key, directory in runs.items()], left_out


def run(command, environment, directory):
    """Runs one program; returns its report when it fails, else None."""
    started = time.monotonic()
    variables = {**os.environ, **dict(entry.split("=", 1) for entry in environment)}
    result = subprocess.run(
        VALGRIND + list(command),
        env=variables,
        cwd=directory,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        check=False,
    )
    name = " ".join((os.path.basename(command[0]), *command[1:], *environment))
    verdict = "ok" if result.returncode == 0 else "FAILED"
    print(f"  {verdict} {name} ({time.monotonic() - started:.0f} s)", flush=True)
    if result.returncode == 0:
        return None
    return f"--- {name}\n" + result.stdout.decode(errors="replace")[-6000:]


def main():
    runs, left_out = programs(json.load(sys.stdin))
    if not runs:
        print("valgrind: no test program to run")
        return 1
    with concurrent.futures.ThreadPoolExecutor(int(sys.argv[1])) as pool:
        reports = [report for report in pool.map(lambda entry: run(*entry), runs) if report]
    print("\n".join(reports))
    print(
        f"valgrind: {len(runs) - len(reports)} of {len(runs)} runs of test programs clean, "
        f"{len(left_out)} tests that are scripts left out"
    )
    return 1 if reports else 0


if __name__ == "__main__":
    sys.exit(main())
