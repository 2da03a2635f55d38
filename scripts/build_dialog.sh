#!/usr/bin/env bash
# Builds trovane-dialog and trovane-vexl in build/run (installing what the build needs) and prints
# the dialog's path. Used by run.sh and gallery.sh.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/deps.sh >&2
cmake -S . -B build/run -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTROVANE_BUILD_TESTS=OFF -DTROVANE_BUILD_BENCH=OFF > /dev/null
cmake --build build/run -j "$(nproc)" --target trovane-dialog trovane-vexl >&2
echo "$PWD/build/run/apps/trovane-dialog/trovane-dialog"
