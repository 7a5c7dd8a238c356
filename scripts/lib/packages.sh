# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# The Debian packages behind each purpose, and the one function that installs them. Sourced by
# common.sh.

declare -A PACKAGES=(
  [build]="g++ cmake ninja-build"
  [viewer]="libcli11-dev nlohmann-json3-dev libncurses-dev"
  [tests]="libgtest-dev libgmock-dev libfaketime libicu-dev libswe-dev libglib2.0-dev pkg-config clang
    valgrind libc6-dbg python3 python3-pexpect tmux tzdata abigail-tools"
  [fuzzers]="clang libclang-rt-14-dev"
  [matrix]="clang python3 g++-aarch64-linux-gnu qemu-user"
  [mutation]="binutils git python3 util-linux"
  [coverage]="gcovr"
  [docs]="doxygen"
  [packages]="build-essential debhelper dpkg-dev fakeroot lintian debootstrap git"
  [bench]="libbenchmark-dev libicu-dev libswe-dev python3 binutils util-linux"
  [analysis]="clang clang-tidy clang-format shellcheck python3 git"
)
# Node.js and npm come from many places; Debian's are taken only where there are none.
if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
  PACKAGES[tests]+=" nodejs npm ca-certificates"
fi

# missing_packages <package>...: prints those that are not installed.
missing_packages() {
  local package
  for package in "$@"; do
    if [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
      echo "$package"
    fi
  done
}

# Follows apt-get's output: its errors, and a line for every twentieth step of each kind.
show_apt_progress() {
  awk '
    function step(what, count) {
      if (count % 20 == 0 || count == total) {
        print "  " what " " count " of " total
        fflush()
      }
    }
    /newly installed/           { total = $1 + $3 }
    /^Need to get/              { print "  " $4 " " $5 " to download"; fflush() }
    /^Get:/ && total            { step("downloaded", ++got) }
    /^Unpacking/                { step("unpacked", ++unpacked) }
    /^Setting up/               { step("installed", ++installed) }
    /^(E:|W:|Err:|dpkg: error)/ { print "  " $0; fflush() }' >&2
}

# require_packages <purpose>...: installs what is missing for these purposes. Says nothing and asks
# nobody when everything is there.
require_packages() {
  local purpose wanted=() missing as_root=()
  for purpose in "$@"; do
    # shellcheck disable=SC2206 # one word for each package
    wanted+=(${PACKAGES[$purpose]})
  done
  if ! command -v apt-get >/dev/null; then
    say "No apt-get here; going on in the hope that these are installed: ${wanted[*]}"
    return
  fi
  mapfile -t missing < <(missing_packages "${wanted[@]}" | sort -u)
  if ((${#missing[@]} == 0)); then
    return
  fi
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      fail "not root and no sudo; have an administrator run: apt-get install ${missing[*]}"
    fi
    as_root=(sudo)
  fi
  say "Installing ${missing[*]}"
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300)
  "${as_root[@]}" -q update 2>&1 | show_apt_progress
  "${as_root[@]}" -q -y --no-install-recommends install "${missing[@]}" </dev/null 2>&1 |
    show_apt_progress
}
