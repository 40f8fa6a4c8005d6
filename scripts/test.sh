#!/usr/bin/env bash
# Installs what is missing, builds and runs every test.
#   scripts/test.sh                      plain build in build/
#   scripts/test.sh build-sanitize -DZUNDE_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug
set -euo pipefail
cd "$(dirname "$0")/.."

build_dir=${1:-build}
shift || true

bash scripts/install-dependencies.sh
jobs=$(nproc)
cmake -S . -B "$build_dir" "$@"
cmake --build "$build_dir" -j"$jobs"
ctest --test-dir "$build_dir" --output-on-failure -j"$jobs"
