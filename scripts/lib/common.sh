# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What every script here starts with: the repository as working directory, messages, packages,
# builds. All messages go to the standard error output, so that a script's result can be piped.

set -euo pipefail

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
SCRIPT="scripts/$(basename "$0")"
JOBS=${JOBS:-$(nproc)}

say() {
  echo "$SCRIPT: $*" >&2
}

fail() {
  say "FAILED: $*"
  exit 1
}

# shellcheck source=scripts/lib/packages.sh
source "$ROOT/scripts/lib/packages.sh"

# CMake and Ninja find the compiler cache by these, if one is installed.
if command -v ccache >/dev/null; then
  export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER-ccache}
  export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
fi

# build_preset <preset> [target]: configures and builds one preset of CMakePresets.json.
build_preset() {
  say "Building ${2-$1}"
  (cd "$ROOT" && cmake --preset "$1" &&
    cmake --build --preset "$1" ${2:+--target "$2"} -j "$JOBS") >&2
}
