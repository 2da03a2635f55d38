#!/usr/bin/env bash
# Builds and runs every test: once as a normal build, once under AddressSanitizer and UBSan.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/deps.sh
jobs=$(nproc)

run_suite() {
    local dir=$1; shift
    echo "== Configuring $dir"
    cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=Debug "$@" > /dev/null
    echo "== Building $dir"
    cmake --build "$dir" -j "$jobs"
    echo "== Testing $dir"
    (cd "$dir" && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$jobs")
}

run_suite build/test
# The gallery of the main job, drawn by the dialog just built: every object kind and dialog opens.
TROVANE_DIALOG="$PWD/build/test/apps/trovane-dialog/trovane-dialog" bash scripts/gallery.sh build/test/gallery
# The library as a host project uses it: installed (find_package) and as a source tree (add_subdirectory).
bash scripts/consumer_test.sh build/test
# The Debian packages from the same build: contents, dependencies, lintian, the dialog unpacked.
bash scripts/package.sh build/test
ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 UBSAN_OPTIONS=print_stacktrace=1 \
    run_suite build/sanitize -DTROVANE_SANITIZE=address,undefined -DTROVANE_BUILD_BENCH=OFF

bash scripts/fuzz.sh
