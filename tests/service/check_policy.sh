#!/usr/bin/env bash
# The installed bus policy on a private bus configured like the system bus
# (default deny, the installed folder included): an unprivileged user may
# call the service and may not own its name. Needs root to switch users.
# Usage: check_policy.sh BUILD_DIR
set -euo pipefail
if [ "$(id -u)" -ne 0 ] || ! command -v setpriv >/dev/null; then echo "skipped: needs root and setpriv"; exit 77; fi
work=$(mktemp -d); chmod 755 "$work"
service=; bus=
trap 'kill $service $bus 2>/dev/null; rm -rf "$work"' EXIT
cmake --install "$1" --prefix "$work/prefix" >/dev/null
cat >"$work/bus.conf" <<CONF
<busconfig>
  <type>system</type>
  <listen>unix:path=$work/bus</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <deny own="*"/>
    <deny send_type="method_call"/>
    <allow send_destination="org.freedesktop.DBus"/>
    <allow send_requested_reply="true" send_type="method_return"/>
    <allow send_requested_reply="true" send_type="error"/>
    <allow send_type="signal"/>
    <allow receive_type="method_call"/>
    <allow receive_type="method_return"/>
    <allow receive_type="error"/>
    <allow receive_type="signal"/>
  </policy>
  <includedir>$work/prefix/share/dbus-1/system.d</includedir>
</busconfig>
CONF
dbus-daemon --config-file="$work/bus.conf" --nofork >/dev/null 2>&1 & bus=$!
for _ in $(seq 50); do [ -S "$work/bus" ] && break; sleep 0.1; done
chmod 777 "$work/bus"
export DBUS_SYSTEM_BUS_ADDRESS="unix:path=$work/bus"
mkdir -m 777 "$work/nobody"
as_nobody() { setpriv --reuid=nobody --regid=nogroup --clear-groups "$@"; }
refused=$(as_nobody "$work/prefix/bin/zunde-service" --data-dir "$work/nobody" 2>&1 || true)
grep -q "cannot own the name" <<<"$refused"
"$work/prefix/bin/zunde-service" --data-dir "$work/root" >"$work/ready" 2>/dev/null & service=$!
for _ in $(seq 50); do grep -q ready "$work/ready" && break; sleep 0.1; done
as_nobody gdbus call --system --dest com.velmora.FCCallListener --object-path /com/velmora/Object \
  --method com.velmora.FCCallListener.MethodCall GetRemoteContentEnv 0 "@ay []" | grep -q "^(0, "
echo "policy: nobody may call, may not own"
