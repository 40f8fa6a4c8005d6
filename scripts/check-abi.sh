#!/usr/bin/env bash
# Compares the exported ABI of a built libzunde-provider.so.0 with the record
# in abi/, or rewrites the record when a change is intended.
#   scripts/check-abi.sh BUILD_DIR            fails on an incompatible change
#   scripts/check-abi.sh --update BUILD_DIR   rewrites abi/libzunde-provider.abi
# Only what the public headers declare counts. The build needs
# debug info (RelWithDebInfo, the default, or Debug).
set -euo pipefail
cd "$(dirname "$0")/.."

update=false
if [ "${1:-}" = "--update" ]; then
  update=true
  shift
fi
build_dir=$(cd "${1:?usage: scripts/check-abi.sh [--update] BUILD_DIR}" && pwd)
record=abi/libzunde-provider.abi
library=$build_dir/libzunde-provider.so.0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The headers that are installed, as the build lists them (relative to the
# source folder or absolute).
header_args=()
while read -r header; do
  [ -n "$header" ] && header_args+=(--header-file "$header")
done <"$build_dir/public-headers.txt"

# Without paths, locations and the corpus name, so that the record is the
# same whichever folder the build ran in.
abidw "${header_args[@]}" --drop-private-types \
  --no-corpus-path --no-comp-dir-path --no-show-locs --type-id-style hash \
  --out-file "$work/current.abi" "$library"
sed -i -e "s|$PWD/||g" -e "s|$build_dir/||g" "$work/current.abi"

if $update; then
  cp "$work/current.abi" "$record"
  echo "check-abi: $record rewritten"
  exit 0
fi

status=0
abidiff --no-show-locs "$record" "$work/current.abi" >"$work/report" || status=$?
cat "$work/report"
# abidiff's status is a bit set: 1 error, 2 usage error, 4 some change,
# 8 an incompatible change.
if ((status & 3)); then
  echo "check-abi: abidiff failed (status $status)" >&2
  exit 1
fi
if ((status & 8)); then
  echo "check-abi: the ABI of libzunde-provider.so.0 changed incompatibly (see above)." >&2
  echo "check-abi: keep the old interface, or, if the break is intended, raise the SONAME and run" >&2
  echo "check-abi:   scripts/check-abi.sh --update $1" >&2
  exit 1
fi
if ((status & 4)); then
  echo "check-abi: notice: compatible ABI changes (additions); record them with scripts/check-abi.sh --update"
fi
echo "check-abi: libzunde-provider.so.0 is compatible with $record"
