#!/usr/bin/env bash
# The guided tour: installs what is missing, builds zunde-service and
# zunde-cli, starts a private bus and the service on a temporary data
# directory, and walks through every family with zunde-cli. Everything it
# starts is stopped again on exit, also when interrupted; scripts/dev-env.sh
# start keeps a service running.
#   scripts/demo.sh              build in build/
#   ZUNDE_DEMO_BUILD=DIR scripts/demo.sh
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${ZUNDE_DEMO_BUILD:-$root/build}

bash "$root/scripts/install-dependencies.sh" --build
work=$(mktemp -d)
if ! { cmake -S "$root" -B "$build" && cmake --build "$build" -j"$(nproc)" --target zunde-service zunde-cli; } \
  >"$work/build.log" 2>&1; then
  cat "$work/build.log" >&2
  echo "demo: the build failed (its output is above)" >&2
  rm -rf "$work"
  exit 1
fi

bus_pid="" service_pid="" monitor_pid=""
stop() { # PID: ends a process this script started and waits for it
  if [ -n "$1" ] && kill -0 "$1" 2>/dev/null; then
    kill -TERM "$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
  fi
}
cleanup() {
  stop "$monitor_pid"
  stop "$service_pid"
  stop "$bus_pid"
  rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 130' INT TERM

wait_for() { # FILE TEXT: until FILE holds TEXT, at most ten seconds
  for _ in $(seq 100); do
    grep -q "$2" "$1" 2>/dev/null && return 0
    sleep 0.1
  done
  echo "demo: gave up waiting for '$2' in $1" >&2
  return 1
}

dbus-daemon --config-file="$root/service/packaging/private-bus.conf" --nofork --nopidfile --print-address=3 \
  3>"$work/bus-address" 2>"$work/bus.log" &
bus_pid=$!
wait_for "$work/bus-address" "unix:"
DBUS_SYSTEM_BUS_ADDRESS=$(head -n1 "$work/bus-address")
export DBUS_SYSTEM_BUS_ADDRESS

start_service() {
  "$build/service/zunde-service" --data-dir "$work/data" >"$work/service.log" 2>&1 &
  service_pid=$!
  wait_for "$work/service.log" "zunde-service ready"
}

cli() { # prints the command, runs it, and carries on whatever its exit status
  echo "\$ zunde-cli $*"
  local status=0
  "$build/cli/zunde-cli" "$@" 2>&1 || status=$?
  if [ "$status" -ne 0 ]; then echo "  (exit status $status)"; fi
}
step() { printf '\n=== %s ===\n' "$*"; }

now=$(date +%s)
start_service
echo "private bus: $DBUS_SYSTEM_BUS_ADDRESS"
echo "zunde-service: data in $work/data"

step "The environment"
cli env get
cli env set DE de
cli env set-user alice
cli env get
cli env get-user

step "The operator's line-up and the programme guide"
cli catalogue channels 0
cli guide --activity 0 --hours 2

step "Recommendations"
cli catalogue on-now 0 '' "$now" 5
cli catalogue upcoming 0 "$now" 5

step "A set-top box: an activity, its channels, favourites and an edit"
cli stb allocate 3
cli stb set-zip 0 10001
cli stb set-headend 0 NY31519
cli stb set-channels 0 '{"MBR channel table": [
  {"m_major": 7, "m_minor": 1, "m_name": "News", "m_channelID": 7, "m_originMajor": 7, "m_acRank": 2},
  {"m_major": 9, "m_minor": 1, "m_name": "Films", "m_channelID": 9, "m_originMajor": 9, "m_acRank": 1},
  {"m_major": 11, "m_minor": 2, "m_name": "Sport", "m_channelID": 11, "m_originMajor": 11}]}'
cli stb add-favorite 0 1 '{"m_major": 7, "m_minor": 1}'
cli stb add-favorite 0 1 '{"m_major": 11, "m_minor": 2}'
cli stb edit 0 '{"m_channelID": 9, "m_originMajor": 9, "m_major": 90, "m_minor": 1, "m_name": "My films"}'
cli stb edit-done 0
cli stb channels 0 0
cli stb channels 0 2
cli --repeat 100 stb featured 0

step "Restarting zunde-service: the state is kept"
stop "$service_pid"
start_service
cli env get
cli stb get-zip 0
cli stb channels 0 0

step "Broadcast channels by genre"
cli catalogue genres 0
cli rf set-genre G01
cli rf get-genre
cli rf count G01
cli rf channels G01

step "Virtual channels"
cli virtual config
cli virtual present 281466386841601
cli virtual programs 281466386841601 "$now" 7200

step "Events arriving in a monitor"
"$build/cli/zunde-cli" monitor --count 3 --timeout 10 2>"$work/monitor.err" &
monitor_pid=$!
wait_for "$work/monitor.err" "monitoring events"
cli env set US en
cli stb set-zip 0 94105
cli stb delete-favorite 0 1 '{"m_major": 11, "m_minor": 2}'
wait "$monitor_pid" || true
monitor_pid=""

step "The pass-through form and a reset"
cli call GetZipCode '{"activityID": 0}'
cli reset
cli env get

echo
echo "Tour done; stopping zunde-service and the private bus."
echo "To keep a service running for your own programs: eval \"\$(scripts/dev-env.sh start)\""
