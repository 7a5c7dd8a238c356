# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What every script here starts with: where the repository is, messages, help, packages, builds. All
# messages go to the standard error output, so that a script's result can be piped.

set -euo pipefail

ROOT=$(cd -P "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
SCRIPT="scripts/$(basename "$0")"
[[ $(readlink -f "$0") != */scripts/checks/* ]] || SCRIPT="scripts/check $(basename "$0")"
JOBS=${JOBS:-$(nproc)}

say() {
  echo "$SCRIPT: $*" >&2
}

fail() {
  say "FAILED: $*"
  STEP=
  exit 1
}

# begin <what>: says what begins, and names it should it fail.
begin() {
  STEP=$*
  say "$STEP"
}
STEP=starting

# For a script to define anew: what it leaves to be done at its end, however that comes.
clean_up() {
  :
}
trap '(($? == 0)) || [[ -z $STEP ]] || say "FAILED: $STEP"; clean_up' EXIT

# show_help <status>: prints the comment at the head of the script and exits.
show_help() {
  trap - EXIT
  sed -n '4,/^[^#]*$/s/^#\( \|$\)//p' "$0"
  exit "$1"
}

# wrong_usage <what>: an argument that the script does not know.
wrong_usage() {
  trap - EXIT
  say "$* (see $SCRIPT --help)"
  exit 2
}

case ${1-} in -h | --help) show_help 0 ;; esac

# Under sudo only the packages need root; what is built belongs to the owner of the checkout.
if ((EUID == 0)) && [[ ${SUDO_UID-0} != 0 && $(stat -c %u "$ROOT") == "$SUDO_UID" ]]; then
  exec sudo -H -u "$SUDO_USER" -- "$0" "$@"
fi
# The fresh roots of the checks, build/*/root, belong to root as long as they exist.
if [[ -e $ROOT/build &&
  -n $(find "$ROOT/build" -maxdepth 2 ! -name root ! -writable -print -quit) ]]; then
  fail "another user owns files in $ROOT/build; remove that folder (sudo rm -r) and run this again"
fi

# shellcheck source=scripts/lib/packages.sh
source "$ROOT/scripts/lib/packages.sh"

# CMake and Ninja find the compiler cache by these, if one is installed.
if command -v ccache >/dev/null; then
  export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER-ccache}
  export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
fi

# made_here <folder in build/>: whether it was configured for this checkout.
made_here() {
  grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$ROOT" "$ROOT/build/$1/CMakeCache.txt"
}

# configure <folder in build/> <CMake argument>...: makes anew what a checkout brought along when it
# was moved or copied.
configure() {
  if [[ -f $ROOT/build/$1/CMakeCache.txt ]] && ! made_here "$1"; then
    say "build/$1 was made for a checkout in another place; making it anew"
    rm -rf "$ROOT/build/$1"
  fi
  (cd "$ROOT" && cmake "${@:2}") >&2
}

# build_preset <preset> [target]: configures and builds one preset of CMakePresets.json.
build_preset() {
  begin "Building ${2-$1}"
  configure "$1" --preset "$1"
  (cd "$ROOT" && cmake --build --preset "$1" ${2:+--target "$2"} -j "$JOBS") >&2
}

# run_tests <preset> <label>...: runs the tests of a built preset that carry one of the labels, and
# prints those that were skipped and why.
run_tests() {
  local preset=$1 labels log=$ROOT/build/$1/Testing/Temporary/LastTest.log status=0
  shift
  labels=$(IFS='|' && echo "^($*)\$")
  begin "Running the tests of build/$preset: $*"
  local progress=()
  [[ ! -t 1 ]] || progress=(--progress)
  (cd "$ROOT" && ctest --preset "$preset" -L "$labels" -j "$JOBS" --no-tests=error "${progress[@]}") ||
    status=$?
  awk -f "$ROOT/scripts/lib/skipped.awk" "$log"
  return $status
}

# repository_files <pattern>...: what is, or would be, under version control, each name with a NUL
# after it. In an unpacked archive that is all but what was built.
repository_files() {
  local file pattern
  if [[ -e $ROOT/.git ]]; then
    git -c safe.directory="$ROOT" -C "$ROOT" ls-files -z --cached --others --exclude-standard
  else
    (cd "$ROOT" && find . -path ./build -prune -o -type f -printf '%P\0')
  fi | while IFS= read -r -d '' file; do
    for pattern in "$@"; do
      # shellcheck disable=SC2053 # a pattern on purpose
      if [[ $file == $pattern && -f $ROOT/$file ]]; then
        printf '%s\0' "$file"
        break
      fi
    done
  done
}
