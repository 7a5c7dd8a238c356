#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What scripts/interface cannot see of the bindings: that the bridge of ctypes hands values over
whole, releases texts, and has one engine however often it is loaded."""
import _ctypes
import ctypes
import unittest

import almara

INT32_MIN, INT32_MAX = -2**31, 2**31 - 1


def values(record):
    return tuple(getattr(record, field) for field, _ in record._fields_)


class BindingTest(unittest.TestCase):
    def setUp(self):
        self.engine = almara.load()

    def test_numbers_and_records(self):
        self.assertEqual(self.engine.native_add(INT32_MAX, 1), INT32_MIN)
        for sample in [(INT32_MIN, INT32_MAX, -1, 0x12345678), (0, 1, INT32_MIN, INT32_MAX)]:
            date = self.engine.CreateSolarDate(*sample)
            self.assertEqual(values(date), sample)
        self.assertEqual(repr(self.engine.CreateSolarDate(2024, 2, 10, 6)),
                         "CCalendarSolarDate(year=2024, month=2, day=10, dayOfWeek=6)")
        cell = self.engine.GetContentItem(INT32_MIN, INT32_MAX)
        self.assertEqual(values(cell), (0, 0, 0, 0, -1, 0, 0, almara.eCalendarItemEmpty))

    def test_bools(self):
        for value in (True, False):
            self.engine.SetHideBreakDay(value)
            self.assertIs(self.engine.GetHideBreakDay(), value)

    def test_texts_are_released(self):
        class Usage(ctypes.Structure):
            _fields_ = [(f"field{index}", ctypes.c_size_t) for index in range(10)]

        usage = ctypes.CDLL(None).mallinfo2
        usage.restype = Usage
        self.assertRegex(self.engine.GetConfigKey(), r"^\d-\d-7-1-1-1-\d-")
        before = usage().field7
        for _ in range(20000):
            self.engine.GetConfigKey()
        self.assertLess(usage().field7 - before, 20000)

    def test_loaded_twice_it_is_one_engine(self):
        other = almara.load()
        other.SetMaxRow(3)
        self.assertEqual(self.engine.GetMaxRow(), 3)
        _ctypes.dlclose(other._handle)
        self.assertEqual(self.engine.GetMaxRow(), 3)


if __name__ == "__main__":
    unittest.main()
