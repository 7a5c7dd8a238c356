#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What the public header declares, read from its text: the one source of every list of functions,
records and constants in tests, packages and manuals.

    interface.py functions|records|constants [<include folder>]
"""
import re
import sys
from functools import cached_property
from pathlib import Path

HEADERS = ("almara/almara_types.h", "almara/almara.h")
INCLUDE = Path(__file__).resolve().parents[2] / "include"


class Interface:
    """functions: name -> prototype; records: name -> fields, all int32_t; constants: name -> value;
    each in the order of the header."""

    def __init__(self, include=INCLUDE):
        self.text = "".join(strip_comments((Path(include) / name).read_text()) for name in HEADERS)

    @cached_property
    def functions(self):
        return read_functions(self.text)

    @cached_property
    def records(self):
        return read_records(self.text)

    @cached_property
    def constants(self):
        return read_constants(self.text)

    @cached_property
    def version(self):
        return re.search(r'^#define ALMARA_VERSION_STRING "(.*)"\s*$', self.text, re.MULTILINE)[1]


def strip_comments(text):
    return re.sub(r"/\*.*?\*/", " ", text, flags=re.DOTALL)


def read_functions(text):
    functions = {}
    for match in re.finditer(r"^ALMARA_EXPORT\s([^;]*);", text, flags=re.MULTILINE):
        prototype = " ".join(match[1].split())
        functions[re.search(r"(\w+)\(", prototype)[1]] = prototype
    expect_count(text, r"^ALMARA_EXPORT\b", functions)
    return functions


def read_records(text):
    records = {}
    for match in re.finditer(r"\btypedef struct (\w+) \{([^}]*)\} \1;", text):
        lines = [line.strip() for line in match[2].split(";") if line.strip()]
        fields = [re.fullmatch(r"int32_t (\w+)", line) for line in lines]
        if None in fields:
            raise ValueError(f"{match[1]} holds something other than int32_t fields")
        records[match[1]] = [field[1] for field in fields]
    expect_count(text, r"\bstruct\b", records)
    return records


def read_constants(text):
    constants = {}
    for body in re.findall(r"\benum \{([^}]*)\};", text):
        for item in filter(None, (item.strip() for item in body.split(","))):
            name, value = re.fullmatch(r"(\w+) = (-?\d+)", item).groups()
            constants[name] = int(value)
    expect_count(text, r"\be[A-Z]\w+ = ", constants)
    return constants


def expect_count(text, pattern, found):
    """A declaration in a form that the patterns above do not know must not go unnoticed."""
    expected = len(re.findall(pattern, text, flags=re.MULTILINE))
    if expected != len(found) or not found:
        raise ValueError(f"{expected} times {pattern}, but {len(found)} declarations understood")


def main(kind, include=INCLUDE):
    interface = Interface(include)
    if kind == "functions":
        print(*interface.functions.values(), sep="\n")
    elif kind == "records":
        for name, fields in interface.records.items():
            print(name, *fields)
    elif kind == "constants":
        for name, value in interface.constants.items():
            print(name, value)
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(*sys.argv[1:])
