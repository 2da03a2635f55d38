#!/usr/bin/env bash
# Builds and starts the main job: the control dialog on the embedded demo server.
# Arguments are passed on to trovane-dialog (see the README).
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/deps.sh
cmake -S . -B build/run -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTROVANE_BUILD_TESTS=OFF -DTROVANE_BUILD_BENCH=OFF > /dev/null
cmake --build build/run -j "$(nproc)" --target trovane-dialog trovane-vexl

dialog=build/run/apps/trovane-dialog/trovane-dialog
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || [[ " $* " == *" --screenshot "* ]]; then
    exec "$dialog" "$@"
fi
# No display: render the dialog off-screen and say where the picture is.
"$dialog" --screenshot trovane-dialog.png "$@"
echo "No display: wrote a screenshot of the control dialog to $(pwd)/trovane-dialog.png"
