#!/usr/bin/env bash
# Builds the fuzzers with clang in build-fuzz, runs each once over its
# corpus (the regression inputs among them), then fuzzes each for SECONDS
# (default 10) on a scratch copy of its corpus, so that the repository's
# corpus does not grow. Prints the executions per fuzzer.
#   scripts/fuzz.sh [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-10}
build_dir=build-fuzz

bash scripts/install-dependencies.sh

launcher=()
if command -v ccache >/dev/null; then
  launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake -S . -B "$build_dir" -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DZUNDE_BUILD_FUZZERS=ON -DZUNDE_BUILD_TESTS=OFF -DZUNDE_BUILD_BENCHMARKS=OFF "${launcher[@]}" >/dev/null
cmake --build "$build_dir" -j"$(nproc)" --target fuzzers
ctest --test-dir "$build_dir" -R '^fuzz\.' --output-on-failure

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for fuzzer in fuzz/corpus/*/; do
  name=$(basename "$fuzzer")
  cp -r "$fuzzer" "$scratch/$name"
  # Standard output carries the buffer's own refusal messages: not wanted here.
  TMPDIR=$scratch "$build_dir/fuzz/$name" -max_total_time="$seconds" -close_fd_mask=1 \
    -artifact_prefix="$build_dir/fuzz/$name-" "$scratch/$name" 2>"$scratch/$name.log" || {
    tail -n 60 "$scratch/$name.log"
    echo "$name: crashed; the input is in $build_dir/fuzz/" >&2
    exit 1
  }
  runs=$(grep -o 'Done [0-9]* runs' "$scratch/$name.log" | grep -o '[0-9]*')
  echo "$name: $runs executions in $seconds s"
done
