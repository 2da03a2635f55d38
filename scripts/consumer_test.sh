#!/usr/bin/env bash
# Builds and runs the two consumer projects: one against an installation of the library in a
# temporary prefix (find_package), one that pulls the source tree in (add_subdirectory) as shared
# libraries, so that a host sees only what the public headers export.
#
#   bash scripts/consumer_test.sh [BUILD_DIR]
#
# BUILD_DIR is an already built tree of this repository to install from (default build/test, which
# scripts/test.sh has just built); it is built again first, which costs nothing when it is current.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/test}
jobs=$(nproc)
work=$(mktemp -d "${TMPDIR:-/tmp}/trovane-consumers.XXXXXX")
trap 'rm -rf "$work"' EXIT

echo "== Installing $build into a temporary prefix"
cmake --build "$build" -j "$jobs" > /dev/null
cmake --install "$build" --prefix "$work/prefix" > /dev/null

echo "== Consumer with find_package"
cmake -S tests/consumers/find_package -B "$work/find_package" -DCMAKE_PREFIX_PATH="$work/prefix" > /dev/null
cmake --build "$work/find_package" -j "$jobs" > /dev/null
"$work/find_package/consumer"

echo "== Consumer with add_subdirectory, shared libraries"
cmake -S tests/consumers/add_subdirectory -B "$work/add_subdirectory" -DTROVANE_SOURCE_DIR="$PWD" \
    -DBUILD_SHARED_LIBS=ON > /dev/null
cmake --build "$work/add_subdirectory" -j "$jobs" > /dev/null
"$work/add_subdirectory/consumer"
ldd "$work/add_subdirectory/consumer" | grep -q 'libtrovane_blocking.so' || { echo "consumer: not linked to the shared libraries" >&2; exit 1; }

echo "== An unknown component is refused"
mkdir -p "$work/unknown"
cat > "$work/unknown/CMakeLists.txt" <<'CMAKE'
cmake_minimum_required(VERSION 3.25)
project(TrovaneUnknownComponent LANGUAGES CXX)
find_package(TrovaneCommon REQUIRED COMPONENTS no_such_part)
CMAKE
if cmake -S "$work/unknown" -B "$work/unknown/build" -DCMAKE_PREFIX_PATH="$work/prefix" > "$work/unknown.log" 2>&1; then
    echo "consumer: a missing component was accepted" >&2
    exit 1
fi
grep -q 'no_such_part' "$work/unknown.log" || { cat "$work/unknown.log" >&2; exit 1; }
echo "consumers OK"
