#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# tidy_one.sh BUILD_DIRECTORY FILE: clang-tidy on one file, silent unless it finds something.
set -euo pipefail

echo "  $2"
if ! found=$(clang-tidy --quiet -p "$1" "$2" 2>/dev/null); then
  echo "$found"
  exit 1
fi
