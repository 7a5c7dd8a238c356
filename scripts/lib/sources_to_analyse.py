#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints the files of a build's compile_commands.json that lie in one of the folders.

Usage: sources_to_analyse.py BUILD_DIRECTORY FOLDER...
"""

import json
import os
import sys


def main():
    folders = tuple(os.path.abspath(folder) + os.sep for folder in sys.argv[2:])
    with open(os.path.join(sys.argv[1], "compile_commands.json"), encoding="utf-8") as file:
        files = {entry["file"] for entry in json.load(file)}
    for name in sorted(files):
        if name.startswith(folders):
            print(os.path.relpath(name))


if __name__ == "__main__":
    main()
