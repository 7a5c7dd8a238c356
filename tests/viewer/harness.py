# SPDX-License-Identifier: MIT
"""Runs almara-board with a fixed clock, zone and locale."""

import json
import os
import pty
import subprocess
import unittest

BOARD = os.environ["ALMARA_BOARD"]
FAKETIME = os.environ["ALMARA_LIBFAKETIME"]
TODAY = "2024-03-12 10:00:00"


def has_terminals():
    try:
        for end in pty.openpty():
            os.close(end)
    except OSError:
        return False
    return True


needs_terminal = unittest.skipUnless(has_terminals(), "no pseudo-terminals: /dev/pts is not mounted")


def environment(today=TODAY, zone="UTC", **variables):
    """An environment without anything of the user's but the path."""
    result = {
        "PATH": os.environ["PATH"],
        "TERM": "xterm-256color",
        "LC_ALL": "C.UTF-8",
        "TZ": zone,
        "LD_PRELOAD": FAKETIME,
        "FAKETIME": today,
        # A build with the address sanitizer otherwise refuses to come second to libfaketime.
        "ASAN_OPTIONS": "verify_asan_link_order=0",
    }
    result.update(variables)
    return {name: value for name, value in result.items() if value is not None}


def run(*arguments, **settings):
    return subprocess.run(
        [BOARD, *arguments],
        env=environment(**settings),
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        encoding="utf-8",
        timeout=60,
    )


def output(*arguments, **settings):
    result = run(*arguments, **settings)
    assert result.returncode == 0 and result.stderr == "", (arguments, result)
    return result.stdout


def read_json(*arguments, **settings):
    return json.loads(output(*arguments, "--json", **settings))
