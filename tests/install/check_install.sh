#!/usr/bin/env bash
# Installs the built library into a scratch prefix and builds a small
# application against it twice: with pkg-config and with find_package.
#   check_install.sh <build dir> <source dir of the consumer>
set -euo pipefail
build_dir=$1
consumer_dir=$2
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT

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
echo "installed library links with pkg-config and find_package"
