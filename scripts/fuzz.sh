#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for a bounded time (FUZZ_SECONDS, default 30).
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${FUZZ_SECONDS:-30}
dir=build/fuzz
CC=clang CXX=clang++ cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTROVANE_BUILD_FUZZ=ON -DTROVANE_BUILD_TESTS=OFF -DTROVANE_BUILD_BENCH=OFF -DTROVANE_BUILD_QT=OFF \
    -DTROVANE_SANITIZE=address,undefined > /dev/null
cmake --build "$dir" -j "$(nproc)"

shopt -s nullglob
targets=("$dir"/fuzz/*/fuzz_*)
if [ ${#targets[@]} -eq 0 ]; then
    echo "== No fuzz targets yet"
    exit 0
fi
for target in "${targets[@]}"; do
    [ -x "$target" ] || continue
    name=$(basename "$target")
    corpus="$dir/corpus/$name"
    mkdir -p "$corpus"
    seeds="fuzz/corpus/${name#fuzz_}"
    echo "== Fuzzing $name for ${seconds}s"
    if [ -d "$seeds" ]; then
        "$target" -max_total_time="$seconds" -print_final_stats=1 "$corpus" "$seeds" 2>&1 | tail -n 5
    else
        "$target" -max_total_time="$seconds" -print_final_stats=1 "$corpus" 2>&1 | tail -n 5
    fi
done
