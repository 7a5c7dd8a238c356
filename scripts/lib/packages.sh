# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# The Debian packages behind each purpose, and the one function that installs them. Sourced by
# common.sh.

declare -A PACKAGES=(
  [build]="g++ cmake ninja-build"
  [viewer]="libcli11-dev nlohmann-json3-dev libncurses-dev libical-dev pkg-config"
  [tests]="libgtest-dev libfaketime python3 python3-icalendar tmux tzdata"
  [full]="libicu-dev libswe-dev swe-standard-data libglib2.0-dev pkg-config clang libclang-rt-14-dev
    valgrind libc6-dbg abigail-tools nodejs npm ca-certificates locales python3-jsonschema"
  [emulation]="clang python3 g++-aarch64-linux-gnu qemu-user"
  [mutation]="git python3 util-linux"
  [coverage]="gcovr"
  [docs]="doxygen"
  [pictures]="faketime python3"
  [flutter]="clang cmake ninja-build pkg-config libgtk-3-dev libclang-dev python3 binutils"
  [packages]="build-essential debhelper dpkg-dev fakeroot lintian git python3"
  [root]="debootstrap python3 util-linux"
  [bench]="libbenchmark-dev libicu-dev libswe-dev python3 binutils util-linux"
  [analysis]="clang clang-tidy clang-format shellcheck python3 git"
)

# Before a command that needs root.
AS_ROOT=()
((EUID == 0)) || AS_ROOT=(sudo)

# is_installed <package>. Node.js and npm may have come from elsewhere.
is_installed() {
  case $1 in
    nodejs) ! command -v node >/dev/null || return 0 ;;
    npm) ! command -v npm >/dev/null || return 0 ;;
  esac
  [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# A line for every twentieth step of each kind, of what apt-get says.
show_progress() {
  awk '
    function step(what, count) {
      if (count % 20 == 0 || count == total) {
        print "  " what " " count " of " total
        fflush()
      }
    }
    /newly installed/ { total = $1 + $3 }
    /^Need to get/    { print "  " $4 " " $5 " to download"; fflush() }
    /^Get:/ && total  { step("downloaded", ++got) }
    /^Unpacking/      { step("unpacked", ++unpacked) }
    /^Setting up/     { step("installed", ++installed) }' >&2
}

# apt_get <argument>...: asks nothing; shows the last errors and gives up where it fails.
apt_get() {
  local log
  log=$(mktemp)
  if ! "${AS_ROOT[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q -y -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 "$@" </dev/null 2>&1 |
    tee "$log" | show_progress; then
    grep -E '^(E:|Err:|dpkg: error)' "$log" | tail -n 3 >&2 || true
    fail "apt-get $1 did not work; is there a network? Its messages are in $log"
  fi
  rm "$log"
}

# require_packages <purpose>...: installs what is missing for these purposes. Says nothing and asks
# nobody when everything is there.
require_packages() {
  local purpose package missing=()
  command -v apt-get >/dev/null || return 0
  for purpose in "$@"; do
    for package in ${PACKAGES[$purpose]}; do
      is_installed "$package" || missing+=("$package")
    done
  done
  ((${#missing[@]})) || return 0
  begin "Installing ${missing[*]}"
  "${AS_ROOT[@]}" true || fail "not root, and sudo does not work here; have an administrator run:" \
    "apt-get install ${missing[*]}"
  apt_get update
  apt_get install --no-install-recommends "${missing[@]}"
}
