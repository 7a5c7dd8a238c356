# SPDX-License-Identifier: MIT
"""Machine arithmetic that differs from Python's: 32-bit ints, truncating division, padding."""

INT32_MIN = -(1 << 31)
INT32_MAX = (1 << 31) - 1


def wrap32(value):
    """Return ``value`` reduced to a signed 32-bit int, two's complement."""
    return (value + (1 << 31)) % (1 << 32) - (1 << 31)


def quotient(dividend, divisor):
    """Integer division that truncates toward zero."""
    result = abs(dividend) // abs(divisor)
    return result if (dividend < 0) == (divisor < 0) else -result


def remainder(dividend, divisor):
    """The remainder of ``quotient``; it has the sign of the dividend."""
    return dividend - quotient(dividend, divisor) * divisor


def truncate(value):
    """Convert a double to a signed 32-bit int, toward zero.

    A value that does not fit, and a NaN, becomes the smallest int.
    """
    if INT32_MIN - 1.0 < value < INT32_MAX + 1.0:
        return int(value)
    return INT32_MIN


def ceiling_of_weeks(days):
    """The number of whole rows of seven that ``days`` days need."""
    return -(-days // 7)


def padded(value, digits):
    """Format an int with at least ``digits`` digits, the sign in front and not counted."""
    sign = "-" if value < 0 else ""
    return sign + str(abs(value)).zfill(digits)


def date_text(year, month, day):
    """A date as it appears in dumps and memo keys: 2024-03-05."""
    return f"{padded(year, 4)}-{padded(month, 2)}-{padded(day, 2)}"
