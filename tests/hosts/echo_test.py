#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Every record by value through ctypes, both ways, and texts released."""
import ctypes
import json
import os
import unittest

import almara

INT32_MIN, INT32_MAX = -2**31, 2**31 - 1
EXTREMES = (INT32_MIN, INT32_MAX, -1, 0, 1, 0x12345678)


def samples(count):
    """Distinct values in all fields, an extreme one in one of them."""
    for position in range(count):
        for extreme in EXTREMES:
            yield [extreme if index == position else (index + 1) * 0x01010101
                   for index in range(count)]


def values(record):
    return [getattr(record, field) for field, _ in record._fields_]


class EchoTest(unittest.TestCase):
    def test_records(self):
        library = ctypes.CDLL("libecho.so")
        with open(os.environ["ECHO_INTERFACE"]) as file:
            records = json.load(file)
        self.assertGreaterEqual(len(records), 4)
        for name, record in records.items():
            kind = getattr(almara, name)
            self.assertEqual([field for field, _ in kind._fields_], record["fields"])
            int32 = ctypes.c_int32
            echo, make, field = (library[f"{what}_{name}"] for what in ("echo", "make", "field"))
            echo.restype, echo.argtypes = kind, [int32, kind, int32]
            make.restype, make.argtypes = kind, [int32] * len(record["fields"])
            field.restype, field.argtypes = int32, [kind, int32]
            for sample in samples(len(record["fields"])):
                self.assertEqual(values(make(*sample)), sample)
                self.assertEqual(values(echo(INT32_MIN, kind(*sample), INT32_MAX)), sample)
                self.assertEqual([field(kind(*sample), i) for i in range(len(sample))], sample)

    def test_engine(self):
        engine = almara.load()
        self.assertEqual(engine.native_add(INT32_MAX, 1), INT32_MIN)
        for sample in samples(4):
            self.assertEqual(values(engine.CreateSolarDate(*sample)), sample)
        engine.SetHideBreakDay(True)
        self.assertIs(engine.GetHideBreakDay(), True)
        engine.SetHideBreakDay(False)
        self.assertIs(engine.GetHideBreakDay(), False)

    def test_texts_are_released(self):
        class Usage(ctypes.Structure):
            _fields_ = [(f"field{index}", ctypes.c_size_t) for index in range(10)]

        usage = ctypes.CDLL(None).mallinfo2
        usage.restype = Usage
        engine = almara.load()
        self.assertRegex(engine.GetConfigKey(), r"^1-5-7-1-1-1-\d")
        before = usage().field7
        for _ in range(20000):
            engine.GetConfigKey()
        self.assertLess(usage().field7 - before, 20000)


if __name__ == "__main__":
    unittest.main()
