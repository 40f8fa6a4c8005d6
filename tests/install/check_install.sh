#!/usr/bin/env bash
# Installs the build into a scratch prefix, builds a small application
# against it twice (with pkg-config and with find_package), runs the
# installed programs with a clean environment, and has the installed
# zunde-dev-env start a bus and service, answer a call and stop, leaving
# no process behind.
#   check_install.sh <build dir> <source dir of the consumer>
set -euo pipefail
build_dir=$1
consumer_dir=$2
prefix=$(mktemp -d)
export ZUNDE_DEV_DIR=$prefix/dev
trap '"$prefix/bin/zunde-dev-env" stop 2>/dev/null; rm -rf "$prefix"' EXIT

cmake --install "$build_dir" --prefix "$prefix" >/dev/null
libdir=$(find "$prefix" -name 'libzunde-provider.so.0' -printf '%h\n' | head -n1)

soname=$(readelf -d "$libdir/libzunde-provider.so.0" | sed -n 's/.*Library soname: \[\(.*\)\]/\1/p')
[ "$soname" = "libzunde-provider.so.0" ] || { echo "SONAME is '$soname'"; exit 1; }

export PKG_CONFIG_PATH="$libdir/pkgconfig"
c++ -std=c++17 "$consumer_dir/main.cpp" -o "$prefix/with-pkg-config" $(pkg-config --cflags --libs zunde-provider)
LD_LIBRARY_PATH="$libdir" "$prefix/with-pkg-config"

cmake -S "$consumer_dir" -B "$prefix/consumer-build" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$prefix/consumer-build" >/dev/null
LD_LIBRARY_PATH="$libdir" "$prefix/consumer-build/consumer"
for program in zunde-cli zunde-service; do
  env -i "$prefix/bin/$program" --version
done

eval "$("$prefix/bin/zunde-dev-env" start)"
pids="$(cat "$ZUNDE_DEV_DIR"/*.pid)"
"$prefix/bin/zunde-cli" env get
"$prefix/bin/zunde-dev-env" stop
for pid in $pids; do
  # One that has exited but is not yet reaped shows as Z.
  if ps -o stat= -p "$pid" | grep -q '^[^Z]'; then echo "pid $pid still runs after stop"; exit 1; fi
done
echo "installed library links with pkg-config and find_package; installed programs run from the prefix"
