# SPDX-License-Identifier: MIT
"""The built library through ctypes, call by call comparable with the model."""

import ctypes
import os
import re
import sys
import tempfile
from ctypes import c_int32, c_uint8
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts" / "lib"))
import interface  # noqa: E402

HEADERS = interface.read(*interface.ENGINE_HEADERS)

_libc = ctypes.CDLL(None)
_libc.free.argtypes = [ctypes.c_void_p]
_libc.fflush.argtypes = [ctypes.c_void_p]


RECORDS = {
    name: type(name, (ctypes.Structure,), {"_fields_": [(each.name, c_int32) for each in kind.fields]})
    for name, kind in HEADERS.records.items()
}
SolarDateRecord = RECORDS["CCalendarSolarDate"]
TEXT = ctypes.c_void_p
TYPES = {"void": None, "int32_t": c_int32, "bool": c_uint8, "char*": TEXT, "const char*": ctypes.c_char_p}
TYPES.update(RECORDS)
TYPES.update(dict.fromkeys(HEADERS.typedefs, c_int32))


def _call(function):
    """Result, arguments, and the model's method: the name of the function in snake case."""
    method = re.sub(r"(?<=[a-z0-9])(?=[A-Z])", "_", function.name).lower()
    arguments = tuple(TYPES[each.type] for each in function.parameters)
    return TYPES[function.result], arguments, method


CALLS = {name: _call(function) for name, function in HEADERS.functions.items()}
ANNOTATION_CALLS = [
    name for name, each in HEADERS.functions.items() if each.section == "Annotating dates"
]


class Library:
    """The exported functions of a built library with plain Python arguments and results."""

    def __init__(self, path):
        self._handle = ctypes.CDLL(os.path.abspath(path))
        self._functions = {}

    def _function(self, name):
        if name not in self._functions:
            result, arguments, _ = CALLS[name]
            function = getattr(self._handle, name)
            function.restype = result
            function.argtypes = arguments
            self._functions[name] = function
        return self._functions[name]

    def call(self, name, *arguments):
        """Call a function; dates go in and records come out as tuples."""
        result_type, argument_types, _ = CALLS[name]
        passed = [
            SolarDateRecord(*value) if kind is SolarDateRecord else value
            for kind, value in zip(argument_types, arguments, strict=True)
        ]
        result = self._function(name)(*passed)
        if result_type is TEXT:
            text = ctypes.string_at(result).decode()
            _libc.free(result)
            return text
        if result_type is not None and issubclass(result_type, ctypes.Structure):
            return tuple(getattr(result, field) for field, _ in result_type._fields_)
        return result


class OutputCapture:
    """Sends the process's standard output to a temporary file and reads it back piece by piece."""

    def __init__(self):
        self._file = tempfile.TemporaryFile()
        self.original = os.dup(1)
        os.dup2(self._file.fileno(), 1)
        self._taken = 0

    def take(self):
        """The bytes written since the last call."""
        _libc.fflush(None)
        size = os.fstat(self._file.fileno()).st_size
        if size == self._taken:
            return b""
        text = os.pread(self._file.fileno(), size - self._taken, self._taken)
        self._taken = size
        return text
