#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, only those
# that are missing.
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  libjsoncpp-dev libdbus-1-dev libdbus-glib-1-dev libglib2.0-dev libsqlite3-dev
  libcli11-dev
  libsoup-3.0-dev
  abigail-tools
  dbus-daemon
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-dev
)
# Only the page's browser test needs these; it is skipped where they cannot be had.
browser_packages=(chromium chromium-driver python3-selenium)

sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then sudo_cmd=(sudo); fi
updated=false

# Installs those of the named packages that are missing.
install_missing() {
  local missing=() package
  for package in "$@"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
      missing+=("$package")
    fi
  done
  ((${#missing[@]})) || return 0
  echo "Installing: ${missing[*]}"
  if ! $updated; then
    "${sudo_cmd[@]}" apt-get update -qq
    updated=true
  fi
  DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

install_missing "${packages[@]}"
install_missing "${browser_packages[@]}" ||
  echo "install-dependencies: no browser could be installed; the page's browser test will be skipped"
