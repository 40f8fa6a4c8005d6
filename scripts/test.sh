#!/usr/bin/env bash
# Installs what is missing, builds and runs every test.
#   scripts/test.sh                      plain build in build/
#   scripts/test.sh DIR [CMAKE ARGS...] [-- CTEST ARGS...]
# e.g. scripts/test.sh build-sanitize -DZUNDE_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug
set -euo pipefail
cd "$(dirname "$0")/.."

build_dir=${1:-build}
shift || true
cmake_args=()
while (($#)) && [ "$1" != "--" ]; do
  cmake_args+=("$1")
  shift
done
shift || true  # the "--"

bash scripts/install-dependencies.sh
jobs=$(nproc)
cmake -S . -B "$build_dir" "${cmake_args[@]}"
cmake --build "$build_dir" -j"$jobs"
ctest --test-dir "$build_dir" --output-on-failure -j"$jobs" "$@"
