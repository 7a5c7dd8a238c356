#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the binary interface to its recorded baseline.

    guard.py check <libalmara.so>          fails when something recorded disappeared or changed
                                           while the SONAME stayed, or something new is not recorded
    guard.py record <libalmara.so>         records additions, or the interface of a new SONAME,
                                           also in the package's list of symbols
    guard.py requirements <libalmara.so>   reports the versions of the system libraries that it
                                           needs; fails above the ceilings below

A baseline is two files named after the SONAME: .abi has, for every function, its type and through
it the layout of the records (as abidw describes them); .constants has the values of the constants.
"""
import argparse
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from interface import INCLUDE, Interface

HERE = Path(__file__).resolve().parent

# What Debian 12, Ubuntu 22.04, RHEL 9 and everything younger has: glibc 2.34 and the libraries of
# GCC 11.
CEILINGS = {"GLIBC": "2.34", "GLIBCXX": "3.4.29", "CXXABI": "1.3.13", "GCC": "11.0"}


class Incompatible(Exception):
    """Something recorded is gone or different under the same SONAME."""


class Unrecorded(Exception):
    """The interface has grown, or has a new SONAME, and the baseline does not know it yet."""


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


class Library:
    def __init__(self, path):
        self.path = path
        self.soname = re.search(r"\(SONAME\).*\[(.*)\]", output_of("readelf", "-dW", path))[1]

    def exported(self):
        return {line.split()[-1].split("@")[0]
                for line in output_of("nm", "-D", "--defined-only", self.path).splitlines()}

    def requirements(self):
        """Name of a set of versions -> the highest version needed of it."""
        highest = {}
        for name, version in re.findall(r"\b([A-Z]+)_([0-9.]+)\b",
                                        output_of("readelf", "-VW", self.path)):
            highest[name] = max(highest.get(name, "0"), version, key=numbers)
        return highest


def numbers(version):
    return [int(part) for part in version.split(".")]


def describe(interface, soname, include, folder):
    """Writes what abidw says of a library that holds a pointer to each function of the header, so
    that the types are the header's own."""
    source, library, description = (Path(folder) / f"interface.{kind}" for kind in ("c", "so", "abi"))
    pointers = (f"__typeof__({name})* const pointer_to_{name} = {name};\n"
                for name in interface.functions)
    source.write_text("#include <almara/almara.h>\n" + "".join(pointers))
    # Always gcc: other compilers describe the same types in other words.
    subprocess.run(["gcc", "-g", "-fPIC", "-shared", f"-I{include.resolve()}",
                    f"-Wl,-soname,{soname}", source.name, "-o", library.name],
                   check=True, cwd=folder)
    subprocess.run(["abidw", "--no-architecture", "--no-show-locs", "--no-corpus-path",
                    "--no-comp-dir-path", "--out-file", description, library], check=True)
    return description


def compare(*options):
    result = subprocess.run(["abidiff", *options], stdout=subprocess.PIPE, text=True, check=False)
    if result.returncode & 3:
        raise RuntimeError(f"abidiff failed: {result.stdout}")
    return result.stdout if result.returncode else ""


def read_constants(path):
    return {name: int(value) for name, value in map(str.split, path.read_text().splitlines())}


def check(library, include, baselines, folder):
    interface = Interface(include)
    missing = interface.functions.keys() - library.exported()
    if missing:
        raise Incompatible(f"the library does not export {' '.join(sorted(missing))}")
    recorded = baselines / f"{library.soname}.abi"
    if not recorded.exists():
        raise Unrecorded(f"there is no baseline for {library.soname}")
    described = describe(interface, library.soname, include, folder)
    changes = compare("--no-added-syms", recorded, described)
    known = read_constants(recorded.with_suffix(".constants"))
    for name, value in known.items():
        if interface.constants.get(name) != value:
            changes += f"{name} was {value} and is {interface.constants.get(name, 'gone')}\n"
    if changes:
        raise Incompatible(changes)
    additions = compare(recorded, described)
    additions += "".join(f"{name} is new\n" for name in interface.constants if name not in known)
    if additions:
        raise Unrecorded(additions)


def record(library, include, baselines, folder):
    baselines.mkdir(parents=True, exist_ok=True)
    interface = Interface(include)
    description = describe(interface, library.soname, include, folder).read_text()
    (baselines / f"{library.soname}.abi").write_text(description)
    (baselines / f"{library.soname}.constants").write_text(
        "".join(f"{name} {value}\n" for name, value in interface.constants.items()))
    record_symbols(library, interface, baselines)


def record_symbols(library, interface, baselines):
    """The list of symbols says since which version each function is there."""
    name, major = re.fullmatch(r"(\w+)\.so\.(\d+)", library.soname).groups()
    path = baselines / f"{name}{major}.symbols"
    since = {function: interface.version for function in interface.functions}
    if path.exists():
        since.update(re.findall(r"^ (\w+)@Base (\S+)$", path.read_text(), re.MULTILINE))
    path.write_text(f"{library.soname} {name}{major} #MINVER#\n"
                    f"* Build-Depends-Package: {name}-dev\n" +
                    "".join(f" {name}@Base {since[name]}\n" for name in sorted(since)))


def report_requirements(library):
    needed = library.requirements()
    for name, version in sorted(needed.items()):
        print(f"{name:8} {version:8} ceiling {CEILINGS.get(name, 'none: unexpected')}")
    too_high = [name for name, version in needed.items()
                if name not in CEILINGS or numbers(version) > numbers(CEILINGS[name])]
    if too_high or "GLIBC" not in needed:
        sys.exit(f"{library.path} needs too much of {' '.join(too_high) or 'nothing at all?'}")


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("task", choices=["check", "record", "requirements"])
    parser.add_argument("library", type=Library)
    parser.add_argument("--include", type=Path, default=INCLUDE)
    parser.add_argument("--baselines", type=Path, default=HERE / "baseline")
    arguments = parser.parse_args()
    if arguments.task == "requirements":
        return report_requirements(arguments.library)
    with tempfile.TemporaryDirectory() as folder:
        place = (arguments.library, arguments.include, arguments.baselines, folder)
        try:
            check(*place)
        except Incompatible as change:
            sys.exit(f"incompatible with earlier {arguments.library.soname}:\n{change}")
        except Unrecorded as addition:
            if arguments.task == "check":
                sys.exit(f"not in the baseline (scripts/check abi --record records it):\n{addition}")
        if arguments.task == "record":
            record(*place)
    return None


if __name__ == "__main__":
    main()
