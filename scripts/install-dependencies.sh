#!/usr/bin/env bash
# Installs the Debian packages that are missing, of one of two groups:
#   scripts/install-dependencies.sh [--all]   building, testing, benchmarks,
#                                              fuzzers and the ABI check
#   scripts/install-dependencies.sh --build   building and running the
#                                              library, service and CLI
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  libjsoncpp-dev libdbus-1-dev libdbus-glib-1-dev libglib2.0-dev libsqlite3-dev
  libcli11-dev
  dbus-daemon
  googletest libgtest-dev libgmock-dev
)
case "${1:---all}" in
  --build) ;;
  --all) packages+=(libbenchmark-dev abigail-tools clang libclang-rt-dev) ;;
  *) echo "usage: $0 [--build|--all]" >&2; exit 2 ;;
esac

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done

if ((${#missing[@]})); then
  echo "Installing: ${missing[*]}"
  sudo_cmd=()
  if [ "$(id -u)" -ne 0 ]; then sudo_cmd=(sudo); fi
  "${sudo_cmd[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
