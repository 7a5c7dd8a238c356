# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# Fresh Debian roots, for what has to be tried on a machine that has nothing yet. Sourced after
# common.sh.

# Where debootstrap and chroot are; not every user looks there.
PATH=$PATH:/usr/sbin:/sbin
CODENAME=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)

# mirror: the one that this machine takes its own packages from.
mirror() {
  # shellcheck disable=SC2016 # the variables are apt's
  apt-get indextargets --format '$(CODENAME) $(SITE)' |
    awk -v name="$CODENAME" '$1 == name && !site { site = $2 } END { print site }'
}

# root_obstacle: prints why no root can be made here, or nothing.
root_obstacle() {
  local file
  file=$(mktemp)
  if ! command -v debootstrap >/dev/null; then
    echo "debootstrap is not installed"
  elif ! "${AS_ROOT[@]}" unshare --mount --pid --fork true 2>/dev/null; then
    echo "no right to make a root"
  elif ! /usr/lib/apt/apt-helper download-file "$(mirror)/dists/$CODENAME/Release" "$file" \
    >/dev/null 2>&1; then
    echo "no Debian mirror can be reached"
  fi
  rm -f "$file"
}

# make_root <folder> <log>: the smallest system, with this machine's settings of the network.
make_root() {
  say "Making a fresh $CODENAME root"
  "${AS_ROOT[@]}" debootstrap --variant=minbase "$CODENAME" "$1" "$(mirror)" >"$2" 2>&1 ||
    fail "see $2"
  "${AS_ROOT[@]}" cp -r /etc/apt/apt.conf.d/. "$1/etc/apt/apt.conf.d/"
  echo "127.0.0.1 localhost $HOSTNAME" | "${AS_ROOT[@]}" tee "$1/etc/hosts" >/dev/null
  # Nobody needs the root after a power failure.
  echo force-unsafe-io | "${AS_ROOT[@]}" tee "$1/etc/dpkg/dpkg.cfg.d/unsafe-io" >/dev/null
}

remove_root() {
  "${AS_ROOT[@]}" rm -rf --one-file-system "$1"
}

# enter_root <folder> <user>: sets ENTER to the words before a command that make it run there, with
# an environment, terminals and processes of its own.
enter_root() {
  local home=/home/$2
  [[ $2 != root ]] || home=/root
  # shellcheck disable=SC2016,SC2034 # the variables are the inner shell's; the caller uses ENTER
  ENTER=("${AS_ROOT[@]}" unshare --mount --pid --fork bash -c '
    mount -t proc proc "$0/proc"
    mount -t devpts -o newinstance,ptmxmode=666 devpts "$0/dev/pts"
    exec chroot --userspec="$1" "$0" "${@:2}"' "$1" "$2" env -i
    PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME="$home" USER="$2"
    LC_ALL=C.UTF-8 TERM=xterm-256color DEBIAN_FRONTEND=noninteractive)
}
