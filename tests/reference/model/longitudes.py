# SPDX-License-Identifier: MIT
"""Day counts, and the apparent ecliptic longitudes of the Sun and the Moon.

A day count is the astronomical Julian date minus a half, so that midnight is a whole number.  The
order of every floating-point operation is part of the behaviour.
"""

from math import cos

from .arithmetic import INT32_MAX, INT32_MIN, truncate

DEGREE = 0.017453292519943295

# Amplitude in degrees, rate in degrees per Julian century, phase in degrees; smallest first.
SUN_TERMS = (
    (0.0004, 31557.0, 161.0), (0.0004, 29930.0, 48.0), (0.0005, 2281.0, 221.0),
    (0.0005, 155.0, 118.0), (0.0006, 33718.0, 316.0), (0.0007, 9038.0, 64.0),
    (0.0007, 3035.0, 110.0), (0.0007, 65929.0, 45.0), (0.0013, 22519.0, 352.0),
    (0.0015, 45038.0, 254.0), (0.0018, 445267.0, 208.0), (0.0018, 19.0, 159.0),
    (0.0020, 32964.0, 158.0), (0.0200, 71998.1, 265.1),
)
SUN_ANOMALY = (35999.05, 267.52)

MOON_TERMS = (
    (0.0003, 2322131.0, 191.0), (0.0003, 4067.0, 70.0), (0.0003, 549197.0, 220.0),
    (0.0003, 1808933.0, 58.0), (0.0003, 349472.0, 337.0), (0.0003, 381404.0, 354.0),
    (0.0003, 958465.0, 340.0), (0.0004, 12006.0, 187.0), (0.0004, 39871.0, 223.0),
    (0.0005, 509131.0, 242.0), (0.0005, 1745069.0, 24.0), (0.0005, 1908795.0, 90.0),
    (0.0006, 2258267.0, 156.0), (0.0006, 111869.0, 38.0), (0.0007, 27864.0, 127.0),
    (0.0007, 485333.0, 186.0), (0.0007, 405201.0, 50.0), (0.0007, 790672.0, 114.0),
    (0.0008, 1403732.0, 98.0), (0.0009, 858602.0, 129.0), (0.0011, 1920802.0, 186.0),
    (0.0012, 1267871.0, 249.0), (0.0016, 1856938.0, 152.0), (0.0018, 401329.0, 274.0),
    (0.0021, 341337.0, 16.0), (0.0021, 71998.0, 85.0), (0.0021, 990397.0, 357.0),
    (0.0022, 818536.0, 151.0), (0.0023, 922466.0, 163.0), (0.0024, 99863.0, 122.0),
    (0.0026, 1379739.0, 17.0), (0.0027, 918399.0, 182.0), (0.0028, 1934.0, 145.0),
    (0.0037, 541062.0, 259.0), (0.0038, 1781068.0, 21.0), (0.0040, 133.0, 29.0),
    (0.0040, 1844932.0, 56.0), (0.0040, 1331734.0, 283.0), (0.0050, 481266.0, 205.0),
    (0.0052, 31932.0, 107.0), (0.0068, 926533.0, 323.0), (0.0079, 449334.0, 188.0),
    (0.0085, 826671.0, 111.0), (0.0100, 1431597.0, 315.0), (0.0107, 1303870.0, 246.0),
    (0.0110, 489205.0, 142.0), (0.0125, 1443603.0, 52.0), (0.0154, 75870.0, 41.0),
    (0.0304, 513197.9, 222.5), (0.0347, 445267.1, 27.9), (0.0409, 441199.8, 47.4),
    (0.0458, 854535.2, 148.2), (0.0533, 1367733.1, 280.7), (0.0571, 377336.3, 13.2),
    (0.0588, 63863.5, 124.2), (0.1144, 966404.0, 276.5), (0.1851, 35999.05, 87.53),
    (0.2136, 954397.74, 179.93), (0.6583, 890534.22, 145.7), (1.2740, 413335.35, 10.74),
    (6.2888, 477198.868, 44.963),
)


def day_count(year, month, day):
    """The day count of a Gregorian date."""
    if month < 3:
        year -= 1
        month += 12
    years = truncate(365.25 * year) + truncate(year / 400) - truncate(year / 100)
    return float(years + truncate(30.59 * (month - 2)) + 1721088 + day)


def day_count_fits(year, month, day):
    """Whether the day count of a date and the parts it is made of fit 32 bits."""
    if month < 3:
        year -= 1
        month += 12
    parts = (365.25 * year, 30.59 * (month - 2), day_count(year, month, day))
    return all(INT32_MIN <= part <= INT32_MAX for part in parts)


def year_and_month(count):
    """Year and month of a day count."""
    days = truncate(count + 68570)
    century = truncate(days / 36524.25)
    rest = days - truncate(36524.25 * century + 0.75)
    year_of_century = truncate((rest + 1) / 365.2425)
    rest = rest - truncate(365.25 * year_of_century) + 31
    month_index = truncate(truncate(rest) / 30.59)
    carry = truncate(month_index / 11)
    return 100 * (century - 49) + year_of_century + carry, month_index - 12 * carry + 2


def normalised_angle(angle):
    """Reduce an angle to one turn; a negative whole number of turns gives 360."""
    if angle < 0:
        return angle + 360.0 * truncate(angle / -360.0) + 360.0
    return angle - 360.0 * truncate(angle / 360.0)


def term(rate, phase, t):
    """The cosine of a periodic term."""
    return cos(normalised_angle(rate * t + phase) * DEGREE)


def sun_longitude(t):
    """The Sun's apparent longitude in degrees at ``t`` Julian centuries."""
    total = 0.0
    for amplitude, rate, phase in SUN_TERMS:
        total += amplitude * term(rate, phase, t)
    anomaly = term(*SUN_ANOMALY, t)
    total += -0.0048 * t * anomaly
    total += 1.9147 * anomaly
    mean = normalised_angle(normalised_angle(36000.7695 * t) + 280.4659)
    return normalised_angle(total + mean)


def moon_longitude(t):
    """The Moon's apparent longitude in degrees at ``t`` Julian centuries."""
    total = 0.0
    for amplitude, rate, phase in MOON_TERMS:
        total += amplitude * term(rate, phase, t)
    mean = normalised_angle(normalised_angle(481267.8809 * t) + 218.3162)
    return normalised_angle(total + mean)
