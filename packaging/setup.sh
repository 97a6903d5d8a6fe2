# shellcheck shell=bash
# Sourced by ./run, ./test and ./package: installs the packages of debian-packages.txt that are missing. When all are there
# it does nothing, and needs neither root nor sudo.

say() { printf '%s\n' "$*" >&2; }
fail() { say "$*"; exit 1; }

missing_packages() {
  local package
  sed 's/#.*//; /^ *$/d' "$1" | while read -r package; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s ' "$package"
  done
}

set_up() {
  local list=$1 missing sudo=()
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    say "This system is not Debian; what $list names is taken to be there."
    return
  fi
  missing=$(missing_packages "$list")
  [ -n "$missing" ] || return 0
  say "Installing: $missing"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "Installing needs root or sudo. As root: apt-get install $missing"
    sudo=(sudo)
  fi
  "${sudo[@]}" apt-get update -qq >&2 || say "apt-get update failed; trying with the package lists at hand."
  # shellcheck disable=SC2086
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq -o Dpkg::Use-Pty=0 --no-install-recommends $missing >&2 ||
    fail "apt-get could not install: $missing"
}
