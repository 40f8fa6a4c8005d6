#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, only those
# that are missing.
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  libjsoncpp-dev libdbus-1-dev libdbus-glib-1-dev libglib2.0-dev libsqlite3-dev
  libcli11-dev
  libxml2-dev zlib1g-dev
  libxmltv-perl libxml2-utils
  abigail-tools
  dbus-daemon
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-dev
)

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
