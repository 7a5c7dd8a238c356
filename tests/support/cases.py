# SPDX-License-Identifier: MIT
"""unittest.main() for CTest, which knows a skipped case only if it is told."""

import collections
import sys
import unittest

NOTHING_RAN = 77  # SKIP_RETURN_CODE of the test


def main(argv=None):
    """Runs the cases of the script and prints how many were skipped, and why."""
    result = unittest.main(argv=argv, exit=False).result
    for reason, count in collections.Counter(reason for _, reason in result.skipped).items():
        print(f"skipped: {count} of {result.testsRun} cases ({reason})")
    if not result.wasSuccessful():
        sys.exit(1)
    if result.skipped and len(result.skipped) == result.testsRun:
        sys.exit(NOTHING_RAN)
