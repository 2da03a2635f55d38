#!/usr/bin/env bash
# Installs the Debian packages the build needs, only those that are missing (run as root).
set -euo pipefail

packages=(
    cmake g++ make pkg-config
    libgtest-dev libgmock-dev libbenchmark-dev
    nlohmann-json3-dev
    qt6-base-dev
    binutils-mingw-w64-x86-64 binutils-mingw-w64-i686
    clang libclang-rt-14-dev
    mosquitto libmosquitto-dev libsqlite3-dev openssl
)

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
done

if [ ${#missing[@]} -gt 0 ]; then
    echo "== Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
