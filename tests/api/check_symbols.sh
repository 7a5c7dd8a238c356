#!/bin/sh
# SPDX-License-Identifier: MIT
#
# check_symbols.sh <library> <version script> <header>...
#
# Fails unless the library exports exactly the functions that the headers declare, the version script
# lets every one of them through, and the library has no other static constructor than the one that
# makes the engine.
set -eu
LC_ALL=C
export LC_ALL

library=$1
version_script=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Name in front of the first parenthesis of each declaration that carries an ..._EXPORT mark.
cat "$@" | sed -e 's|/\*|\n/*\n|g' -e 's|\*/|\n*/\n|g' |
  awk '/^\/\*$/ { inside = 1 } !inside && !/^[ \t]*#/ { print } /^\*\/$/ { inside = 0 }' |
  tr '\n;' ' \n' |
  sed -n 's/.*[A-Z]_EXPORT [^(]*[ *]\([A-Za-z_][A-Za-z0-9_]*\) *(.*/\1/p' |
  sort >"$work/declared"

nm -D --defined-only "$library" | sed 's/@.*//' >"$work/symbols"
awk '$2 != "T" { print "not a function: " $0; bad = 1 } END { exit bad }' "$work/symbols"
awk '{ print $3 }' "$work/symbols" | sort >"$work/exported"

# Patterns such as nam[e] stand for a name that may be missing.
sed -n '/global:/,/local:/{s|/\*.*\*/||;s/\[\(.\)\]/\1/;s/^ *\([A-Za-z_][A-Za-z0-9_]*\);.*/\1/p;}' \
  "$version_script" | sort >"$work/passed"

test -s "$work/declared"
status=0
if ! diff -u "$work/declared" "$work/exported"; then
  echo "The headers (-) and the library (+) differ." >&2
  status=1
fi
comm -23 "$work/declared" "$work/passed" >"$work/held_back"
if [ -s "$work/held_back" ]; then
  echo "The version script holds back:" >&2
  cat "$work/held_back" >&2
  status=1
fi
nm "$library" | awk '$3 ~ /^_GLOBAL__sub_I_/ && $3 !~ /\.cold$/ { print $3 }' >"$work/constructors"
if [ "$(cat "$work/constructors")" != _GLOBAL__sub_I_engine.cpp ]; then
  echo "Static constructors:" >&2
  cat "$work/constructors" >&2
  status=1
fi
exit $status
