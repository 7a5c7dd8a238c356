#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# scripts_test.sh: the scripts explain themselves and refuse what they do not know, however they are
# called. Builds nothing and installs nothing.

set -euo pipefail

root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# A copy without .git, in a place with a name that is not easy.
copy="$work/a (copy) of älmara"
mkdir "$copy"
cp -r "$root/scripts" "$root/include" "$copy"
ln -s "$copy/scripts/test" "$work/link"

# expect <status> <text> <command>...: the status, and a single message of one line unless it is 0.
expect() {
  local status=0 output
  output=$(cd "$work" && "${@:3}" 2>&1) || status=$?
  if [[ $status != "$1" || $output != *"$2"* ]] || ((status != 0 && $(wc -l <<<"$output") != 1)); then
    printf 'FAILED: %s\nstatus %s\n%s\n' "${*:3}" "$status" "$output"
    exit 1
  fi
}

for script in "$copy"/scripts/*; do
  [[ -f $script ]] || continue
  expect 0 "scripts/$(basename "$script")" "$script" --help
done
for check in "$copy"/scripts/checks/*; do
  expect 0 "scripts/check $(basename "$check")" "$copy/scripts/check" "$(basename "$check")" --help
done
expect 0 "--full" sh "$copy/scripts/test" --help
expect 0 "--full" "$work/link" --help
expect 2 "--help" "$copy/scripts/test" --nosuch
expect 2 "nosuch" "$copy/scripts/check" nosuch
mkdir -p "$copy/build"
touch "$copy/build/file"
if ((EUID != 0)); then
  chmod a-w "$copy/build/file"
  expect 1 "remove that folder" "$copy/scripts/test"
fi
rm -rf "$copy/build"
# Without packages and the right to install them, what is missing is named.
mkdir "$work/bin"
printf '#!/bin/sh\nexit 1\n' | tee "$work/bin/dpkg-query" "$work/bin/sudo" "$work/bin/apt-get" >/dev/null
chmod +x "$work"/bin/*
status=0
output=$(PATH="$work/bin:$PATH" "$copy/scripts/test" 2>&1) || status=$?
if [[ $status != 1 || $output != *"FAILED: "*apt-get* ]]; then
  printf 'FAILED: %s\n%s\n' "$status" "$output"
  exit 1
fi
