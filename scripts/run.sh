#!/usr/bin/env bash
# Builds and starts the main job: the control dialog on the embedded demo server.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/deps.sh
cmake -S . -B build/run -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTROVANE_BUILD_TESTS=OFF -DTROVANE_BUILD_BENCH=OFF > /dev/null
cmake --build build/run -j "$(nproc)"

if [ -x build/run/apps/trovane-dialog/trovane-dialog ]; then
    if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
        exec build/run/apps/trovane-dialog/trovane-dialog "$@"
    fi
    build/run/apps/trovane-dialog/trovane-dialog --screenshot trovane-dialog.png "$@"
    echo "No display: wrote a screenshot of the control dialog to $(pwd)/trovane-dialog.png"
elif [ -x build/run/apps/trovane-vexl/trovane-vexl ]; then
    echo "The control dialog is not built yet; starting the server console on the demo scenario."
    exec build/run/apps/trovane-vexl/trovane-vexl "$@"
else
    echo "Neither the control dialog nor the server console is built yet: only the libraries exist so far."
fi
