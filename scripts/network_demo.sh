#!/usr/bin/env bash
# The networked demo: a local broker, trovane-server and two control dialogs (users anna and ben)
# on one process database. Closing both dialogs stops the server and the broker.
#   scripts/network_demo.sh [BUILD_DIR] [PORT]      (build/test and 1883 by default)
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/test}
port=${2:-1883}
server="$build/apps/trovane-server/trovane-server"
dialog="$build/apps/trovane-dialog/trovane-dialog"
for program in "$server" "$dialog"; do
    [ -x "$program" ] || { echo "missing $program: build first (cmake --build $build)"; exit 1; }
done
broker=$(command -v mosquitto || echo /usr/sbin/mosquitto)
[ -x "$broker" ] || { echo "mosquitto is not installed (scripts/deps.sh installs it)"; exit 1; }

work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

cat > "$work/broker.conf" <<CONF
user $(id -un)
listener $port 127.0.0.1
allow_anonymous true
CONF
"$broker" -c "$work/broker.conf" > "$work/broker.log" 2>&1 &
pids+=($!)
sleep 0.5
"$server" --broker "mqtt://127.0.0.1:$port" &
pids+=($!)
sleep 0.5
"$dialog" --server "mqtt://127.0.0.1:$port" --user anna &
first=$!
"$dialog" --server "mqtt://127.0.0.1:$port" --user ben &
second=$!
wait "$first" "$second"
