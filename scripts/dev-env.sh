#!/usr/bin/env bash
# A private bus that plays the system bus, with zunde-service on it, left
# running for applications under development.
#   eval "$(scripts/dev-env.sh start [SERVICE OPTIONS])"
#                                        builds what is missing, starts both (or
#                                        reuses a running pair) and prints the
#                                        line that points DBUS_SYSTEM_BUS_ADDRESS at it;
#                                        options such as --catalogue FILE go to zunde-service
#   scripts/dev-env.sh status            what runs, with pids
#   scripts/dev-env.sh stop              stops what start started
# Installed, the same script is bin/zunde-dev-env and uses the installed
# programs and bus configuration. ZUNDE_DEV_DIR chooses the folder that
# holds the pids, logs and the service's data (default
# ${XDG_STATE_HOME:-~/.local/state}/zunde-dev); ZUNDE_BUILD the build folder.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
dir=${ZUNDE_DEV_DIR:-${XDG_STATE_HOME:-$HOME/.local/state}/zunde-dev}

if [ -x "$here/zunde-service" ]; then  # installed: PREFIX/bin
  service=$here/zunde-service
  cli=$here/zunde-cli
  bus_conf=$here/../share/zunde-provider/private-bus.conf
  root=""
else
  root=$(cd "$here/.." && pwd)
  build=${ZUNDE_BUILD:-$root/build}
  service=$build/service/zunde-service
  cli=$build/cli/zunde-cli
  bus_conf=$root/service/packaging/private-bus.conf
fi

say() { echo "dev-env: $*" >&2; }

# PID NAME: true when PID is alive and is the program NAME, so that a
# recycled pid is never taken for ours.
is_running() {
  [ -n "$1" ] && [ -r "/proc/$1/cmdline" ] && tr '\0' ' ' <"/proc/$1/cmdline" | grep -q "$2"
}
pid_of() { cat "$dir/$1.pid" 2>/dev/null || true; }

build_missing() {
  [ -x "$service" ] && [ -x "$cli" ] && return 0
  [ -n "$root" ] || { say "$service is missing from the installation"; exit 1; }
  bash "$root/scripts/install-dependencies.sh" --build >&2  # stdout is for the export line
  say "building zunde-service and zunde-cli in $build (log: $dir/build.log)"
  if ! { cmake -S "$root" -B "$build" && cmake --build "$build" -j"$(nproc)" --target zunde-service zunde-cli; } \
    >"$dir/build.log" 2>&1; then
    cat "$dir/build.log" >&2
    say "the build failed (its output is above)"
    exit 1
  fi
}

wait_for() { # FILE TEXT PID: until FILE holds TEXT, while PID lives, at most ten seconds
  for _ in $(seq 100); do
    grep -q "$2" "$1" 2>/dev/null && return 0
    kill -0 "$3" 2>/dev/null || return 1
    sleep 0.1
  done
  return 1
}

start_bus() {
  dbus-daemon --config-file="$bus_conf" --fork --print-address=3 --print-pid=4 \
    3>"$dir/address" 4>"$dir/bus.pid" 2>"$dir/bus.log" </dev/null
  if ! is_running "$(pid_of bus)" dbus-daemon; then
    cat "$dir/bus.log" >&2
    say "the private bus did not start"
    exit 1
  fi
}

start_service() {
  DBUS_SYSTEM_BUS_ADDRESS=$(head -n1 "$dir/address") setsid "$service" --data-dir "$dir/data" "$@" \
    >"$dir/service.log" 2>&1 </dev/null &
  echo $! >"$dir/service.pid"
  if ! wait_for "$dir/service.log" "zunde-service ready" "$(pid_of service)"; then
    cat "$dir/service.log" >&2
    say "zunde-service did not start (log: $dir/service.log)"
    stop
    exit 1
  fi
}

# PID NAME: SIGTERM, then waits for it to go, at most five seconds.
end() {
  is_running "$1" "$2" || return 0
  kill -TERM "$1"
  for _ in $(seq 50); do
    is_running "$1" "$2" || return 0
    sleep 0.1
  done
  say "$2 (pid $1) did not stop on SIGTERM"
  return 1
}

start() {
  mkdir -p "$dir"
  if is_running "$(pid_of bus)" dbus-daemon && is_running "$(pid_of service)" zunde-service; then
    say "reusing the running bus (pid $(pid_of bus)) and zunde-service (pid $(pid_of service))"
    if (($#)); then say "the options $* were not used: stop first to start with them"; fi
  else
    build_missing
    stop
    start_bus
    start_service "$@"
    say "zunde-service (pid $(pid_of service)) on a private bus (pid $(pid_of bus)); data in $dir/data"
  fi
  say "zunde-cli: $cli"
  echo "export DBUS_SYSTEM_BUS_ADDRESS=$(head -n1 "$dir/address")"
}

status() {
  local state=0 bus service_pid
  bus=$(pid_of bus) service_pid=$(pid_of service)
  if is_running "$bus" dbus-daemon; then
    echo "bus: running, pid $bus, address $(head -n1 "$dir/address")"
  else
    echo "bus: not running"; state=1
  fi
  if is_running "$service_pid" zunde-service; then
    echo "zunde-service: running, pid $service_pid, data in $dir/data, log $dir/service.log"
  else
    echo "zunde-service: not running"; state=1
  fi
  return $state
}

stop() {
  end "$(pid_of service)" zunde-service
  end "$(pid_of bus)" dbus-daemon
  rm -f "$dir/service.pid" "$dir/bus.pid" "$dir/address"
}

case "${1:-}" in
  start) shift; start "$@" ;;
  status) status ;;
  stop) stop ;;
  *) echo "usage: $0 start|status|stop" >&2; exit 2 ;;
esac
