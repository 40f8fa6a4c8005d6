#!/usr/bin/env bash
# Installs the build into a scratch prefix, builds examples/ against it as an
# application would, and runs each example once against the installed
# zunde-service on a private bus.
#   check_examples.sh <build dir> <source dir>
set -euo pipefail
build_dir=$1
source_dir=$2
work=$(mktemp -d)
bus_pid="" service_pid=""
cleanup() {
  for pid in $service_pid $bus_pid; do kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null || true; done
  rm -rf "$work"
}
trap cleanup EXIT

cmake --install "$build_dir" --prefix "$work/prefix" >/dev/null
export PKG_CONFIG_PATH=$(find "$work/prefix" -name zunde-provider.pc -printf '%h\n')
export LD_LIBRARY_PATH=$(dirname "$PKG_CONFIG_PATH")
cmake -S "$source_dir/examples" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/build" >/dev/null

dbus-daemon --config-file="$source_dir/tests/support/test-bus.conf" --nofork --nopidfile --print-address=3 \
  3>"$work/address" 2>/dev/null &
bus_pid=$!
until grep -q unix: "$work/address" 2>/dev/null; do sleep 0.1; done
export DBUS_SYSTEM_BUS_ADDRESS=$(head -n1 "$work/address")
"$work/prefix/bin/zunde-service" --data-dir "$work/data" >"$work/service.log" &
service_pid=$!
until grep -q "zunde-service ready" "$work/service.log"; do sleep 0.1; done

"$work/build/events" 3 >"$work/events.out" &
events_pid=$!
until grep -q listening "$work/events.out"; do sleep 0.1; done
"$work/build/set_top_box" | tee "$work/stb.out"
grep -q "favourites: 7-1 News" "$work/stb.out"
wait "$events_pid"
cat "$work/events.out"
grep -q "^event 10: 0, 3, -1" "$work/events.out"

if "$work/prefix/bin/zunde-cli" catalogue channels 0 >/dev/null 2>&1; then
  "$work/build/lineup"
else
  echo "lineup not run: the service does not serve the operator catalogue yet"
fi
echo "the examples build against the installed library and run against the service"
