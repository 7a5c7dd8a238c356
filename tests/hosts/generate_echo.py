#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes a library that hands records back and forth, for the tests of bridges.

    generate_echo.py <folder>     writes echo.h, echo.c, and echo.json with the prototypes

For every record R of the public header:

    R echo_R(int32_t before, R record, int32_t after)    the record, or zeroes if its neighbours
                                                         were not the lowest and the highest int32
    R make_R(int32_t ...)                                the record of these fields
    int32_t field_R(R record, int32_t index)             one field
"""
import json
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "abi"))
from interface import Interface  # noqa: E402


def prototypes(record, fields):
    parameters = ", ".join(f"int32_t {field}" for field in fields)
    return {"echo": f"{record} echo_{record}(int32_t before, {record} record, int32_t after)",
            "make": f"{record} make_{record}({parameters})",
            "field": f"int32_t field_{record}({record} record, int32_t index)"}


def bodies(record, fields):
    cases = "".join(f"    case {index}: return record.{field};\n"
                    for index, field in enumerate(fields))
    return {"echo": f"  {record} zeroes = {{0}};\n"
                    "  return before == INT32_MIN && after == INT32_MAX ? record : zeroes;\n",
            "make": f"  {record} record = {{{', '.join(fields)}}};\n  return record;\n",
            "field": f"  switch (index) {{\n{cases}    default: return 0;\n  }}\n"}


def main(folder):
    records = Interface().records
    header = "#include <almara/almara.h>\n#ifdef __cplusplus\nextern \"C\" {\n#endif\n"
    source = '#include "echo.h"\n'
    for record, fields in records.items():
        for kind, prototype in prototypes(record, fields).items():
            header += prototype + ";\n"
            source += f"{prototype} {{\n{bodies(record, fields)[kind]}}}\n"
    header += "#ifdef __cplusplus\n}\n#endif\n#define ECHO_RECORDS(X) " + " ".join(
        f"X({record}, {len(fields)})" for record, fields in records.items()) + "\n"
    Path(folder, "echo.h").write_text(header)
    Path(folder, "echo.c").write_text(source)
    Path(folder, "echo.json").write_text(json.dumps(
        {record: {"fields": fields, **prototypes(record, fields)}
         for record, fields in records.items()}, indent=2) + "\n")


if __name__ == "__main__":
    main(sys.argv[1])
