#!/usr/bin/env bash
# Installs the Debian packages that are missing, of one of two groups:
#   scripts/install-dependencies.sh [--all]   building, testing, benchmarks,
#                                              fuzzers, the ABI check and the
#                                              page's browser test
#   scripts/install-dependencies.sh --build   building and running the
#                                              library, service and CLI
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  libjsoncpp-dev libdbus-1-dev libdbus-glib-1-dev libglib2.0-dev libsqlite3-dev
  libcli11-dev libsoup-3.0-dev
  libxml2-dev zlib1g-dev
  dbus-daemon
  googletest libgtest-dev libgmock-dev
)
# Only the page's browser test needs these; it is skipped where they cannot be had.
browser_packages=()
case "${1:---all}" in
  --build) ;;
  --all)
    packages+=(libbenchmark-dev abigail-tools clang libclang-rt-dev libxmltv-perl libxml2-utils)
    browser_packages=(chromium chromium-driver python3-selenium)
    ;;
  *) echo "usage: $0 [--build|--all]" >&2; exit 2 ;;
esac

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
if ((${#browser_packages[@]})); then
  install_missing "${browser_packages[@]}" ||
    echo "install-dependencies: no browser could be installed; the page's browser test will be skipped"
fi
