#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the test programs of a CTest listing under valgrind.

Usage: ctest --show-only=json-v1 ... | run_under_valgrind.py JOBS

CTest knows each case of a test program as a test of its own. Here a program runs once for each
environment that it is registered with, with all its cases. Tests that are scripts are left out.
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
        arguments = tuple(a for a in command if not a.startswith("--gtest_"))
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
    name = os.path.basename(command[0]) + "".join(f" {entry}" for entry in environment)
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
        f"valgrind: {len(runs) - len(reports)} of {len(runs)} test programs clean, "
        f"{len(left_out)} tests that are scripts left out"
    )
    return 1 if reports else 0


if __name__ == "__main__":
    sys.exit(main())
