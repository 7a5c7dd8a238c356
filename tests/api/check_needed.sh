#!/bin/sh
# SPDX-License-Identifier: MIT
#
# check_needed.sh <library> <soname>: fails unless the library has that SONAME and needs nothing but
# the C and C++ runtimes.
set -eu
LC_ALL=C
export LC_ALL

dynamic=$(readelf -d "$1")
soname=$(echo "$dynamic" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
others=$(echo "$dynamic" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' |
  grep -vxE 'lib(c|m|stdc\+\+|gcc_s)\.so\.[0-9]+|ld-linux-.*' || true)
if [ "$soname" != "$2" ]; then
  echo "SONAME is $soname, not $2" >&2
  exit 1
fi
if [ -n "$others" ]; then
  echo "Needed beyond the runtimes: $others" >&2
  exit 1
fi
echo "$dynamic" | grep -q '(NEEDED).*libc\.so\.6'
